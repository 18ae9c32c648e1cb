#include "base/registry_key.h"

namespace {

LONG OpenKey(HKEY root, const wchar_t* path, UniqueKey& key) {
    return ce::RegOpenKeyExW(root, path, 0, KEY_ALL_ACCESS, key.Receive());
}

LONG CreateKey(HKEY root, const wchar_t* path, UniqueKey& key) {
    return ce::RegCreateKeyExW(root, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, key.Receive(), nullptr);
}

}  // namespace

bool RegistryKey::Open(const wchar_t* path) {
    return OpenKey(root_, path, key_) == ERROR_SUCCESS;
}

bool RegistryKey::Create(const wchar_t* path) {
    return CreateKey(root_, path, key_) == ERROR_SUCCESS;
}

bool RegistryKey::QueryString(const wchar_t* name, wchar_t* buffer, DWORD sizeInBytes) const {
    DWORD type = REG_NONE;
    DWORD size = sizeInBytes;
    if (ce::RegQueryValueExW(key_.Get(), name, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &size) !=
        ERROR_SUCCESS) {
        buffer[0] = L'\0';
        return false;
    }
    const bool isText = type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
    if (isText && size + sizeof(wchar_t) < sizeInBytes) buffer[size / sizeof(wchar_t)] = L'\0';
    // Whatever was stored, whoever reads the buffer finds a terminator in it.
    buffer[sizeInBytes / sizeof(wchar_t) - 1] = L'\0';
    return true;
}

LONG ReadRegistryDword(HKEY root, const wchar_t* path, const wchar_t* name, DWORD& value) {
    UniqueKey key;
    const LONG error = OpenKey(root, path, key);
    if (error != ERROR_SUCCESS) return error;
    DWORD size = sizeof value;
    return ce::RegQueryValueExW(key.Get(), name, nullptr, nullptr, reinterpret_cast<BYTE*>(&value), &size);
}

LONG WriteRegistryDword(HKEY root, const wchar_t* path, const wchar_t* name, DWORD value) {
    UniqueKey key;
    const LONG error = CreateKey(root, path, key);
    if (error != ERROR_SUCCESS) return error;
    return RegSetValueExW(key.Get(), name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value);
}
