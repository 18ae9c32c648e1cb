#include "made_up_registry.h"

#include <algorithm>

struct MadeUpKey {};

MadeUpRegistry& TheRegistry() {
    static MadeUpRegistry registry;
    return registry;
}

LONG RegOpenKeyExW(HKEY, const wchar_t*, DWORD, REGSAM access, HKEY* key) {
    static MadeUpKey theKey;
    MadeUpRegistry& registry = TheRegistry();
    if (registry.openError != ERROR_SUCCESS) return registry.openError;
    if (access == KEY_ALL_ACCESS && registry.fullAccessError != ERROR_SUCCESS)
        return registry.fullAccessError;
    ++registry.openKeys;
    *key = &theKey;
    return ERROR_SUCCESS;
}

LONG RegCreateKeyExW(HKEY root, const wchar_t* path, DWORD, wchar_t*, DWORD options, REGSAM access,
                     SECURITY_ATTRIBUTES*, HKEY* key, DWORD*) {
    return RegOpenKeyExW(root, path, options, access, key);
}

LONG RegCloseKey(HKEY) {
    --TheRegistry().openKeys;
    return ERROR_SUCCESS;
}

LONG RegQueryValueExW(HKEY, const wchar_t* name, DWORD*, DWORD* type, BYTE* data, DWORD* size) {
    const auto found = TheRegistry().values.find(name == nullptr ? L"" : name);
    if (found == TheRegistry().values.end()) return ERROR_FILE_NOT_FOUND;
    const MadeUpValue& value = found->second;
    if (type != nullptr) *type = value.type;
    const DWORD room = *size;
    *size = static_cast<DWORD>(value.data.size());
    if (value.data.size() > room) return ERROR_MORE_DATA;
    std::copy(value.data.begin(), value.data.end(), data);
    return ERROR_SUCCESS;
}

LONG RegSetValueExW(HKEY, const wchar_t* name, DWORD, DWORD type, const BYTE* data, DWORD size) {
    TheRegistry().values[name] = {type, std::vector<BYTE>(data, data + size)};
    return ERROR_SUCCESS;
}

LONG RegDeleteTreeW(HKEY, const wchar_t*) {
    TheRegistry().values.clear();
    return ERROR_SUCCESS;
}

int lstrcmpiW(const wchar_t* first, const wchar_t* second) {
    const auto folded = [](std::wstring text) {
        for (wchar_t& unit : text)
            if (unit >= L'A' && unit <= L'Z') unit = static_cast<wchar_t>(unit + 32);
        return text;
    };
    return folded(first).compare(folded(second));
}
