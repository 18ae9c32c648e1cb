#pragma once

// Where a name holds the text that the user typed: units compared exactly, case and all.

// The first occurrence of the pattern in the text, or null. An empty pattern occurs nowhere. Rebuilds the
// shared shift table's entries for units, and reads them.
[[nodiscard]] const wchar_t* FindWide(const wchar_t* text, int textLength, const wchar_t* pattern,
                                      int patternLength);
