#pragma once

// Bytes from memory for the line readers, handed out in blocks of a size that the test chooses.

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include "search/line_readers.h"

class MemoryByteSource : public ByteSource {
  public:
    explicit MemoryByteSource(std::string content, std::size_t mostPerBlock = BlockSize)
        : bytes_(std::move(content)), most_(mostPerBlock) {}

    std::size_t Fill(unsigned char* block, std::size_t size) override {
        ++fills_;
        const std::size_t count = std::min({size, most_, bytes_.size() - given_});
        std::memcpy(block, bytes_.data() + given_, count);
        given_ += count;
        return count;
    }

    int FillCount() const { return fills_; }

  private:
    std::string bytes_;
    std::size_t most_;
    std::size_t given_ = 0;
    int fills_ = 0;
};

// The source comes first, so that it is there when the reader is made.
class MemoryByteReader final : public MemoryByteSource, public ByteReader {
  public:
    explicit MemoryByteReader(std::string content, std::size_t mostPerBlock = BlockSize)
        : MemoryByteSource(std::move(content), mostPerBlock),
          ByteReader(static_cast<MemoryByteSource&>(*this)) {}
};
