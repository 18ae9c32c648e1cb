#include "platform/desktop/folder_listing.h"

#include <cwchar>
#include <new>
#include <utility>

#include "platform/desktop/system_handles.h"
#include "platform/desktop/system_path.h"
#include "platform/name_wildcard.h"

namespace {

// What a handle of ours points to.
struct Listing {
    UniqueSystemFind search;
    bool everyName;
    wchar_t pattern[MAX_PATH];
};

HANDLE Failed(DWORD code) {
    SetLastError(code);
    return INVALID_HANDLE_VALUE;
}

UniqueSystemFind StartSystemListing(const wchar_t* pattern, WIN32_FIND_DATAW* data) {
    // Without short names, and with as much as the system can hand over at once.
    return UniqueSystemFind(FindFirstFileExW(pattern, FindExInfoBasic, data, FindExSearchNameMatch, nullptr,
                                             FIND_FIRST_EX_LARGE_FETCH));
}

// Behind the last separator, or behind the drive.
const wchar_t* NamePartOf(const wchar_t* pattern) {
    const wchar_t* name = pattern[0] != L'\0' && pattern[1] == L':' ? pattern + 2 : pattern;
    for (const wchar_t* unit = name; *unit != L'\0'; ++unit) {
        if (*unit == L'\\' || *unit == L'/') name = unit + 1;
    }
    return name;
}

// "." and ".." are no entries of a handheld's folder, and what cannot be named in a path is left out: another
// system's file name with a separator in it, or one that starts like a drive, would lead to some other file.
bool IsEntry(const wchar_t* name) {
    if (name[0] == L'.' && (name[1] == L'\0' || (name[1] == L'.' && name[2] == L'\0'))) return false;
    // QUIRK: drive-like-names-are-left-out
    return name[1] != L':' && std::wcspbrk(name, L"\\/") == nullptr;
}

bool IsWanted(const Listing& listing, const WIN32_FIND_DATAW& data) {
    return IsEntry(data.cFileName) && (listing.everyName || MatchesWildcard(data.cFileName, listing.pattern));
}

// The codes by which the system says that there is no such folder.
bool MeansNoFolder(DWORD code) {
    return code == ERROR_PATH_NOT_FOUND || code == ERROR_INVALID_NAME || code == ERROR_DIRECTORY ||
           code == ERROR_BAD_PATHNAME;
}

// Opens the listing of everything in the folder part of the pattern, on the first entry that the system
// gives.
UniqueSystemFind OpenFolder(const wchar_t* pattern, const wchar_t* namePart, WIN32_FIND_DATAW* data) {
    wchar_t folder[MAX_PATH];
    const auto folderUnits = static_cast<std::size_t>(namePart - pattern);
    std::wmemcpy(folder, pattern, folderUnits);
    folder[folderUnits] = L'\0';
    const SystemPath literal(folder);
    if (!literal.Fits()) return UniqueSystemFind(Failed(ERROR_PATH_NOT_FOUND));

    wchar_t everything[LiteralPathSize + 2];
    std::size_t units = std::wcslen(literal.Text());
    std::wmemcpy(everything, literal.Text(), units);
    if (units > 0 && everything[units - 1] != L'\\') everything[units++] = L'\\';
    everything[units++] = L'*';
    everything[units] = L'\0';
    UniqueSystemFind search = StartSystemListing(everything, data);
    if (!search && MeansNoFolder(GetLastError())) SetLastError(ERROR_PATH_NOT_FOUND);
    return search;
}

// One file or folder by its path.
UniqueSystemFind OpenSingle(const wchar_t* path, WIN32_FIND_DATAW* data) {
    const SystemPath literal(path);
    if (!literal.Fits()) return UniqueSystemFind(Failed(ERROR_PATH_NOT_FOUND));
    return StartSystemListing(literal.Text(), data);
}

}  // namespace

HANDLE StartListing(const wchar_t* pattern, WIN32_FIND_DATAW* data) {
    const std::size_t units = wcsnlen(pattern, MAX_PATH);
    if (units == 0 || units >= MAX_PATH) return Failed(ERROR_PATH_NOT_FOUND);
    const wchar_t* const namePart = NamePartOf(pattern);
    if (*namePart == L'\0') return Failed(ERROR_FILE_NOT_FOUND);

    UniqueSystemFind search =
        HasWildcard(namePart) ? OpenFolder(pattern, namePart, data) : OpenSingle(pattern, data);
    if (!search) return INVALID_HANDLE_VALUE;
    auto* const listing = new (std::nothrow) Listing;
    if (listing == nullptr) return Failed(ERROR_NOT_ENOUGH_MEMORY);
    listing->search = std::move(search);
    listing->everyName = MatchesEveryName(namePart);
    std::wmemcpy(listing->pattern, namePart, std::wcslen(namePart) + 1);
    if (IsWanted(*listing, *data) || NextOfListing(listing, data)) return listing;
    const DWORD code = GetLastError();
    EndListing(listing);
    return Failed(code == ERROR_NO_MORE_FILES ? ERROR_FILE_NOT_FOUND : code);
}

BOOL NextOfListing(HANDLE search, WIN32_FIND_DATAW* data) {
    if (search == nullptr || search == INVALID_HANDLE_VALUE) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    const auto& listing = *static_cast<const Listing*>(search);
    while (FindNextFileW(listing.search.Get(), data)) {
        if (IsWanted(listing, *data)) return TRUE;
    }
    return FALSE;
}

BOOL EndListing(HANDLE search) {
    if (search == nullptr || search == INVALID_HANDLE_VALUE) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    delete static_cast<Listing*>(search);
    return TRUE;
}
