#pragma once

// A file's bytes, one at a time for the line readers, fetched in blocks of 64 KB.

#include <cstddef>
#include <cstdint>
#include <cstdio>

class ByteReader {
  public:
    static constexpr std::size_t BlockSize = 65536;

    ByteReader();
    ByteReader(const ByteReader&) = delete;
    ByteReader& operator=(const ByteReader&) = delete;
    virtual ~ByteReader() = default;

    // The next byte, 0 to 255, or -1 at the end. Once the end was seen it stays the end.
    int Next() { return position != end ? *position++ : NextAfterBlock(); }

  protected:
    // Writes up to size bytes to the block and returns how many; 0 at the end and for a read error.
    virtual std::size_t Fill(unsigned char* block, std::size_t size) = 0;

  private:
    // A block that starts on a page is read up to three times as fast as one that does not.
    static constexpr std::size_t PageSize = 4096;

    int NextAfterBlock();

    bool ended = false;
    unsigned char* blockStart;
    const unsigned char* position;
    const unsigned char* end;
    // Not initialised: every search of a file would pay for it.
    unsigned char room[BlockSize + PageSize];
};

// Reads a file that the caller opened, in binary, and closes afterwards.
class FileByteReader final : public ByteReader {
  public:
    explicit FileByteReader(std::FILE* openFile) : file(openFile) {}

  protected:
    std::size_t Fill(unsigned char* block, std::size_t size) override;

  private:
    std::FILE* file;
};
