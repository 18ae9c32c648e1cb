#include "platform/desktop/system_path.h"

namespace {

// The folder in which a path starts that does not say so itself; empty when it cannot be told.
void StartOf(const wchar_t* path, wchar_t (&base)[MAX_PATH]) {
    DWORD units = 0;
    if (path[0] != L'\0' && path[1] == L':') {
        const wchar_t onDrive[] = {path[0], L':', L'.', L'\0'};
        units = GetFullPathNameW(onDrive, MAX_PATH, base, nullptr);
    } else {
        units = GetCurrentDirectoryW(MAX_PATH, base);
    }
    if (units >= MAX_PATH) base[0] = L'\0';
}

}  // namespace

SystemPath::SystemPath(const wchar_t* path) {
    wchar_t base[MAX_PATH] = L"";
    if (!IsAbsolutePath(path)) StartOf(path, base);
    fits_ = LiteralPath(text_, path, base);
    if (!fits_) SetLastError(ERROR_FILENAME_EXCED_RANGE);
}
