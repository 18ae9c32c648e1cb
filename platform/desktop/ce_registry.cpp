#include "platform/ce_registry.h"

namespace ce {

LONG RegOpenKeyExW(HKEY root, const wchar_t* path, DWORD options, REGSAM access, HKEY* key) {
    const LONG result = ::RegOpenKeyExW(root, path, options, access, key);
    if (result != ERROR_ACCESS_DENIED) return result;
    return ::RegOpenKeyExW(root, path, options, KEY_READ, key);
}

LONG RegCreateKeyExW(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* className, DWORD options,
                     REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* key, DWORD* disposition) {
    return ::RegCreateKeyExW(root, path, reserved, className, options, access, security, key, disposition);
}

LONG RegQueryValueExW(HKEY key, const wchar_t* name, DWORD* reserved, DWORD* type, BYTE* data, DWORD* size) {
    const LONG result = ::RegQueryValueExW(key, name, reserved, type, data, size);
    const bool missing = result == ERROR_FILE_NOT_FOUND;
    if (!missing || name == nullptr || lstrcmpiW(name, L"Default") != 0) return result;
    return ::RegQueryValueExW(key, nullptr, reserved, type, data, size);
}

LONG RegDeleteKeyW(HKEY root, const wchar_t* path) {
    // The tree call would take an empty path as "everything below the root".
    if (path == nullptr || path[0] == L'\0') return ERROR_INVALID_PARAMETER;
    return ::RegDeleteTreeW(root, path);
}

}  // namespace ce
