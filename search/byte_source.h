#pragma once

// Where bytes come from, block by block: a file, or a test's memory.

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include <cstddef>
#include <cstdio>

class ByteSource {
  public:
    static constexpr std::size_t BlockSize = 65536;
    // A block that starts on a page is read up to three times as fast as one that does not.
    static constexpr std::size_t PageSize = 4096;

    virtual ~ByteSource() = default;

    // Writes up to size bytes to the block and returns how many; 0 at the end and for a read error.
    virtual std::size_t Fill(unsigned char* block, std::size_t size) = 0;
};

// Reads a file on a disk that the caller opened, in binary, and closes afterwards. Only there a read that
// comes short is the last: the C library would ask again, and so would the reader, which small files feel.
class FileByteSource final : public ByteSource {
  public:
    explicit FileByteSource(std::FILE* openFile) : file_(openFile) {}

    std::size_t Fill(unsigned char* block, std::size_t size) override {
        if (ended_) return 0;
        const long long count = Read(block, size);
        ended_ = count < static_cast<long long>(size);
        return count > 0 ? static_cast<std::size_t>(count) : 0;
    }

    // Begins again at the file's beginning.
    void Rewind() {
        std::rewind(file_);
        ended_ = false;
    }

  private:
    long long Read(unsigned char* block, std::size_t size) {
#ifdef _WIN32
        return _read(_fileno(file_), block, static_cast<unsigned>(size));
#else
        return read(fileno(file_), block, size);
#endif
    }

    std::FILE* file_;
    bool ended_ = false;
};
