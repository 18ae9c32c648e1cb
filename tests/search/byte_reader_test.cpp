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
