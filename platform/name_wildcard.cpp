#include "platform/name_wildcard.h"

#include <cwctype>

#include "platform/system_types.h"

namespace {

// The system's own folding on the target, where the C library knows the letters of English only.
wchar_t UpperCase(wchar_t unit) {
    if (unit < 0x80) return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - (L'a' - L'A')) : unit;
#ifdef _WIN32
    // A single unit goes and comes back in the place of the pointer.
    return static_cast<wchar_t>(
        reinterpret_cast<ULONG_PTR>(CharUpperW(reinterpret_cast<wchar_t*>(static_cast<ULONG_PTR>(unit)))));
#else
    return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(unit)));
#endif
}

bool SameUnit(wchar_t one, wchar_t other) {
    return one == other || UpperCase(one) == UpperCase(other);
}

}  // namespace

bool NamesTheSame(const wchar_t* one, const wchar_t* other, std::size_t units) {
    for (std::size_t at = 0; at < units; ++at) {
        if (!SameUnit(one[at], other[at])) return false;
    }
    return true;
}

bool MatchesEveryName(const wchar_t* pattern) {
    if (pattern[0] != L'*') return false;
    // QUIRK: star-dot-star-is-every-name
    return pattern[1] == L'\0' || (pattern[1] == L'.' && pattern[2] == L'*' && pattern[3] == L'\0');
}

bool HasWildcard(const wchar_t* pattern) {
    for (; *pattern != L'\0'; ++pattern) {
        if (*pattern == L'*' || *pattern == L'?') return true;
    }
    return false;
}

bool MatchesWildcard(const wchar_t* name, const wchar_t* pattern) {
    if (MatchesEveryName(pattern)) return true;
    // Where to go on when the run of the last "*" has to take one unit more.
    const wchar_t* afterStar = nullptr;
    const wchar_t* runEnd = nullptr;
    while (*name != L'\0') {
        if (*pattern == L'*') {
            afterStar = ++pattern;
            runEnd = name;
        } else if (*pattern != L'\0' && (*pattern == L'?' || SameUnit(*name, *pattern))) {
            ++name;
            ++pattern;
        } else if (afterStar != nullptr) {
            pattern = afterStar;
            name = ++runEnd;
        } else {
            return false;
        }
    }
    while (*pattern == L'*')
        ++pattern;
    return *pattern == L'\0';
}
