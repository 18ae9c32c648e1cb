#include "search/byte_reader.h"

// The room behind the page's start stays uninitialised.
ByteReader::ByteReader(ByteSource& byteSource)  // NOLINT(cppcoreguidelines-pro-type-member-init)
    : source_(byteSource),
      blockStart_(room_ +
                  (ByteSource::PageSize - reinterpret_cast<std::uintptr_t>(room_) % ByteSource::PageSize)),
      position_(blockStart_),
      end_(blockStart_) {}

int ByteReader::NextAfterBlock() {
    if (ended_) return -1;
    const std::size_t filled = source_.Fill(blockStart_, ByteSource::BlockSize);
    position_ = blockStart_;
    end_ = blockStart_ + filled;
    if (filled == 0) {
        ended_ = true;
        return -1;
    }
    return *position_++;
}
