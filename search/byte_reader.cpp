#include "search/byte_reader.h"

// The room behind the page's start stays uninitialised on purpose.
ByteReader::ByteReader()  // NOLINT(cppcoreguidelines-pro-type-member-init)
    : blockStart(room + (PageSize - reinterpret_cast<std::uintptr_t>(room) % PageSize)),
      position(blockStart),
      end(blockStart) {}

int ByteReader::NextAfterBlock() {
    if (ended) return -1;
    const std::size_t filled = Fill(blockStart, BlockSize);
    position = blockStart;
    end = blockStart + filled;
    if (filled == 0) {
        ended = true;
        return -1;
    }
    return *position++;
}

std::size_t FileByteReader::Fill(unsigned char* block, std::size_t size) {
    return std::fread(block, 1, size, file);
}
