#pragma once

// Where bytes come from, block by block: a file, or a test's memory.

#include <cstddef>

class ByteSource {
  public:
    static constexpr std::size_t BlockSize = 65536;
    // A block that starts on a page is read up to three times as fast as one that does not.
    static constexpr std::size_t PageSize = 4096;

    virtual ~ByteSource() = default;

    // Writes up to size bytes to the block and returns how many; 0 at the end and for a read error.
    virtual std::size_t Fill(unsigned char* block, std::size_t size) = 0;
};
