#include "search/name_patterns.h"

#include <cstddef>
#include <cwchar>
#include <new>

namespace {

void AppendPattern(ObjectList& patterns, StringObject* pattern) {
    // QUIRK: null-pattern-ends-the-list. A pattern that could not be allocated is appended as a null item.
    if (!patterns.Append(pattern)) delete pattern;
}

// "*" followed by the extension.
StringObject* ExtensionPattern(const wchar_t* extension) {
    const std::size_t length = std::wcslen(extension);
    auto* const text = new (std::nothrow) wchar_t[length + 2];
    if (text == nullptr) return nullptr;
    text[0] = L'*';
    std::wmemcpy(text + 1, extension, length + 1);
    StringObject* const pattern = StringObject::Create(text);
    delete[] text;
    return pattern;
}

}  // namespace

const wchar_t* BuildNamePatterns(const SearchConditions& conditions, const wchar_t* nameText,
                                 wchar_t* extensions, ObjectList& patterns) {
    constexpr const wchar_t* NoSubstring = L"";
    // QUIRK: type-ignores-name. The name text is not looked at here.
    if (conditions.Has(SearchConditions::TypeFilter)) {
        // QUIRK: last-extension-first. QUIRK: type-without-extension-finds-nothing.
        while (wchar_t* const dot = std::wcsrchr(extensions, L'.')) {
            AppendPattern(patterns, ExtensionPattern(dot));
            *dot = L'\0';
        }
        return NoSubstring;
    }
    if (std::wcspbrk(nameText, L"*?") != nullptr) {
        // QUIRK: patterns-are-not-split
        AppendPattern(patterns, StringObject::Create(nameText));
        return NoSubstring;
    }
    AppendPattern(patterns, StringObject::Create(L"*.*"));
    // QUIRK: plain-name-minds-case. The substring is compared exactly, a pattern is not.
    return nameText;
}
