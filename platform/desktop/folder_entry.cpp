#include "platform/desktop/folder_entry.h"

#include <cwchar>
#include <iterator>

#include "platform/desktop/system_handles.h"
#include "platform/desktop/system_path.h"
#include "platform/same_file.h"

namespace {

UniqueFile OpenToIdentify(const wchar_t* literal) {
    // No access at all is needed to be told which file it is.
    return UniqueFile(CreateFileW(literal, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

bool Identify(const UniqueFile& file, BY_HANDLE_FILE_INFORMATION& identity) {
    return file && GetFileInformationByHandle(file.Get(), &identity);
}

// A third name has so many units more than the name at most.
constexpr int ThirdNameMark = 24;
using Path = wchar_t[LiteralPathSize + ThirdNameMark];

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

// What of the name has room in the third one, no character cut in half.
int UnitsToKeep(const wchar_t* name) {
    constexpr std::size_t MostUnits = 60;
    const std::size_t units = std::wcslen(name);
    if (units <= MostUnits) return static_cast<int>(units);
    return static_cast<int>(IS_HIGH_SURROGATE(name[MostUnits - 1]) ? MostUnits - 1 : MostUnits);
}

// Whoever finds a file under its third name, because the power went in the middle, is to know it again.
bool FindThirdName(Path& path, const wchar_t* beside) {
    constexpr int MostTries = 1000;
    CopyFolder(path, beside);
    const wchar_t* const name = NameIn(beside);
    const std::size_t units = std::wcslen(path);
    for (int counter = 1; counter <= MostTries; ++counter) {
        _snwprintf(path + units, std::size(path) - units, L"rename~%d %.*s", counter, UnitsToKeep(name),
                   name);
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

bool IsSameFile(const wchar_t* first, const wchar_t* second) {
    const SystemPath literal(first);
    const SystemPath otherLiteral(second);
    return literal.Fits() && otherLiteral.Fits() && OpensSameFile(literal.Text(), otherLiteral.Text());
}

bool OpensSameFile(const wchar_t* first, const wchar_t* second) {
    // Both are held open: an identity may be given to another file once its file is gone.
    const UniqueFile firstFile = OpenToIdentify(first);
    const UniqueFile secondFile = OpenToIdentify(second);
    BY_HANDLE_FILE_INFORMATION a{}, b{};
    return Identify(firstFile, a) && Identify(secondFile, b) &&
           a.dwVolumeSerialNumber == b.dwVolumeSerialNumber && a.nFileIndexHigh == b.nFileIndexHigh &&
           a.nFileIndexLow == b.nFileIndexLow;
}

bool ListedName(const wchar_t* path, wchar_t (&name)[MAX_PATH]) {
    WIN32_FIND_DATAW entry;
    const UniqueSystemFind listing(FindFirstFileW(path, &entry));
    if (!listing) return false;
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
