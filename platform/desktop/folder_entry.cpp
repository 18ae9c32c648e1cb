#include "platform/desktop/folder_entry.h"

#include <cwchar>

#include "platform/desktop/literal_path.h"
#include "platform/same_file.h"

namespace {

constexpr int LongestThirdName = 24;
using Path = wchar_t[LiteralPathSize + LongestThirdName];

const wchar_t* NameIn(const wchar_t* path) {
    const wchar_t* const separator = std::wcsrchr(path, L'\\');
    return separator != nullptr ? separator + 1 : path;
}

void CopyFolder(Path& folder, const wchar_t* path) {
    const auto units = static_cast<std::size_t>(NameIn(path) - path);
    std::wmemcpy(folder, path, units);
    folder[units] = L'\0';
}

bool AreInOneFolder(const wchar_t* first, const wchar_t* second) {
    Path folder, otherFolder;
    CopyFolder(folder, first);
    CopyFolder(otherFolder, second);
    return OpensSameFile(folder, otherFolder);
}

bool IsFree(const wchar_t* path) {
    return GetFileAttributesW(path) == INVALID_FILE_ATTRIBUTES;
}

bool FindThirdName(Path& path, const wchar_t* beside) {
    constexpr int MostTries = 1000;
    CopyFolder(path, beside);
    const std::size_t units = std::wcslen(path);
    for (int counter = 1; counter <= MostTries; ++counter) {
        _snwprintf(path + units, LongestThirdName, L"rename~%d.tmp", counter);
        if (IsFree(path)) return true;
    }
    SetLastError(ERROR_ALREADY_EXISTS);
    return false;
}

bool HasItsNewName(const wchar_t* path) {
    wchar_t listed[MAX_PATH];
    return ListedName(path, listed) && std::wcscmp(listed, NameIn(path)) == 0;
}

// An entry that is still found by the new name is another one.
BOOL MoveToFree(const wchar_t* from, const wchar_t* to, MoveCall move) {
    if (IsFree(to)) return move(from, to);
    SetLastError(ERROR_ALREADY_EXISTS);
    return FALSE;
}

}  // namespace

bool ListedName(const wchar_t* path, wchar_t (&name)[MAX_PATH]) {
    WIN32_FIND_DATAW entry;
    const HANDLE listing = FindFirstFileW(path, &entry);
    if (listing == INVALID_HANDLE_VALUE) return false;
    FindClose(listing);
    std::wcscpy(name, entry.cFileName);
    return true;
}

bool IsSameEntry(const wchar_t* first, const wchar_t* second) {
    wchar_t name[MAX_PATH], otherName[MAX_PATH];
    return OpensSameFile(first, second) && AreInOneFolder(first, second) && ListedName(first, name) &&
           ListedName(second, otherName) && std::wcscmp(name, otherName) == 0;
}

BOOL RespellEntry(const wchar_t* from, const wchar_t* to, MoveCall move) {
    if (!move(from, to)) return FALSE;
    if (HasItsNewName(to)) return TRUE;
    Path third;
    if (!FindThirdName(third, from) || !move(from, third)) return FALSE;
    if (MoveToFree(third, to, move)) return TRUE;
    const DWORD code = GetLastError();
    move(third, from);
    SetLastError(code);
    return FALSE;
}
