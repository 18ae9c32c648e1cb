// Both line readers against the plain ones: the same lines out of the same bytes, whatever the size of the
// chunks and of the blocks in which the bytes come, and nothing written behind a line's end.

#include "search/line_readers.h"
#include "fuzz/fuzz_targets.h"
#include "tests/search/memory_byte_reader.h"
#include "tests/search/plain_line_readers.h"

namespace {

constexpr char Untouched = '\x5A';

// Bytes as they stand, with runs of one byte by a mark.
std::string SomeFile(FuzzInput& input) {
    constexpr std::uint8_t Run = 0xF7;
    std::string file;
    while (!input.IsUsedUp() && file.size() < 20000) {
        const std::uint8_t byte = input.Byte();
        if (byte == Run) {
            const std::size_t count = input.UpTo(300);
            file += std::string(count, static_cast<char>(input.Byte()));
        } else {
            file += static_cast<char>(byte);
        }
    }
    return file;
}

void RequireSameLine(const char* line, const std::vector<char>& buffer, const std::string& plain) {
    Require((line == nullptr) == plain.empty(), "a line that stores nothing is none");
    Require(line == nullptr || line == buffer.data(), "the line stands in the buffer");
    Require(std::equal(plain.begin(), plain.end(), buffer.begin()), "the line is the plain one");
    Require(buffer[plain.size()] == '\0', "the line is terminated");
    const auto behind = buffer.begin() + static_cast<std::ptrdiff_t>(plain.size()) + 1;
    Require(std::all_of(behind, buffer.end(), [](char byte) { return byte == Untouched; }),
            "nothing is written behind the line");
}

void CompareExact(const std::string& file, int size, std::size_t block) {
    PlainFile plain{file};
    MemoryByteReader reader(file, block);
    while (plain.place < file.size()) {
        std::vector<char> buffer(static_cast<std::size_t>(size), Untouched);
        const std::string expected = PlainReadLineExact(size, plain);
        RequireSameLine(ReadLineExact(buffer.data(), size, reader), buffer, expected);
    }
    Require(reader.Next() == -1, "both have read to the end");
}

void CompareUpper(const std::string& file, int size, std::size_t block, bool doubleByteAware) {
    PlainFile plain{file};
    MemoryByteReader reader(file, block);
    while (plain.place < file.size()) {
        std::vector<char> buffer(static_cast<std::size_t>(2 * (size - 2) + 1), Untouched);
        const std::string expected = PlainReadLineUpper(size, plain, doubleByteAware);
        RequireSameLine(ReadLineUpper(buffer.data(), size, reader, doubleByteAware), buffer, expected);
    }
    Require(reader.Next() == -1, "both have read to the end");
}

}  // namespace

void FuzzLineReaders(FuzzInput& input) {
    const std::uint8_t kind = input.Byte();
    const int size = kind >= 0xF0 ? LineReaderSize : 3 + static_cast<int>(input.UpTo(60));
    const std::size_t block = 1 + input.UpTo(255);
    const std::string file = SomeFile(input);
    if (kind % 3 == 0)
        CompareExact(file, size, block);
    else
        CompareUpper(file, size, block, kind % 3 == 2);
}
