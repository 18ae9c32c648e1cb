#include "results/file_type_info.h"

#include <cwchar>

#include "base/registry_key.h"

namespace {

// QUIRK: type-value-named-default. Not the unnamed value.
constexpr const wchar_t* DefaultValue = L"Default";

constexpr DWORD TextBytes = 520;

// False when the key cannot be opened. A value that cannot be read leaves the text as it was.
bool ReadDefault(const std::wstring& path, std::wstring& text) {
    RegistryKey key(HKEY_CLASSES_ROOT);
    if (!key.Open(path.c_str())) return false;
    wchar_t buffer[TextBytes / sizeof(wchar_t)] = L"";
    if (key.QueryString(DefaultValue, buffer, TextBytes)) text = buffer;
    return true;
}

}  // namespace

void SplitIconLocation(const std::wstring& location, FileTypeInfo& info) {
    const std::size_t comma = location.rfind(L',');
    info.iconFile = location.substr(0, comma);
    info.iconNumber = comma != std::wstring::npos
                          ? static_cast<int>(std::wcstol(location.c_str() + comma + 1, nullptr, 10))
                          : 0;
}

FileTypeInfo ReadFileTypeInfo(const wchar_t* extension) {
    FileTypeInfo info;
    std::wstring typeKey;
    if (!ReadDefault(extension, typeKey)) return info;
    info.extensions = extension;
    info.typeKey = typeKey;
    // Without a type there is no key to open: its empty name would open the classes' root itself.
    if (typeKey.empty()) return info;
    if (!ReadDefault(typeKey, info.description)) return info;
    if (!ReadDefault(typeKey + L"\\Shell\\Open\\Command", info.openCommand)) return info;
    std::wstring iconLocation;
    if (ReadDefault(typeKey + L"\\DefaultIcon", iconLocation)) SplitIconLocation(iconLocation, info);
    return info;
}
