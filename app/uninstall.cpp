#include "app/uninstall.h"

#include "platform/handles.h"

bool HasSubKey(HKEY root, const wchar_t* path) {
    UniqueKey key;
    if (ce::RegOpenKeyExW(root, path, 0, KEY_READ, key.Receive()) != ERROR_SUCCESS) return false;
    wchar_t name[MAX_PATH];
    DWORD length = MAX_PATH;
    return RegEnumKeyExW(key.Get(), 0, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

LONG DeleteRegistryKey(HKEY root, const wchar_t* path) {
    const LONG error = ce::RegDeleteKeyW(root, path);
    // QUIRK: wrong-parameter-counts-as-removed
    return error == ERROR_INVALID_PARAMETER ? ERROR_SUCCESS : error;
}

bool RemoveRegistryKeys(HKEY root, const wchar_t* makerKey, const wchar_t* productKey) {
    if (DeleteRegistryKey(root, productKey) != ERROR_SUCCESS) return false;
    if (!HasSubKey(root, makerKey)) DeleteRegistryKey(root, makerKey);
    return true;
}
