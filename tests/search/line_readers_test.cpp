#include "search/line_readers.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
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

using Line = std::optional<std::string>;

// The terminated text of a line as a search sees it: up to its first NUL.
Line Exact(MemoryByteReader& reader, int size = LineReaderSize) {
    const char* const line = ReadLineExact(SharedLineBuffer(), size, reader);
    return line != nullptr ? Line(line) : std::nullopt;
}

Line Upper(MemoryByteReader& reader, bool doubleByteAware, int size = LineReaderSize) {
    const char* const line = ReadLineUpper(SharedLineBuffer(), size, reader, doubleByteAware);
    return line != nullptr ? Line(line) : std::nullopt;
}

std::string Repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

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

TEST(LineBuffer, it_holds_4094_characters_of_two_bytes_and_the_nul) {
    EXPECT_EQ(sizeof(SharedLineBuffer()), 8189U);
}

TEST(ReadLineExact, a_line_keeps_its_line_feed_and_its_case) {
    MemoryByteReader reader("Text\n\nxxabc");
    EXPECT_EQ(Exact(reader), "Text\n");
    EXPECT_EQ(Exact(reader), "\n");
    EXPECT_EQ(Exact(reader), "xxabc");
    EXPECT_EQ(Exact(reader), std::nullopt);
}

TEST(ReadLineExact, the_buffer_itself_is_returned) {
    MemoryByteReader reader("a\n");
    EXPECT_EQ(ReadLineExact(SharedLineBuffer(), LineReaderSize, reader), SharedLineBuffer());
}

TEST(ReadLineExact, carriage_returns_are_dropped_wherever_they_stand) {
    MemoryByteReader reader("\ra\rb\r\nc\r");
    EXPECT_EQ(Exact(reader), "ab\n");
    EXPECT_EQ(Exact(reader), "c");
    EXPECT_EQ(Exact(reader), std::nullopt);
}

TEST(ReadLineExact, a_chunk_ends_after_4095_steps) {
    MemoryByteReader reader(std::string(4095, 'a') + "bc");
    EXPECT_EQ(Exact(reader), std::string(4095, 'a'));
    EXPECT_EQ(Exact(reader), "bc");
}

TEST(ReadLineExact, a_line_feed_as_the_last_step_still_belongs_to_the_chunk) {
    MemoryByteReader reader(std::string(4094, 'a') + "\nb");
    EXPECT_EQ(Exact(reader), std::string(4094, 'a') + "\n");
    EXPECT_EQ(Exact(reader), "b");
}

TEST(ReadLineExact, a_dropped_carriage_return_uses_up_a_step) {
    MemoryByteReader reader("\r" + std::string(4095, 'a') + "b");
    EXPECT_EQ(Exact(reader), std::string(4094, 'a'));
    EXPECT_EQ(Exact(reader), "ab");
}

TEST(ReadLineExact, a_chunk_of_nothing_but_carriage_returns_is_none_although_text_follows) {
    MemoryByteReader reader(std::string(4095, '\r') + "abc");
    EXPECT_EQ(Exact(reader), std::nullopt);
    EXPECT_EQ(Exact(reader), "abc");
}

TEST(ReadLineExact, a_few_carriage_returns_alone_at_the_end_are_none) {
    MemoryByteReader reader("\r\r");
    EXPECT_EQ(Exact(reader), std::nullopt);
}

TEST(ReadLineExact, a_nul_is_stored_and_hides_the_rest_of_its_line_only) {
    MemoryByteReader reader(std::string("ab\0cd\nef", 8));
    EXPECT_EQ(Exact(reader), "ab");
    EXPECT_EQ(std::string(SharedLineBuffer(), 6), std::string("ab\0cd\n", 6));
    EXPECT_EQ(Exact(reader), "ef");
}

TEST(ReadLineExact, lead_bytes_and_the_end_of_file_mark_are_ordinary_bytes) {
    MemoryByteReader reader("\x81\n\x1A\xFF\n");
    EXPECT_EQ(Exact(reader), "\x81\n");
    EXPECT_EQ(Exact(reader), "\x1A\xFF\n");
}

TEST(ReadLineExact, a_size_of_one_or_less_reads_nothing) {
    MemoryByteReader reader("abc");
    char buffer[1] = {'x'};
    EXPECT_EQ(ReadLineExact(buffer, 0, reader), nullptr);
    EXPECT_EQ(buffer[0], 'x');
    EXPECT_EQ(ReadLineExact(buffer, 1, reader), nullptr);
    EXPECT_EQ(buffer[0], '\0');
    EXPECT_EQ(reader.Next(), 'a');
}

TEST(ReadLineUpper, a_line_comes_in_upper_case_without_its_line_feed) {
    MemoryByteReader reader("Text 1{`az\nxxABC");
    EXPECT_EQ(Upper(reader, false), "TEXT 1{`AZ");
    EXPECT_EQ(Upper(reader, false), "XXABC");
    EXPECT_EQ(Upper(reader, false), std::nullopt);
}

TEST(ReadLineUpper, an_empty_line_is_none_although_text_follows) {
    MemoryByteReader reader("text\n\nxxABC");
    EXPECT_EQ(Upper(reader, false), "TEXT");
    EXPECT_EQ(Upper(reader, false), std::nullopt);
    EXPECT_EQ(Upper(reader, false), "XXABC");
}

TEST(ReadLineUpper, a_line_of_carriage_returns_alone_is_none) {
    MemoryByteReader reader("text\r\n\r\r\nabc");
    EXPECT_EQ(Upper(reader, false), "TEXT");
    EXPECT_EQ(Upper(reader, false), std::nullopt);
    EXPECT_EQ(Upper(reader, false), "ABC");
}

TEST(ReadLineUpper, a_chunk_ends_after_4094_steps_and_a_dropped_carriage_return_is_one) {
    MemoryByteReader reader("\r" + std::string(4094, 'a') + "bc");
    EXPECT_EQ(Upper(reader, false), std::string(4093, 'A'));
    EXPECT_EQ(Upper(reader, false), "ABC");
}

TEST(ReadLineUpper, a_line_of_exactly_a_chunk_is_followed_by_an_empty_one) {
    // The line feed behind the 4,094 steps is left for the next call, which finds an empty line.
    MemoryByteReader reader(std::string(4094, 'a') + "\nb");
    EXPECT_EQ(Upper(reader, false), std::string(4094, 'A'));
    EXPECT_EQ(Upper(reader, false), std::nullopt);
    EXPECT_EQ(Upper(reader, false), "B");
}

TEST(ReadLineUpper, a_double_byte_character_is_one_step_and_fills_the_buffer_to_its_last_byte) {
    MemoryByteReader reader(Repeated("\x83\x61", 4095));
    EXPECT_EQ(Upper(reader, true), Repeated("\x83\x61", 4094));
    EXPECT_EQ(Upper(reader, true), "\x83\x61");
}

TEST(ReadLineUpper, a_trail_byte_that_is_a_letter_stays_as_it_is_where_lead_bytes_are_known) {
    MemoryByteReader reader("n\x83qz");
    EXPECT_EQ(Upper(reader, true), "N\x83qZ");
}

TEST(ReadLineUpper, without_lead_bytes_a_trail_byte_is_folded_like_any_other) {
    MemoryByteReader reader("n\x83qz");
    EXPECT_EQ(Upper(reader, false), "N\x83QZ");
}

TEST(ReadLineUpper, whatever_follows_a_lead_byte_belongs_to_it) {
    MemoryByteReader reader("\x81\n\x81\r\x81\x81n\xFDz\n");
    EXPECT_EQ(Upper(reader, true), "\x81\n\x81\r\x81\x81N\xFDz");
}

TEST(ReadLineUpper, a_lead_byte_at_the_end_of_the_file_is_lost) {
    MemoryByteReader behindText("ab\x81");
    EXPECT_EQ(Upper(behindText, true), "AB");
    MemoryByteReader alone("\x81");
    EXPECT_EQ(Upper(alone, true), std::nullopt);
}

TEST(ReadLineUpper, a_nul_is_stored_and_hides_the_rest_of_its_line_only) {
    MemoryByteReader reader(std::string("ab\0cd\nef", 8));
    EXPECT_EQ(Upper(reader, false), "AB");
    EXPECT_EQ(std::string(SharedLineBuffer(), 6), std::string("AB\0CD\0", 6));
    EXPECT_EQ(Upper(reader, false), "EF");
}

TEST(ReadLineUpper, a_size_of_two_or_less_reads_nothing) {
    MemoryByteReader reader("abc");
    char buffer[1] = {'x'};
    EXPECT_EQ(ReadLineUpper(buffer, 0, reader, false), nullptr);
    EXPECT_EQ(buffer[0], 'x');
    for (const int size : {1, 2}) {
        buffer[0] = 'x';
        EXPECT_EQ(ReadLineUpper(buffer, size, reader, false), nullptr);
        EXPECT_EQ(buffer[0], '\0');
    }
    EXPECT_EQ(reader.Next(), 'a');
}
