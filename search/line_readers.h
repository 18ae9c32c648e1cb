#pragma once

// The two readers of a content search: a line as it stands, and a line in upper case. Both cut a long line
// into chunks by counting steps (one byte, or one double-byte character), and drop carriage returns.

#include "search/byte_reader.h"

// The size that a content search gives the readers.
constexpr int LineReaderSize = 4096;
// The folding reader may store two bytes at each of its size - 2 steps, and a NUL.
constexpr int LineBufferSize = 2 * (LineReaderSize - 2) + 1;
static_assert(LineBufferSize == 8189);

// The one line buffer, used again for every line of every file.
[[nodiscard]] char (&SharedLineBuffer())[LineBufferSize];

// Reads at most size - 1 bytes, up to a line feed, which is stored. The buffer holds at least size bytes and
// is terminated. Null when no byte was stored: at the end, and for a chunk of nothing but carriage returns.
[[nodiscard]] char* ReadLineExact(char* buffer, int size, ByteReader& reader);

// Reads at most size - 2 characters, up to a line feed, which is not stored, and stores them in upper case.
// The buffer holds at least 2 * (size - 2) + 1 bytes (one byte when size is 1 or 2) and is terminated. When
// doubleByteAware is set, a lead byte and the byte behind it are one character and stored unchanged. Null
// when no byte was stored: at the end, and for an empty line, at which a case-folding search stops.
[[nodiscard]] char* ReadLineUpper(char* buffer, int size, ByteReader& reader, bool doubleByteAware);
