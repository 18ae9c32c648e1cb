// Names against wildcards, and the patterns that a search makes of a name and a type.

#include <cwchar>

#include "fuzz/fuzz_targets.h"
#include "fuzz/fuzz_texts.h"
#include "platform/name_wildcard.h"
#include "search/name_patterns.h"
#include "tests/platform/plain_wildcard.h"
#include "tests/support/asked_query.h"

namespace {

bool HasPlainWildcard(const std::wstring& text) {
    return text.find_first_of(L"*?") != std::wstring::npos;
}

void MatchAName(FuzzInput& input) {
    const std::size_t most = input.Byte() < 8 ? 259 : 24;
    const std::wstring pattern = SomeTextOf(input, L"aAbz[.*?*", most);
    const std::wstring name = SomeTextOf(input, L"aAbBz{.", most);
    const ExactText<wchar_t> exactName(name);
    const ExactText<wchar_t> exactPattern(pattern);
    Require(MatchesWildcard(exactName.Get(), exactPattern.Get()) == MatchesPlainly(name, pattern),
            "a name matches as by the plain rule");
    Require(HasWildcard(exactPattern.Get()) == HasPlainWildcard(pattern), "a wildcard is seen");
    Require(MatchesEveryName(exactPattern.Get()) == (pattern == L"*" || pattern == L"*.*"),
            "what matches every name is seen");
}

void CompareNames(FuzzInput& input) {
    const std::wstring one = SomeTextOf(input, L"aA[{@`zZ", 12);
    std::wstring other = SomeTextOf(input, L"aA[{@`zZ", 12);
    const std::size_t units = std::min(one.size(), other.size());
    bool same = true;
    for (std::size_t at = 0; at < units; ++at)
        same = same && FoldedPlainly(one[at]) == FoldedPlainly(other[at]);
    Require(NamesTheSame(ExactText<wchar_t>(one).Get(), ExactText<wchar_t>(other).Get(), units) == same,
            "names are the same as by the plain rule");
}

using Patterns = std::vector<std::wstring>;

// Each from its dot to the next one or the end, the last one first.
Patterns PatternsOfType(const std::wstring& extensions) {
    Patterns patterns;
    for (std::size_t dot = extensions.find(L'.'); dot != std::wstring::npos;) {
        const std::size_t next = extensions.find(L'.', dot + 1);
        patterns.insert(patterns.begin(), L'*' + extensions.substr(dot, next - dot));
        dot = next;
    }
    return patterns;
}

Patterns PatternsOf(const std::wstring& name, const std::wstring& extensions, bool byType) {
    if (byType) return PatternsOfType(extensions);
    return {HasPlainWildcard(name) ? name : L"*.*"};
}

Patterns TextsIn(ObjectList& list) {
    Patterns texts;
    for (ListObject* item = list.First(); item != nullptr; item = list.Next())
        texts.emplace_back(static_cast<StringObject*>(item)->Text());
    return texts;
}

void MakePatterns(FuzzInput& input) {
    AskedQuery asked;
    asked.typeFilter = input.Flag();
    asked.name = SomeTextOf(input, L"a.*?", 12);
    asked.extensions = SomeTextOf(input, L"ab.", 40);
    const SearchQuery query = asked;
    ObjectList list;
    const std::wstring substring = BuildNamePatterns(query, list);
    Require(TextsIn(list) == PatternsOf(asked.name, asked.extensions, asked.typeFilter),
            "the patterns are the plain ones");
    Require(substring == (asked.typeFilter || HasPlainWildcard(asked.name) ? L"" : asked.name),
            "the text to be contained is right");
}

}  // namespace

void FuzzNames(FuzzInput& input) {
    switch (input.Byte() % 4) {
        case 0:
            return MakePatterns(input);
        case 1:
            return CompareNames(input);
        default:
            return MatchAName(input);
    }
}
