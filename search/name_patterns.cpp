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
StringObject* ExtensionPattern(const wchar_t* extension, std::size_t length) {
    auto* const text = new (std::nothrow) wchar_t[length + 2];
    if (text == nullptr) return nullptr;
    text[0] = L'*';
    std::wmemcpy(text + 1, extension, length);
    text[length + 1] = L'\0';
    StringObject* const pattern = StringObject::Create(text);
    delete[] text;
    return pattern;
}

// QUIRK: last-extension-first. QUIRK: type-without-extension-finds-nothing.
void AppendExtensionPatterns(ObjectList& patterns, const wchar_t* extensions) {
    const wchar_t* end = extensions + std::wcslen(extensions);
    for (const wchar_t* at = end; at != extensions;) {
        if (*--at != L'.') continue;
        AppendPattern(patterns, ExtensionPattern(at, static_cast<std::size_t>(end - at)));
        end = at;
    }
}

}  // namespace

const wchar_t* BuildNamePatterns(const SearchQuery& query, ObjectList& patterns) {
    constexpr const wchar_t* NoSubstring = L"";
    // QUIRK: type-ignores-name. The name is not looked at here.
    if (query.typeFilter) {
        AppendExtensionPatterns(patterns, query.extensions);
        return NoSubstring;
    }
    if (std::wcspbrk(query.name, L"*?") != nullptr) {
        // QUIRK: patterns-are-not-split
        AppendPattern(patterns, StringObject::Create(query.name));
        return NoSubstring;
    }
    AppendPattern(patterns, StringObject::Create(L"*.*"));
    // QUIRK: plain-name-minds-case. The substring is compared exactly, a pattern is not.
    return query.name;
}
