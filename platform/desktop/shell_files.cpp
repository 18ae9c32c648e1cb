#include "platform/desktop/shell_files.h"

#include <cwchar>
#include <iterator>

#include "platform/desktop/file_identity.h"
#include "platform/desktop/system_path.h"
#include "platform/name_wildcard.h"

namespace {

// Never unloaded: what has been opened with it may go on.
HMODULE loaded = nullptr;

template <typename Call>
Call* ShellCall(const char* name) {
    if (loaded == nullptr) loaded = LoadLibraryExW(L"shell32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return loaded != nullptr ? reinterpret_cast<Call*>(GetProcAddress(loaded, name)) : nullptr;
}

constexpr wchar_t Mark[] = L"\\\\?\\";
constexpr std::size_t MarkLength = 4;

// No file's name holds a colon.
bool IsAddress(const wchar_t* path) {
    return path[0] != L'\0' && path[1] != L'\0' && std::wcschr(path + 2, L':') != nullptr;
}

bool HasMark(const wchar_t* path) {
    return std::wcsncmp(path, Mark, MarkLength) == 0;
}

// The path as programs write it: with its drive, and without a separator at the end. Empty when it has no
// room.
void FullPath(const wchar_t* path, wchar_t (&full)[MAX_PATH]) {
    constexpr DWORD RootLength = 3;
    DWORD units = GetFullPathNameW(path, MAX_PATH, full, nullptr);
    if (units >= MAX_PATH) units = 0;
    if (units > RootLength && full[units - 1] == L'\\') --units;
    full[units] = L'\0';
}

bool IsTakenAs(const wchar_t* full, const SystemPath& literal) {
    if (!literal.Fits()) return false;
    if (!HasMark(literal.Text())) return true;
    const wchar_t* const meant = literal.Text() + MarkLength;
    const std::size_t units = std::wcslen(meant);
    return std::wcslen(full) == units && NamesTheSame(full, meant, units);
}

// The short names of one folder are made up of few letters, so they may be another file's.
bool FindShortPath(const SystemPath& literal, wchar_t (&found)[MAX_PATH]) {
    wchar_t shortPath[LiteralPathSize];
    const DWORD units = GetShortPathNameW(literal.Text(), shortPath, LiteralPathSize);
    if (units == 0 || units >= MAX_PATH || !HasMark(shortPath)) return false;
    std::wmemcpy(found, shortPath + MarkLength, units - MarkLength + 1);
    return ShellTakesPath(found) && OpensSameFile(found, literal.Text());
}

}  // namespace

bool ShellTakesPath(const wchar_t* path) {
    if (IsAddress(path)) return true;
    wchar_t full[MAX_PATH];
    FullPath(path, full);
    return full[0] != L'\0' && IsTakenAs(full, SystemPath(path));
}

bool FindShellPath(const wchar_t* path, wchar_t (&found)[MAX_PATH]) {
    FullPath(path, found);
    const SystemPath literal(path);
    if (found[0] != L'\0' && IsTakenAs(found, literal)) return true;
    return literal.Fits() && FindShortPath(literal, found);
}

namespace {

const wchar_t* NameIn(const wchar_t* path) {
    const wchar_t* name = path;
    for (const wchar_t* unit = path; *unit != L'\0'; ++unit) {
        if (*unit == L'\\' || *unit == L'/') name = unit + 1;
    }
    return name;
}

bool IsShortcutName(const wchar_t* name) {
    const std::size_t length = std::wcslen(name);
    return length > 4 && NamesTheSame(name + length - 4, L".lnk", 4);
}

bool IsShortcutFile(const wchar_t* path) {
    if (!IsShortcutName(path)) return false;
    const DWORD attributes = GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

// To look for its icon the desktop's shell opens a shortcut, and not every shell survives one that is
// damaged: of such a file it is asked for the icon of its kind.
DWORD_PTR ShortcutInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    constexpr UINT IconFlags = SHGFI_ICON | SHGFI_SMALLICON;
    SHFILEINFOW icon{};
    ShellFileInfo(path, FILE_ATTRIBUTE_NORMAL, &icon, sizeof icon,
                  (flags & IconFlags) | SHGFI_USEFILEATTRIBUTES);
    const DWORD_PTR answer = ShellFileInfo(path, attributes, info, size, flags & ~IconFlags);
    info->hIcon = icon.hIcon;
    info->iIcon = icon.iIcon;
    return answer;
}

DWORD_PTR InfoByPath(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    const bool looksInside = (flags & SHGFI_ICON) != 0 && (flags & SHGFI_USEFILEATTRIBUTES) == 0;
    if (looksInside && IsShortcutFile(path)) return ShortcutInfo(path, attributes, info, size, flags);
    return ShellFileInfo(path, attributes, info, size, flags);
}

// A name of the same kind that the shell does not cut. Behind a last dot that ends the name, and with a blank
// at its end, there is no extension.
void NameOfKind(const wchar_t* name, wchar_t (&standIn)[MAX_PATH + 4]) {
    const wchar_t* extension = std::wcsrchr(name, L'.');
    const std::size_t length = std::wcslen(name);
    const wchar_t last = length > 0 ? name[length - 1] : L'\0';
    if (extension == nullptr || last == L'.' || last == L' ') extension = L"";
    std::wcscpy(standIn, L"file");
    std::wcsncat(standIn, extension, MAX_PATH - 1);
}

// What shells show of a name: not the extension of a shortcut.
void ShowName(SHFILEINFOW& info, const wchar_t* name) {
    std::wcsncpy(info.szDisplayName, name, std::size(info.szDisplayName) - 1);
    info.szDisplayName[std::size(info.szDisplayName) - 1] = L'\0';
    if (IsShortcutName(info.szDisplayName)) info.szDisplayName[std::wcslen(info.szDisplayName) - 4] = L'\0';
}

DWORD_PTR InfoByKind(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    if ((flags & SHGFI_USEFILEATTRIBUTES) == 0) {
        const SystemPath literal(path);
        attributes = literal.Fits() ? GetFileAttributesW(literal.Text()) : INVALID_FILE_ATTRIBUTES;
        if (attributes == INVALID_FILE_ATTRIBUTES) return 0;
    }
    wchar_t standIn[MAX_PATH + 4];
    NameOfKind(NameIn(path), standIn);
    const DWORD_PTR answer = ShellFileInfo(standIn, attributes, info, size, flags | SHGFI_USEFILEATTRIBUTES);
    if (answer != 0 && (flags & SHGFI_DISPLAYNAME) != 0) ShowName(*info, NameIn(path));
    return answer;
}

// Where a folder on the way has only a short name that the shell takes, the shell finds the long one behind
// it and is at another file again.
bool ShellTakesFolderOf(const wchar_t* path) {
    wchar_t folder[MAX_PATH];
    const auto units = static_cast<std::size_t>(NameIn(path) - path);
    if (units >= MAX_PATH) return false;
    std::wmemcpy(folder, path, units);
    folder[units] = L'\0';
    return units == 0 || ShellTakesPath(folder);
}

}  // namespace

DWORD_PTR GetShellFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    // The desktop's shell knows no path without a drive.
    wchar_t asked[MAX_PATH];
    if (ShellTakesPath(path)) {
        return InfoByPath(FindShellPath(path, asked) ? asked : path, attributes, info, size, flags);
    }
    // A question about a kind is about the name's own extension, which the short name may not have.
    const bool asksAboutFile = (flags & SHGFI_USEFILEATTRIBUTES) == 0;
    if (asksAboutFile && ShellTakesFolderOf(path) && FindShellPath(path, asked)) {
        const DWORD_PTR answer = InfoByPath(asked, attributes, info, size, flags);
        if (answer != 0) return answer;
    }
    return InfoByKind(path, attributes, info, size, flags);
}

DWORD_PTR ShellFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    const auto call = ShellCall<decltype(::SHGetFileInfoW)>("SHGetFileInfoW");
    return call != nullptr ? call(path, attributes, info, size, flags) : 0;
}

BOOL ShellExecution(SHELLEXECUTEINFOW* info) {
    const auto call = ShellCall<decltype(::ShellExecuteExW)>("ShellExecuteExW");
    return call != nullptr && call(info);
}
