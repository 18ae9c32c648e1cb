#include "search/byte_reader.h"

// The room behind the page's start stays uninitialised on purpose.
ByteReader::ByteReader(ByteSource& byteSource)  // NOLINT(cppcoreguidelines-pro-type-member-init)
    : source(byteSource),
      blockStart(room +
                 (ByteSource::PageSize - reinterpret_cast<std::uintptr_t>(room) % ByteSource::PageSize)),
      position(blockStart),
      end(blockStart) {}

int ByteReader::NextAfterBlock() {
    if (ended) return -1;
    const std::size_t filled = source.Fill(blockStart, ByteSource::BlockSize);
    position = blockStart;
    end = blockStart + filled;
    if (filled == 0) {
        ended = true;
        return -1;
    }
    return *position++;
}
