#include "platform/ce_system.h"

#include <cwchar>

namespace {

int SystemMetric(int index) {
    return GetSystemMetrics(index);
}

LANGID DefaultLanguage() {
    return GetSystemDefaultLangID();
}

// Never from the current folder, which may be any folder that the user looks at.
HMODULE LoadFromOwnOrSystemFolder(const wchar_t* name) {
    return LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
}

BOOL Release(HMODULE library) {
    return FreeLibrary(library);
}

// Names of routines are ASCII; a number (an ordinal) is passed on as it is.
FARPROC RoutineByName(HMODULE library, const wchar_t* name) {
    if (IS_INTRESOURCE(name)) return GetProcAddress(library, reinterpret_cast<const char*>(name));
    constexpr int Capacity = 128;
    char narrow[Capacity];
    int length = 0;
    while (name[length] != L'\0') {
        if (length == Capacity - 1 || name[length] > 0x7F) {
            SetLastError(ERROR_PROC_NOT_FOUND);
            return nullptr;
        }
        narrow[length] = static_cast<char>(name[length]);
        ++length;
    }
    narrow[length] = '\0';
    return GetProcAddress(library, narrow);
}

void TimeNow(SYSTEMTIME* now) {
    GetSystemTime(now);
}

BOOL LocalToUtc(const FILETIME* local, FILETIME* utc) {
    return LocalFileTimeToFileTime(local, utc);
}

BOOL UtcToLocal(const FILETIME* utc, FILETIME* local) {
    return FileTimeToLocalFileTime(utc, local);
}

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

ce::SystemCalls ce::systemCalls = {
    SystemMetric, DefaultLanguage, LoadFromOwnOrSystemFolder, Release, RoutineByName, TimeNow,
    LocalToUtc,   UtcToLocal,
};

ce::StorageCalls ce::storageCalls = {ProgramMemory, ObjectStore, StorageCard, DiskSpace};

// Not the mode of the process: programs that are started would inherit that.
void ce::SuppressDiskPrompts() {
    SetThreadErrorMode(SEM_FAILCRITICALERRORS, nullptr);
}

ULONGLONG ce::GetTickCount64() {
    return ::GetTickCount64();
}

const void* ce::ResourceBytes(HINSTANCE module, const wchar_t* name, const wchar_t* type) {
    const HRSRC place = FindResourceW(module, name, type);
    const HGLOBAL resource = place != nullptr ? LoadResource(module, place) : nullptr;
    return resource != nullptr ? LockResource(resource) : nullptr;
}
