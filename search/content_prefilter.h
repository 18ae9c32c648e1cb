#pragma once

// Rules out most files that do not contain a pattern, in a tenth of the time that reading their lines takes.
// An occurrence is a run of a line's bytes, and between the bytes of a line a file has nothing but the
// carriage returns that the line readers drop. So a file without such a run has no line with the pattern.

#include <cstddef>

#include "search/line_readers.h"

struct ContentPattern {
    const char* bytes;
    std::size_t length;
    // How the lines are read: in upper case, and knowing characters of two bytes.
    bool folding;
    bool doubleByteAware;
};

enum class ContentVerdict {
    // The first line stores nothing, so not even that line is searched.
    NoLine,
    NoOccurrence,
    // Only the lines can tell.
    MayOccur,
};

// Larger blocks than the line readers have: reading costs a tenth less in them.
constexpr std::size_t FilterBlockSize = 4 * ByteSource::BlockSize;

// Reads the source up to the first place that makes it likely that the pattern occurs, or to the empty line
// at which a folding search ends. Tests choose smaller blocks, of two bytes at least.
[[nodiscard]] ContentVerdict JudgeContent(ByteSource& source, const ContentPattern& pattern,
                                          std::size_t blockSize = FilterBlockSize);
