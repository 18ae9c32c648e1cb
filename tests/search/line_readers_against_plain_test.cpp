#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "search/line_readers.h"
#include "tests/search/memory_byte_reader.h"
#include "tests/search/plain_line_readers.h"

namespace {

constexpr char Untouched = '\x55';

// What a reader left: null or not, and every byte of a buffer that was filled with one value before.
std::string Outcome(const char* line, const std::vector<char>& buffer) {
    return (line != nullptr ? "line:" : "none:") + std::string(buffer.begin(), buffer.end());
}

std::string ExpectedOutcome(const std::string& stored, bool terminated, std::size_t bufferSize) {
    std::string buffer(bufferSize, Untouched);
    buffer.replace(0, stored.size(), stored);
    if (terminated) buffer[stored.size()] = '\0';
    return (stored.empty() ? "none:" : "line:") + buffer;
}

class RandomFiles {
  public:
    explicit RandomFiles(unsigned seed) : engine_(seed) {}

    int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(engine_); }

    // Lines of any length up to `longest`, often of a length around `chunk`.
    std::string Next(int lines, int longest, int chunk) {
        std::string file;
        for (int i = 0; i < lines; ++i) {
            const int length = UpTo(1) == 0 ? UpTo(longest) : chunk - 4 + UpTo(8);
            const bool plain = UpTo(2) == 0;
            for (int at = 0; at < length; ++at)
                file += plain ? 'q' : SomeByte();
            if (UpTo(3) == 0) file += '\r';
            if (UpTo(9) != 0) file += '\n';
        }
        return file;
    }

  private:
    char SomeByte() {
        static constexpr unsigned char Choices[] = {'a',  'z',  'A',  '{',  '`',  0,    10,
                                                    13,   13,   0x80, 0x81, 0x9F, 0xA0, 0xDF,
                                                    0xE0, 0xFD, 0xFE, 0xFF, 'm',  'n',  'o'};
        if (UpTo(3) == 0) return static_cast<char>(UpTo(255));
        // Line feeds end most lines early, so they are left to one choice in a few.
        const unsigned char byte = Choices[UpTo(static_cast<int>(sizeof(Choices)) - 1)];
        return static_cast<char>(byte == 10 && UpTo(7) != 0 ? 'a' : byte);
    }

    std::mt19937 engine_;
};

// Reads the whole file with both and compares line by line, past every "none" but for the end of the file.
void CompareExact(const std::string& content, int size, std::size_t block) {
    PlainFile plain{content};
    MemoryByteReader reader(content, block);
    const auto room = static_cast<std::size_t>(size);
    for (int line = 0; plain.place < content.size(); ++line) {
        std::vector<char> buffer(room, Untouched);
        const std::string expected = ExpectedOutcome(PlainReadLineExact(size, plain), true, room);
        ASSERT_EQ(Outcome(ReadLineExact(buffer.data(), size, reader), buffer), expected) << "line " << line;
    }
    EXPECT_EQ(reader.Next(), -1);
}

void CompareUpper(const std::string& content, int size, std::size_t block, bool doubleByteAware) {
    PlainFile plain{content};
    MemoryByteReader reader(content, block);
    const auto room = static_cast<std::size_t>(2 * (size - 2) + 1);
    for (int line = 0; plain.place < content.size(); ++line) {
        std::vector<char> buffer(room, Untouched);
        const std::string expected =
            ExpectedOutcome(PlainReadLineUpper(size, plain, doubleByteAware), true, room);
        ASSERT_EQ(Outcome(ReadLineUpper(buffer.data(), size, reader, doubleByteAware), buffer), expected)
            << "line " << line;
    }
    EXPECT_EQ(reader.Next(), -1);
}

}  // namespace

TEST(LineReadersAgainstPlain, small_random_files_read_with_small_sizes_give_the_same_lines) {
    RandomFiles files(1582);
    for (int round = 0; round < 600; ++round) {
        const int size = 3 + files.UpTo(20);
        const auto block = static_cast<std::size_t>(1 + files.UpTo(30));
        const std::string content = files.Next(files.UpTo(12), 40, size);
        SCOPED_TRACE(testing::Message() << "round " << round << ", size " << size << ", block " << block);
        CompareExact(content, size, block);
        CompareUpper(content, size, block, false);
        CompareUpper(content, size, block, true);
        if (HasFatalFailure()) return;
    }
}

TEST(LineReadersAgainstPlain, lines_about_as_long_as_a_chunk_give_the_same_lines) {
    RandomFiles files(577738);
    for (int round = 0; round < 12; ++round) {
        const std::string content = files.Next(20, 9000, LineReaderSize);
        SCOPED_TRACE(testing::Message() << "round " << round);
        CompareExact(content, LineReaderSize, ByteSource::BlockSize);
        CompareUpper(content, LineReaderSize, ByteSource::BlockSize, false);
        CompareUpper(content, LineReaderSize, 777, true);
        if (HasFatalFailure()) return;
    }
}
