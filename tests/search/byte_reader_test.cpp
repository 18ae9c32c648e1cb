#include "search/byte_reader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "tests/search/memory_byte_reader.h"

namespace {

// Notes what the reader passes to Fill.
class FillWitness final : public ByteSource {
  public:
    std::size_t size = 0;
    std::uintptr_t address = 0;

    std::size_t Fill(unsigned char* block, std::size_t blockSize) override {
        size = blockSize;
        address = reinterpret_cast<std::uintptr_t>(block);
        // Every byte of the block may be written.
        for (std::size_t i = 0; i < blockSize; ++i)
            block[i] = 'x';
        return blockSize;
    }
};

// A file in the folder for temporary files, deleted in the end.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::string& content) : path(testing::TempDir() + "byte_reader_test.bin") {
        std::FILE* const file = std::fopen(path.c_str(), "wb");
        if (file == nullptr) return;
        written = std::fwrite(content.data(), 1, content.size(), file) == content.size();
        std::fclose(file);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { std::remove(path.c_str()); }

    std::string path;
    bool written = false;
};

}  // namespace

TEST(ByteReader, bytes_come_as_0_to_255) {
    MemoryByteReader reader(std::string("a\0\xFF\x1A", 4));
    EXPECT_EQ(reader.Next(), 'a');
    EXPECT_EQ(reader.Next(), 0);
    EXPECT_EQ(reader.Next(), 255);
    EXPECT_EQ(reader.Next(), 26);
    EXPECT_EQ(reader.Next(), -1);
}

TEST(ByteReader, an_empty_source_is_at_its_end) {
    MemoryByteReader reader("");
    EXPECT_EQ(reader.Next(), -1);
}

TEST(ByteReader, the_end_stays_the_end_and_is_asked_for_once) {
    MemoryByteReader reader("a");
    EXPECT_EQ(reader.Next(), 'a');
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(reader.Next(), -1);
    EXPECT_EQ(reader.FillCount(), 2);
}

TEST(ByteReader, short_blocks_do_not_end_it) {
    MemoryByteReader reader("abc", 1);
    EXPECT_EQ(reader.Next(), 'a');
    EXPECT_EQ(reader.Next(), 'b');
    EXPECT_EQ(reader.Next(), 'c');
    EXPECT_EQ(reader.Next(), -1);
}

TEST(ByteReader, a_block_has_64_kilobytes_and_starts_on_a_page) {
    FillWitness witness;
    ByteReader reader(witness);
    EXPECT_EQ(reader.Next(), 'x');
    EXPECT_EQ(witness.size, 65536U);
    EXPECT_EQ(witness.address % 4096, 0U);
}

TEST(FileByteSource, it_reads_a_file_of_several_blocks_as_it_stands) {
    std::string content;
    for (int i = 0; i < 150000; ++i)
        content.push_back(static_cast<char>(i % 251));
    const TemporaryFile temporary(content);
    ASSERT_TRUE(temporary.written);

    std::FILE* const file = std::fopen(temporary.path.c_str(), "rb");
    ASSERT_NE(file, nullptr);
    FileByteSource source(file);
    ByteReader reader(source);
    std::string read;
    for (int byte = reader.Next(); byte != -1; byte = reader.Next())
        read.push_back(static_cast<char>(byte));
    std::fclose(file);
    EXPECT_TRUE(read == content) << "read " << read.size() << " bytes";
}

TEST(FileByteSource, a_file_of_whole_blocks_ends_behind_the_last_one) {
    const TemporaryFile temporary(std::string(128, 'x'));
    ASSERT_TRUE(temporary.written);
    std::FILE* const file = std::fopen(temporary.path.c_str(), "rb");
    ASSERT_NE(file, nullptr);
    FileByteSource source(file);
    unsigned char block[64];
    EXPECT_EQ(source.Fill(block, sizeof block), 64U);
    EXPECT_EQ(source.Fill(block, sizeof block), 64U);
    EXPECT_EQ(source.Fill(block, sizeof block), 0U);
    std::fclose(file);
}

TEST(FileByteSource, it_begins_again_behind_its_end) {
    const TemporaryFile temporary("content");
    ASSERT_TRUE(temporary.written);
    std::FILE* const file = std::fopen(temporary.path.c_str(), "rb");
    ASSERT_NE(file, nullptr);
    FileByteSource source(file);
    unsigned char block[64];
    for (int time = 0; time < 2; ++time) {
        ASSERT_EQ(source.Fill(block, sizeof block), 7U);
        EXPECT_EQ(std::string(block, block + 7), "content");
        EXPECT_EQ(source.Fill(block, sizeof block), 0U);
        source.Rewind();
    }
    std::fclose(file);
}

TEST(FileByteSource, a_read_error_is_the_end) {
    const TemporaryFile temporary("content");
    ASSERT_TRUE(temporary.written);
    // A file opened for writing alone cannot be read.
    std::FILE* const file = std::fopen(temporary.path.c_str(), "ab");
    ASSERT_NE(file, nullptr);
    FileByteSource source(file);
    ByteReader reader(source);
    EXPECT_EQ(reader.Next(), -1);
    std::fclose(file);
}
