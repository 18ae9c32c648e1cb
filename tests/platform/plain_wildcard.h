#pragma once

// The rule of wildcards as it is written: what MatchesWildcard is compared with.

#include <string>
#include <vector>

// The letters of English alone are folded.
[[nodiscard]] inline wchar_t FoldedPlainly(wchar_t unit) {
    return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - 32) : unit;
}

[[nodiscard]] inline bool MatchesPlainly(const std::wstring& name, const std::wstring& pattern) {
    if (pattern == L"*.*") return true;
    // Which beginnings of the name, by their length, the pattern matches up to a unit of it.
    std::vector<bool> matched(name.size() + 1, false);
    matched[0] = true;
    for (const wchar_t wanted : pattern) {
        std::vector<bool> next(name.size() + 1, false);
        for (std::size_t length = 0; length <= name.size(); ++length) {
            if (wanted == L'*') {
                next[length] = matched[length] || (length > 0 && next[length - 1]);
            } else if (length > 0 && matched[length - 1]) {
                next[length] = wanted == L'?' || FoldedPlainly(wanted) == FoldedPlainly(name[length - 1]);
            }
        }
        matched = next;
    }
    return matched[name.size()];
}
