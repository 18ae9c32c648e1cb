#include "platform/ce_system.h"

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

}  // namespace

ce::SystemCalls ce::systemCalls = {
    SystemMetric, DefaultLanguage, LoadFromOwnOrSystemFolder, Release, RoutineByName, TimeNow,
    LocalToUtc,   UtcToLocal,
};
