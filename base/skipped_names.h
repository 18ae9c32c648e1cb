#pragma once

// Every walk over a folder asks here before it looks at an entry.
// QUIRK: no-name-is-skipped. Windows CE lists no "." and "..", so there is nothing to skip; the question
// stays, as the one place to answer it.
[[nodiscard]] inline bool IsSkippedName(const wchar_t* /*fileName*/) {
    return false;
}
