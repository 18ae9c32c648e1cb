#include "results/type_names.h"

#include <algorithm>
#include <cwchar>
#include <utility>

#include "platform/windows_ce.h"

namespace {

// A file without an extension has the empty key. No extension holds a separator, so the folders' key is none
// of an extension's.
std::wstring KeyOf(const wchar_t* fullPath, DWORD attributes) {
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return L"\\";
    const wchar_t* const name = std::wcsrchr(fullPath, L'\\');
    const wchar_t* const extension = std::wcsrchr(name != nullptr ? name : fullPath, L'.');
    return extension != nullptr ? extension : L"";
}

}  // namespace

const wchar_t* TypeNames::Of(const wchar_t* fullPath, DWORD attributes) {
    std::wstring key = KeyOf(fullPath, attributes);
    auto place =
        std::lower_bound(names_.begin(), names_.end(), key,
                         [](const Name& name, const std::wstring& asked) { return name.key < asked; });
    if (place == names_.end() || place->key != key) {
        SHFILEINFOW info{};
        if (ce::SHGetFileInfo(fullPath, 0, &info, sizeof info, SHGFI_TYPENAME) == 0) return L"";
        place = names_.insert(place, {std::move(key), info.szTypeName});
    }
    return place->text.c_str();
}
