#include "search/line_readers.h"

#include "search/double_byte_text.h"

namespace {

constexpr int EndOfFile = -1;
constexpr int CarriageReturn = 13;
constexpr int LineFeed = 10;

char sharedLine[LineBufferSize];

// Terminates the line; returns null if nothing was stored in it.
char* FinishLine(char* buffer, int size, int stored) {
    if (size <= 0) return nullptr;
    buffer[stored] = '\0';
    return stored > 0 ? buffer : nullptr;
}

}  // namespace

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

char (&SharedLineBuffer())[LineBufferSize] {
    return sharedLine;
}

char* ReadLineExact(char* buffer, int size, ByteReader& reader) {
    int stored = 0;
    // QUIRK: long-lines-are-cut
    for (int step = 0; step < size - 1; ++step) {
        const int byte = reader.Next();
        if (byte == EndOfFile) break;
        // QUIRK: dropped-carriage-return-counts. A chunk of nothing but these ends the scan of the file.
        if (byte == CarriageReturn) continue;
        buffer[stored++] = static_cast<char>(byte);
        if (byte == LineFeed) break;
    }
    return FinishLine(buffer, size, stored);
}

char* ReadLineUpper(char* buffer, int size, ByteReader& reader, bool doubleByteAware) {
    int stored = 0;
    for (int step = 0; step < size - 2; ++step) {
        const int next = reader.Next();
        // QUIRK: folding-stops-at-empty-line. The line feed is not stored, so such a line stores nothing.
        if (next == EndOfFile || next == LineFeed) break;
        if (next == CarriageReturn) continue;
        const auto byte = static_cast<unsigned char>(next);
        if (doubleByteAware && IsLeadByte(byte)) {
            const int trail = reader.Next();
            // QUIRK: lead-byte-at-the-end-is-lost
            if (trail == EndOfFile) break;
            buffer[stored++] = static_cast<char>(byte);
            buffer[stored++] = static_cast<char>(trail);
        } else {
            buffer[stored++] = static_cast<char>(UpperCaseByte(byte));
        }
    }
    return FinishLine(buffer, size, stored);
}
