#include "base/join_path.h"

#include <cstddef>
#include <cwchar>

bool JoinPath(wchar_t (&destination)[MAX_PATH], const wchar_t* folder, const wchar_t* name) {
    const std::size_t folderLength = std::wcslen(folder);
    const std::size_t nameLength = std::wcslen(name);
    const bool nameHasDrive = nameLength >= 2 && name[1] == L':';
    const bool folderIsOpen = folderLength > 0 && folder[folderLength - 1] != L'\\';
    // QUIRK: drive-joins-without-separator. QUIRK: empty-name-joins-with-separator.
    const std::size_t separator = folderIsOpen && !nameHasDrive ? 1 : 0;

    if (folderLength + separator + nameLength >= MAX_PATH) {
        destination[0] = L'\0';
        return false;
    }
    std::wmemmove(destination, folder, folderLength);
    if (separator != 0) destination[folderLength] = L'\\';
    std::wmemcpy(destination + folderLength + separator, name, nameLength);
    destination[folderLength + separator + nameLength] = L'\0';
    return true;
}
