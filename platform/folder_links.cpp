#include "platform/folder_links.h"

#include <cwchar>

#include "platform/system_path.h"

namespace {

// What becomes of a link that a path ends in.
enum class LastLink : DWORD { Followed = 0, Itself = FILE_FLAG_OPEN_REPARSE_POINT };

// Where the folder really stands, links on the way followed. False when it cannot be opened or does not fit.
bool WhereItStands(const wchar_t* path, LastLink lastLink, wchar_t (&place)[LiteralPathSize]) {
    // No access at all is needed for this, and the flag is how a folder is opened.
    const HANDLE folder =
        CreateFileW(path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                    FILE_FLAG_BACKUP_SEMANTICS | static_cast<DWORD>(lastLink), nullptr);
    if (folder == INVALID_HANDLE_VALUE) return false;
    const DWORD units = GetFinalPathNameByHandleW(folder, place, LiteralPathSize, FILE_NAME_NORMALIZED);
    CloseHandle(folder);
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

// Whether what the system finds at the path stands in the parent's place under its own name.
bool StandsInItsPlace(const SystemPath& literal, LastLink lastLink) {
    const wchar_t* const name = std::wcsrchr(literal.Text(), L'\\');
    wchar_t place[LiteralPathSize];
    if (name == nullptr || !WhereItStands(literal.Text(), lastLink, place)) return false;

    wchar_t parent[LiteralPathSize];
    const auto parentUnits = static_cast<std::size_t>(name - literal.Text());
    std::wmemcpy(parent, literal.Text(), parentUnits + 1);
    // The closing separator stays: without it a drive's root would be the drive itself.
    parent[parentUnits + 1] = L'\0';
    wchar_t parentPlace[LiteralPathSize];
    if (!WhereItStands(parent, LastLink::Followed, parentPlace)) return false;

    std::size_t units = std::wcslen(parentPlace);
    if (units > 0 && parentPlace[units - 1] == L'\\') --units;
    return _wcsnicmp(place, parentPlace, units) == 0 && _wcsicmp(place + units, name) == 0;
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
    constexpr DWORD MarkedFolder = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & MarkedFolder) != MarkedFolder) return false;
    return LeadsElsewhere(path) && !StandsInItsPlace(literal, LastLink::Itself);
}
