#include "results/type_names.h"

#include <cwchar>
#include <utility>

#include "platform/windows_ce.h"
#include "results/file_type_table.h"

// Files of one registered type, or else of one extension, share a name; a file without an extension has the
// empty key. No extension holds a separator, so the other keys are none of an extension's.
std::wstring TypeNames::KeyOf(const wchar_t* fullPath, DWORD attributes) const {
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return L"\\";
    const wchar_t* name = std::wcsrchr(fullPath, L'\\');
    const wchar_t* extension = std::wcsrchr(name != nullptr ? name : fullPath, L'.');
    if (extension == nullptr) return {};
    if (const wchar_t* typeKey = types != nullptr ? types->TypeKeyOf(extension) : L""; typeKey[0] != L'\0') {
        return std::wstring(L"\\") + typeKey;
    }
    std::wstring key = extension;
    CharLowerBuffW(key.data(), static_cast<DWORD>(key.size()));
    return key;
}

const wchar_t* TypeNames::Of(const wchar_t* fullPath, DWORD attributes) {
    std::wstring key = KeyOf(fullPath, attributes);
    auto known = names.find(key);
    if (known == names.end()) {
        SHFILEINFOW info{};
        if (ce::SHGetFileInfo(fullPath, 0, &info, sizeof info, SHGFI_TYPENAME) == 0) return L"";
        known = names.emplace(std::move(key), info.szTypeName).first;
    }
    return known->second.c_str();
}
