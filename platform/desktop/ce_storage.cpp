#include "platform/ce_storage.h"

#include <cwchar>

namespace {

bool ProgramMemory(ce::FreeAndTotal& bytes) {
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    if (!GlobalMemoryStatusEx(&status)) return false;
    bytes = {status.ullAvailPhys, status.ullTotalPhys};
    return true;
}

bool DiskSpace(const wchar_t* name, ce::FreeAndTotal& bytes) {
    ULARGE_INTEGER available{};
    ULARGE_INTEGER total{};
    ULARGE_INTEGER free{};
    if (!GetDiskFreeSpaceExW(name, &available, &total, &free)) return false;
    bytes = {free.QuadPart, total.QuadPart};
    return true;
}

// The desktop keeps its data on the system's drive.
bool ObjectStore(ce::FreeAndTotal& bytes) {
    wchar_t windows[MAX_PATH];
    const UINT length = GetWindowsDirectoryW(windows, MAX_PATH);
    if (length < 3 || length >= MAX_PATH) return false;
    windows[3] = L'\0';
    return DiskSpace(windows, bytes);
}

// Removable drives stand for storage cards.
bool StorageCard(int index, wchar_t (&name)[MAX_PATH]) {
    const DWORD drives = GetLogicalDrives();
    for (int letter = 0; letter < 26; ++letter) {
        if ((drives >> letter & 1) == 0) continue;
        wchar_t root[] = L"A:\\";
        root[0] = static_cast<wchar_t>(L'A' + letter);
        if (GetDriveTypeW(root) != DRIVE_REMOVABLE || index-- > 0) continue;
        std::wcscpy(name, root);
        return true;
    }
    return false;
}

}  // namespace

ce::StorageCalls ce::storageCalls = {ProgramMemory, ObjectStore, StorageCard, DiskSpace};

// Not the mode of the process: programs that are started would inherit that.
void ce::FailOnEmptyDrives() {
    SetThreadErrorMode(SEM_FAILCRITICALERRORS, nullptr);
}
