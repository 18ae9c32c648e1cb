#include "platform/desktop/file_identity.h"

#include <cwchar>
#include <iterator>

#include "platform/ce_files.h"
#include "platform/desktop/system_handles.h"
#include "platform/desktop/system_path.h"
#include "platform/name_wildcard.h"

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

// What becomes of a link that a path ends in.
enum class LastLink : DWORD { Followed = 0, Itself = FILE_FLAG_OPEN_REPARSE_POINT };

// Where the folder or file really stands, links on the way followed. False when it cannot be opened or does
// not fit.
bool FinalPath(const wchar_t* path, LastLink lastLink, wchar_t (&finalPath)[LiteralPathSize]) {
    // No access at all is needed for this, and the flag is how a folder is opened.
    const UniqueFile opened(CreateFileW(path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS | static_cast<DWORD>(lastLink), nullptr));
    if (!opened) return false;
    const DWORD units =
        GetFinalPathNameByHandleW(opened.Get(), finalPath, LiteralPathSize, FILE_NAME_NORMALIZED);
    return units > 0 && units < LiteralPathSize;
}

bool IsMountedVolume(const wchar_t* path) {
    wchar_t folder[LiteralPathSize + 1];
    const std::size_t units = std::wcslen(path);
    std::wmemcpy(folder, path, units);
    folder[units] = L'\\';
    folder[units + 1] = L'\0';
    wchar_t volume[MAX_PATH];
    return GetVolumeNameForVolumeMountPointW(folder, volume, MAX_PATH) != FALSE;
}

std::size_t UnitsWithoutEnd(const wchar_t* name) {
    std::size_t units = std::wcslen(name);
    while (units > 0 && (name[units - 1] == L'.' || name[units - 1] == L' '))
        --units;
    return units;
}

// Whether the path and the place, both in one folder, are one entry of it. Either may be its long or its
// short name, in any letter case. Where the system says what it has opened, it leaves out dots and blanks at
// the end: the place is then another file's, or nobody's.
bool IsNameOfFinalPath(const wchar_t* path, const wchar_t* place) {
    const wchar_t* const name = std::wcsrchr(path, L'\\');
    const wchar_t* const finalName = std::wcsrchr(place, L'\\');
    // So it is nearly always, and a listing costs more than all the rest.
    if (std::wcscmp(name, finalName) == 0) return true;
    wchar_t listed[MAX_PATH], listedFinal[MAX_PATH];
    if (ListedName(path, listed) && ListedName(place, listedFinal))
        return std::wcscmp(listed, listedFinal) == 0 || !OpensSameFile(path, place);
    const std::size_t units = UnitsWithoutEnd(name);
    return UnitsWithoutEnd(finalName) == units && NamesTheSame(name, finalName, units);
}

enum class LinkState { Unknown, NoLink, Link };

// Whether the system finds a link at the path: something with another parent or another name than the path
// gives.
LinkState LinkStateOf(const SystemPath& literal, LastLink lastLink) {
    const wchar_t* const name = std::wcsrchr(literal.Text(), L'\\');
    wchar_t place[LiteralPathSize];
    if (name == nullptr || !FinalPath(literal.Text(), lastLink, place)) return LinkState::Unknown;

    wchar_t parent[LiteralPathSize];
    const auto parentUnits = static_cast<std::size_t>(name - literal.Text());
    std::wmemcpy(parent, literal.Text(), parentUnits + 1);
    // The closing separator stays: without it a drive's root would be the drive itself.
    parent[parentUnits + 1] = L'\0';
    wchar_t parentFinal[LiteralPathSize];
    if (!FinalPath(parent, LastLink::Followed, parentFinal)) return LinkState::Unknown;

    std::size_t units = std::wcslen(parentFinal);
    if (units > 0 && parentFinal[units - 1] == L'\\') --units;
    if (std::wcslen(place) < units || !NamesTheSame(place, parentFinal, units)) return LinkState::Link;
    if (std::wcsrchr(place, L'\\') != place + units) return LinkState::Link;
    return IsNameOfFinalPath(literal.Text(), place) ? LinkState::NoLink : LinkState::Link;
}

bool IsNoLink(const SystemPath& literal, LastLink lastLink) {
    return LinkStateOf(literal, lastLink) == LinkState::NoLink;
}

// A link to a file bears no mark where the system follows it. It is known by the file that it opens: that one
// stands in another folder, or has another name. A file that says nothing of itself is none.
bool OpensAnotherFile(const SystemPath& literal, LastLink lastLink) {
    return LinkStateOf(literal, lastLink) == LinkState::Link;
}

}  // namespace

bool ce::IsSameFile(const wchar_t* first, const wchar_t* second) {
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

// What stands where its name says is no link. So a volume mounted in a folder, or a folder that is kept on a
// server, is entered although it is marked like a link.
bool LeadsElsewhere(const wchar_t* path) {
    const SystemPath literal(path);
    if (!literal.Fits()) return true;
    return !IsNoLink(literal, LastLink::Followed) && !IsMountedVolume(literal.Text());
}

bool IsOutOfReach(const wchar_t* path) {
    const SystemPath literal(path);
    if (!literal.Fits()) return false;
    const DWORD attributes = GetFileAttributesW(literal.Text());
    if (attributes == INVALID_FILE_ATTRIBUTES) return false;
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return OpensAnotherFile(literal, LastLink::Itself);
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return false;
    return LeadsElsewhere(path) && !IsNoLink(literal, LastLink::Itself);
}

bool LeadsToAnotherFile(const wchar_t* path) {
    const SystemPath literal(path);
    if (!literal.Fits()) return false;
    const DWORD attributes = GetFileAttributesW(literal.Text());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return false;
    return OpensAnotherFile(literal, LastLink::Followed);
}
