#pragma once

// Tells the files that cannot contain a pattern from those whose lines have to be read, at a tenth of the
// time that reading the lines takes. An occurrence is a run of the line's bytes, and between the bytes of a
// line a file has nothing but the carriage returns that the readers drop: where a file has no such run, no
// line of it can.

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
    // The first line stores nothing, so that not even a search of it takes place.
    NoLine,
    NoOccurrence,
    // Only the lines can tell.
    MayOccur,
};

// Reads the source up to the first place that makes it likely that the pattern occurs, or to the empty line
// at which a folding search ends. Tests choose smaller blocks, of two bytes at least.
[[nodiscard]] ContentVerdict JudgeContent(ByteSource& source, const ContentPattern& pattern,
                                          std::size_t blockSize = ByteSource::BlockSize);
