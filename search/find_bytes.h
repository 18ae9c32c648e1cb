#pragma once

// Where a line of a file holds the bytes that are looked for.

// The first occurrence of the pattern that the shared shift table's entries lead to, or null. An empty
// pattern occurs nowhere. After a byte 0x80 to 0xFF that is not in the pattern, an entry left by an earlier
// call of this or of FindWide may lead past an occurrence (shared-shift-table).
[[nodiscard]] const char* FindBytes(const char* text, int textLength, const char* pattern, int patternLength);

// Leaves the shared table as every FindBytes of the pattern leaves it, whatever the text.
void PrepareFindBytes(const char* pattern, int patternLength);
