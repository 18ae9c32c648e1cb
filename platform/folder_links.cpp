#include "platform/folder_links.h"

#include <cwchar>

#include "platform/system_path.h"

namespace {

// Where the folder really stands, links on the way followed. False when it cannot be opened or does not fit.
bool WhereItStands(const wchar_t* path, wchar_t (&place)[LiteralPathSize]) {
    // No access at all is needed for this, and the flag is how a folder is opened.
    const HANDLE folder = CreateFileW(path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
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

}  // namespace

// What stands where its name says is no link: its place is its parent's place and its own name. So a volume
// mounted in a folder, or a folder that is kept on a server, is entered although it is marked like a link.
bool LeadsElsewhere(const wchar_t* path) {
    const SystemPath literal(path);
    if (!literal.Fits()) return true;
    const wchar_t* const name = std::wcsrchr(literal.Text(), L'\\');
    wchar_t place[LiteralPathSize];
    if (name == nullptr || !WhereItStands(literal.Text(), place)) return true;
    if (IsMountedVolume(literal.Text())) return false;

    wchar_t parent[LiteralPathSize];
    const auto parentUnits = static_cast<std::size_t>(name - literal.Text());
    std::wmemcpy(parent, literal.Text(), parentUnits + 1);
    // The closing separator stays: without it a drive's root would be the drive itself.
    parent[parentUnits + 1] = L'\0';
    wchar_t parentPlace[LiteralPathSize];
    if (!WhereItStands(parent, parentPlace)) return true;

    std::size_t units = std::wcslen(parentPlace);
    if (units > 0 && parentPlace[units - 1] == L'\\') --units;
    return _wcsnicmp(place, parentPlace, units) != 0 || _wcsicmp(place + units, name) != 0;
}
