#include "platform/links.h"

#include <cwchar>

#include "platform/system_path.h"

namespace {

// What becomes of a link that a path ends in.
enum class LastLink : DWORD { Followed = 0, Itself = FILE_FLAG_OPEN_REPARSE_POINT };

// Where the folder or file really stands, links on the way followed. False when it cannot be opened or does
// not fit.
bool WhereItStands(const wchar_t* path, LastLink lastLink, wchar_t (&place)[LiteralPathSize]) {
    // No access at all is needed for this, and the flag is how a folder is opened.
    const HANDLE opened =
        CreateFileW(path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                    FILE_FLAG_BACKUP_SEMANTICS | static_cast<DWORD>(lastLink), nullptr);
    if (opened == INVALID_HANDLE_VALUE) return false;
    const DWORD units = GetFinalPathNameByHandleW(opened, place, LiteralPathSize, FILE_NAME_NORMALIZED);
    CloseHandle(opened);
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

// Letter case does not tell names apart, nor do dots and blanks at the end: the system leaves them out where
// it says what it has opened.
bool IsSameName(const wchar_t* one, const wchar_t* other) {
    const auto unitsThatCount = [](const wchar_t* name) {
        auto units = static_cast<int>(std::wcslen(name));
        while (units > 0 && (name[units - 1] == L'.' || name[units - 1] == L' '))
            --units;
        return units;
    };
    return CompareStringOrdinal(one, unitsThatCount(one), other, unitsThatCount(other), TRUE) == CSTR_EQUAL;
}

enum class Standing { Unknown, InItsPlace, UnderAnotherName, Elsewhere };

// How what the system finds at the path stands to the parent and the name that the path gives. The place is
// written unless that is unknown.
Standing StandingOf(const SystemPath& literal, LastLink lastLink, wchar_t (&place)[LiteralPathSize]) {
    const wchar_t* const name = std::wcsrchr(literal.Text(), L'\\');
    if (name == nullptr || !WhereItStands(literal.Text(), lastLink, place)) return Standing::Unknown;

    wchar_t parent[LiteralPathSize];
    const auto parentUnits = static_cast<std::size_t>(name - literal.Text());
    std::wmemcpy(parent, literal.Text(), parentUnits + 1);
    // The closing separator stays: without it a drive's root would be the drive itself.
    parent[parentUnits + 1] = L'\0';
    wchar_t parentPlace[LiteralPathSize];
    if (!WhereItStands(parent, LastLink::Followed, parentPlace)) return Standing::Unknown;

    std::size_t units = std::wcslen(parentPlace);
    if (units > 0 && parentPlace[units - 1] == L'\\') --units;
    if (_wcsnicmp(place, parentPlace, units) != 0) return Standing::Elsewhere;
    if (IsSameName(place + units, name)) return Standing::InItsPlace;
    return std::wcsrchr(place, L'\\') == place + units ? Standing::UnderAnotherName : Standing::Elsewhere;
}

bool StandsInItsPlace(const SystemPath& literal, LastLink lastLink) {
    wchar_t place[LiteralPathSize];
    return StandingOf(literal, lastLink, place) == Standing::InItsPlace;
}

// Whether the file at the place is listed there, but not by this name.
bool IsListedByOthers(const wchar_t* place, const wchar_t* name) {
    WIN32_FIND_DATAW entry;
    const HANDLE listing = FindFirstFileW(place, &entry);
    if (listing == INVALID_HANDLE_VALUE) return false;
    FindClose(listing);
    return !IsSameName(entry.cFileName, name) && !IsSameName(entry.cAlternateFileName, name);
}

// A link to a file bears no mark where the system follows it. It is known by the file that it opens: that one
// stands in another folder, or has another name. A file that says nothing of itself is none.
bool IsFollowedFileLink(const SystemPath& literal) {
    wchar_t place[LiteralPathSize];
    switch (StandingOf(literal, LastLink::Itself, place)) {
        case Standing::Elsewhere:
            return true;
        case Standing::UnderAnotherName:
            // A file may have two names of its own, a long and a short one.
            return IsListedByOthers(place, std::wcsrchr(literal.Text(), L'\\') + 1);
        default:
            return false;
    }
}

}  // namespace

// What stands where its name says is no link. So a volume mounted in a folder, or a folder that is kept on a
// server, is entered although it is marked like a link.
bool LeadsElsewhere(const wchar_t* path) {
    const SystemPath literal(path);
    if (!literal.Fits()) return true;
    return !StandsInItsPlace(literal, LastLink::Followed) && !IsMountedVolume(literal.Text());
}

bool IsOutOfReach(const wchar_t* path) {
    const SystemPath literal(path);
    if (!literal.Fits()) return false;
    const DWORD attributes = GetFileAttributesW(literal.Text());
    if (attributes == INVALID_FILE_ATTRIBUTES) return false;
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return IsFollowedFileLink(literal);
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return false;
    return LeadsElsewhere(path) && !StandsInItsPlace(literal, LastLink::Itself);
}
