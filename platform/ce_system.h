#pragma once

// What start-up and the clock ask the system, and the device's memory: program memory, the object store and
// storage cards. Every answer can be replaced by a test.

#include <cstdint>

#include "platform/system_types.h"

namespace ce {

struct SystemCalls {
    int (*getSystemMetrics)(int index);
    LANGID (*getSystemDefaultLangId)();
    HMODULE (*loadLibrary)(const wchar_t* name);
    BOOL (*freeLibrary)(HMODULE library);
    FARPROC (*getProcAddress)(HMODULE library, const wchar_t* name);
    void (*getSystemTime)(SYSTEMTIME* now);
    BOOL (*localFileTimeToFileTime)(const FILETIME* local, FILETIME* utc);
    BOOL (*fileTimeToLocalFileTime)(const FILETIME* utc, FILETIME* local);
};
extern SystemCalls systemCalls;

inline int GetSystemMetrics(int index) {
    return systemCalls.getSystemMetrics(index);
}
inline LANGID GetSystemDefaultLangID() {
    return systemCalls.getSystemDefaultLangId();
}
// Looks in the program's own folder and the system's, never in the current folder.
inline HMODULE LoadLibraryW(const wchar_t* name) {
    return systemCalls.loadLibrary(name);
}
inline BOOL FreeLibrary(HMODULE library) {
    return systemCalls.freeLibrary(library);
}
inline FARPROC GetProcAddressW(HMODULE library, const wchar_t* name) {
    return systemCalls.getProcAddress(library, name);
}
inline void GetSystemTime(SYSTEMTIME* now) {
    systemCalls.getSystemTime(now);
}
inline BOOL LocalFileTimeToFileTime(const FILETIME* local, FILETIME* utc) {
    return systemCalls.localFileTimeToFileTime(local, utc);
}
inline BOOL FileTimeToLocalFileTime(const FILETIME* utc, FILETIME* local) {
    return systemCalls.fileTimeToLocalFileTime(utc, local);
}

// Milliseconds since the system started. Unlike those of GetTickCount they never begin at 0 again.
[[nodiscard]] ULONGLONG GetTickCount64();

// The bytes of a resource, which stay as long as its module is loaded; null if there is none of that name and
// type. The handheld's LoadResource answers them; the desktop's answers a handle.
[[nodiscard]] const void* ResourceBytes(HINSTANCE module, const wchar_t* name, const wchar_t* type);

// Counts of bytes.
struct FreeAndTotal {
    std::uint64_t free = 0;
    std::uint64_t total = 0;
};

struct StorageCalls {
    bool (*programMemory)(FreeAndTotal& bytes);
    bool (*objectStore)(FreeAndTotal& bytes);
    // The (index + 1)-th storage card's name, as the enumeration returns it; false when there are fewer.
    bool (*storageCard)(int index, wchar_t (&name)[MAX_PATH]);
    bool (*diskSpace)(const wchar_t* name, FreeAndTotal& bytes);
};
extern StorageCalls storageCalls;

// The desktop asks for a disk where a drive is empty. From here on the calls of this thread fail instead, as
// they do on a handheld.
void SuppressDiskPrompts();

}  // namespace ce
