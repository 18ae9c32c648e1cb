#include "base/paths.h"

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <string_view>

namespace {

void CopyPart(std::wstring_view part, wchar_t (&destination)[MAX_PATH]) {
    const std::size_t length = std::min<std::size_t>(part.size(), MAX_PATH - 1);
    std::copy_n(part.data(), length, destination);
    destination[length] = L'\0';
}

std::wstring_view WithoutQuotes(std::wstring_view path) {
    const bool quoted = path.size() >= 2 && path.front() == L'"' && path.back() == L'"';
    return quoted ? path.substr(1, path.size() - 2) : path;
}

}  // namespace

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

PathParts SplitPath(const wchar_t* path) {
    const std::wstring_view text = WithoutQuotes(path);
    const std::size_t separator = text.find_last_of(L"\\/");
    PathParts parts;
    if (separator == std::wstring_view::npos) {
        CopyPart({}, parts.folder);
        CopyPart(text, parts.name);
        return parts;
    }
    CopyPart(text.substr(0, std::max<std::size_t>(separator, 1)), parts.folder);
    CopyPart(text.substr(separator + 1), parts.name);
    return parts;
}
