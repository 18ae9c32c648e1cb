#include "platform/desktop/shell_path.h"

#include <cwchar>

#include "platform/name_wildcard.h"
#include "platform/same_file.h"
#include "platform/desktop/system_path.h"

namespace {

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
