#pragma once

// Bytes from memory for the line readers, handed out in blocks of a size that the test chooses.

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include "search/byte_reader.h"

class MemoryByteSource : public ByteSource {
  public:
    explicit MemoryByteSource(std::string content, std::size_t mostPerBlock = BlockSize)
        : bytes(std::move(content)), most(mostPerBlock) {}

    std::size_t Fill(unsigned char* block, std::size_t size) override {
        ++fills;
        const std::size_t count = std::min({size, most, bytes.size() - given});
        std::memcpy(block, bytes.data() + given, count);
        given += count;
        return count;
    }

    int FillCount() const { return fills; }

  private:
    std::string bytes;
    std::size_t most;
    std::size_t given = 0;
    int fills = 0;
};

// The source comes first, so that it is there when the reader is made.
class MemoryByteReader final : public MemoryByteSource, public ByteReader {
  public:
    explicit MemoryByteReader(std::string content, std::size_t mostPerBlock = BlockSize)
        : MemoryByteSource(std::move(content), mostPerBlock),
          ByteReader(static_cast<MemoryByteSource&>(*this)) {}
};
