#include "base/registry_key.h"

bool RegistryKey::Open(const wchar_t* path) {
    Close();
    if (ce::RegOpenKeyExW(root_, path, 0, KEY_ALL_ACCESS, &key_) == ERROR_SUCCESS) return true;
    key_ = nullptr;
    return false;
}

bool RegistryKey::Create(const wchar_t* path) {
    Close();
    const LONG error =
        ce::RegCreateKeyExW(root_, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr);
    if (error == ERROR_SUCCESS) return true;
    key_ = nullptr;
    return false;
}

void RegistryKey::Close() {
    if (key_ != nullptr) RegCloseKey(key_);
    key_ = nullptr;
}

bool RegistryKey::QueryString(const wchar_t* name, wchar_t* buffer, DWORD sizeInBytes) const {
    DWORD type = REG_NONE;
    DWORD size = sizeInBytes;
    if (ce::RegQueryValueExW(key_, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &size) !=
        ERROR_SUCCESS) {
        buffer[0] = L'\0';
        return false;
    }
    const bool isText = type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
    if (isText && size + sizeof(wchar_t) < sizeInBytes) buffer[size / sizeof(wchar_t)] = L'\0';
    // Whatever was stored, a reader of the buffer finds an end in it.
    buffer[sizeInBytes / sizeof(wchar_t) - 1] = L'\0';
    return true;
}

LONG ReadRegistryDword(HKEY root, const wchar_t* path, const wchar_t* name, DWORD& value) {
    HKEY key = nullptr;
    LONG error = ce::RegOpenKeyExW(root, path, 0, KEY_ALL_ACCESS, &key);
    if (error != ERROR_SUCCESS) return error;
    DWORD size = sizeof value;
    error = ce::RegQueryValueExW(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(&value), &size);
    RegCloseKey(key);
    return error;
}

LONG WriteRegistryDword(HKEY root, const wchar_t* path, const wchar_t* name, DWORD value) {
    HKEY key = nullptr;
    LONG error = ce::RegCreateKeyExW(root, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
    if (error != ERROR_SUCCESS) return error;
    error = RegSetValueExW(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value);
    RegCloseKey(key);
    return error;
}
