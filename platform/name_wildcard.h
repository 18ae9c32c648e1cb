#pragma once

// File names against wildcard patterns, by the handheld's rule.

// Whether the name matches: "*" is any run of units, also none, "?" is exactly one unit, letters are compared
// without regard to case, and "*.*" matches every name.
[[nodiscard]] bool MatchesWildcard(const wchar_t* name, const wchar_t* pattern);

// Whether the pattern is "*" or "*.*".
[[nodiscard]] bool MatchesEveryName(const wchar_t* pattern);

// Whether the pattern has a "*" or a "?" in it.
[[nodiscard]] bool HasWildcard(const wchar_t* pattern);
