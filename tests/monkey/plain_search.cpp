#include "tests/monkey/plain_search.h"

#include <algorithm>
#include <cctype>

namespace {

bool FitsWildcards(const wchar_t* pattern, const wchar_t* name) {
    if (*pattern == L'\0') return *name == L'\0';
    if (*pattern == L'*')
        return FitsWildcards(pattern + 1, name) || (*name != L'\0' && FitsWildcards(pattern, name + 1));
    return *name != L'\0' && (*pattern == L'?' || *pattern == *name) && FitsWildcards(pattern + 1, name + 1);
}

bool FitsName(const std::wstring& name, const std::wstring& asked) {
    if (asked.find_first_of(L"*?") == std::wstring::npos) return name.find(asked) != std::wstring::npos;
    return asked == L"*.*" || FitsWildcards(LowerCase(asked).c_str(), LowerCase(name).c_str());
}

std::string UpperCase(std::string text) {
    for (char& byte : text)
        byte = static_cast<char>(std::toupper(static_cast<unsigned char>(byte)));
    return text;
}

bool IsText(char byte) {
    return (byte >= ' ' && byte < 0x7F) || byte == '\r' || byte == '\n';
}

// None of the device's files has a line end in a text that is looked for.
bool FitsContent(const DeviceEntry& entry, const PlainConditions& conditions) {
    if (conditions.contains.empty()) return true;
    if (entry.folder) return false;
    const std::string asked(conditions.contains.begin(), conditions.contains.end());
    if (conditions.matchCase) return entry.content.find(asked) != std::string::npos;
    return UpperCase(entry.content).find(UpperCase(asked)) != std::string::npos;
}

bool FitsPlace(const std::wstring& path, const PlainConditions& conditions) {
    const std::wstring location = LowerCase(conditions.location);
    const std::wstring folder = location == L"\\" || location.empty() ? L"" : location;
    if (path.size() <= folder.size() || path.compare(0, folder.size(), folder) != 0) return false;
    if (path[folder.size()] != L'\\') return false;
    return conditions.subFolders || path.find(L'\\', folder.size() + 1) == std::wstring::npos;
}

bool IsPrintable(wchar_t unit) {
    return unit >= L' ' && unit < 0x7F;
}

}  // namespace

bool IsPlain(const PlainConditions& conditions) {
    const std::wstring& location = conditions.location;
    const bool known = location.empty() || std::find(Device::Folders().begin(), Device::Folders().end(),
                                                     location) != Device::Folders().end();
    return known && conditions.name.size() < 100 && conditions.contains.size() < 100 &&
           std::all_of(conditions.contains.begin(), conditions.contains.end(), IsPrintable) &&
           conditions.name.find_first_of(L"\\/.\"<>|") == std::wstring::npos;
}

std::vector<std::wstring> PlainSearch(const DeviceEntries& entries, const PlainConditions& conditions) {
    std::vector<std::wstring> found;
    for (const auto& [path, entry] : entries) {
        const std::wstring name = entry.path.substr(entry.path.find_last_of(L'\\') + 1);
        if (FitsPlace(path, conditions) && FitsName(name, conditions.name) && FitsContent(entry, conditions))
            found.push_back(path);
    }
    std::sort(found.begin(), found.end());
    return found;
}

bool IsPlainContent(const DeviceEntry& entry) {
    return std::all_of(entry.content.begin(), entry.content.end(), IsText);
}
