#pragma once

// File names against wildcard patterns and against each other, by the handheld's rule.

#include <cstddef>

// Whether the name matches: "*" is any run of units, also none, "?" is exactly one unit, letters are compared
// without regard to case, and "*.*" matches every name.
[[nodiscard]] bool MatchesWildcard(const wchar_t* name, const wchar_t* pattern);

// Whether the pattern is "*" or "*.*".
[[nodiscard]] bool MatchesEveryName(const wchar_t* pattern);

// Whether the pattern has a "*" or a "?" in it.
[[nodiscard]] bool HasWildcard(const wchar_t* pattern);

// Whether the first units of both texts, none of which may end before, name the same files: the file system
// tells no letters of any script apart by their case.
[[nodiscard]] bool NamesTheSame(const wchar_t* one, const wchar_t* other, std::size_t units);
