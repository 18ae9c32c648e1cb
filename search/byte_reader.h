#pragma once

// A source's bytes, one at a time for the line readers, fetched in blocks of 64 KB.

#include <cstdint>

#include "search/byte_source.h"

class ByteReader {
  public:
    // The source lives as long as its reader.
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
