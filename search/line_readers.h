#pragma once

// How a content search reads: bytes in blocks from a source, one at a time from the blocks, line by line from
// the bytes.

#include <cstddef>
#include <cstdint>

// Where bytes come from, block by block: a file, or a test's memory.
class ByteSource {
  public:
    static constexpr std::size_t BlockSize = 65536;
    // A block that starts on a page is read up to three times as fast as one that does not.
    static constexpr std::size_t PageSize = 4096;

    virtual ~ByteSource() = default;

    // Writes up to size bytes to the block and returns how many; 0 at the end and for a read error.
    virtual std::size_t Fill(unsigned char* block, std::size_t size) = 0;
};

// A source's bytes, one at a time, fetched in blocks of 64 KB.
class ByteReader {
  public:
    // The source must outlive the reader.
    explicit ByteReader(ByteSource& byteSource);
    ByteReader(const ByteReader&) = delete;
    ByteReader& operator=(const ByteReader&) = delete;

    // The next byte, 0 to 255, or -1 at the end. Once the end was seen it stays the end.
    int Next() { return position_ != end_ ? *position_++ : NextAfterBlock(); }

  private:
    int NextAfterBlock();

    ByteSource& source_;
    bool ended_ = false;
    unsigned char* blockStart_;
    const unsigned char* position_;
    const unsigned char* end_;
    // Not initialised: every search of a file would pay for it.
    unsigned char room_[ByteSource::BlockSize + ByteSource::PageSize];
};

// The two readers of a content search: a line as it stands, and a line in upper case. Both cut a long line
// into chunks by counting steps (one byte, or one double-byte character), and drop carriage returns.

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
