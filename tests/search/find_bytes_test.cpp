#include "search/find_bytes.h"

#include <gtest/gtest.h>

#include <string>

#include "search/find_wide.h"
#include "search/shift_table.h"

namespace {

constexpr int None = -1;

int Found(const std::string& text, const std::string& pattern) {
    const char* const found = FindBytes(text.c_str(), static_cast<int>(text.size()), pattern.c_str(),
                                        static_cast<int>(pattern.size()));
    return found != nullptr ? static_cast<int>(found - text.c_str()) : None;
}

// What testing a name against a substring does to the table.
void TestSomeName(const std::wstring& substring) {
    EXPECT_EQ(FindWide(L"", 0, substring.c_str(), static_cast<int>(substring.size())), nullptr);
}

class FindBytesTest : public testing::Test {
  protected:
    FindBytesTest() { SharedShiftTable().Clear(); }
};

}  // namespace

TEST_F(FindBytesTest, the_first_occurrence_is_returned) {
    EXPECT_EQ(Found("xxabcxabc", "abc"), 2);
    EXPECT_EQ(Found("abc", "abc"), 0);
    EXPECT_EQ(Found("abc", "c"), 2);
}

TEST_F(FindBytesTest, what_is_not_there_is_not_found) {
    EXPECT_EQ(Found("xxABCxx", "abc"), None);
    EXPECT_EQ(Found("ab", "abc"), None);
    EXPECT_EQ(Found("", "a"), None);
}

TEST_F(FindBytesTest, an_empty_pattern_occurs_nowhere) {
    EXPECT_EQ(Found("abc", ""), None);
    EXPECT_EQ(Found("", ""), None);
}

TEST_F(FindBytesTest, bytes_from_0x80_up_are_found) {
    EXPECT_EQ(Found("ab\x93\xFA\x96\x7B!", "\x93\xFA\x96\x7B"), 2);
    EXPECT_EQ(Found("\xFF\xFE\x80", "\x80"), 2);
}

TEST_F(FindBytesTest, only_the_256_entries_from_0_up_are_reset) {
    ShiftTable& table = SharedShiftTable();
    table.FillUnits(9);
    EXPECT_EQ(Found("zzz", "ab"), None);
    EXPECT_EQ(table.EntryAt(ShiftTable::UnitEntries - 1), 9);
    EXPECT_EQ(table.EntryAt(ShiftTable::UnitEntries), 2);
    EXPECT_EQ(table.EntryAt(ShiftTable::UnitEntries + 'a'), 1);
    EXPECT_EQ(table.EntryAt(ShiftTable::UnitEntries + 'b'), 2);
    EXPECT_EQ(table.EntryAt(ShiftTable::UnitEntries + 0x80), 2);
    EXPECT_EQ(table.EntryAt(ShiftTable::UnitEntries + 0xFF), 2);
}

TEST_F(FindBytesTest, a_byte_from_0x80_up_uses_the_entry_of_a_unit_from_0xff80_up) {
    // 0x80 is -128, the unit 0xFF80; 0xFF is -1, the unit 0xFFFF.
    EXPECT_EQ(Found("zzz", "\x80\xFFz"), None);
    EXPECT_EQ(SharedShiftTable().EntryAt(0xFF80), 2);
    EXPECT_EQ(SharedShiftTable().EntryAt(0xFFFF), 1);
}

TEST_F(FindBytesTest, an_entry_never_written_falls_back_to_the_plain_step) {
    EXPECT_EQ(Found("x\x80yz", "yz"), 2);
}

TEST_F(FindBytesTest, a_longer_name_tested_before_makes_an_occurrence_after_a_high_byte_be_missed) {
    // The name's length, 10, stands in the entry of the byte 0x80 and leads from place 1 past the end.
    TestSomeName(L"abcdefghij");
    EXPECT_EQ(Found("x\x80yz", "yz"), None);
}

TEST_F(FindBytesTest, a_jump_left_by_a_name_may_land_on_a_later_occurrence) {
    TestSomeName(L"abcd");
    // From place 1 four on to place 5, the end of the second "yz".
    EXPECT_EQ(Found("x\x80yzyz", "yz"), 4);
}

TEST_F(FindBytesTest, a_unit_of_the_name_from_0xff80_up_leaves_its_shift_for_the_byte) {
    // The unit 0xFF80 at the front of three leaves 2: from place 1 to place 3, the end of "yz". The entry of
    // the byte 0x81 holds the length 3, which leads past it.
    TestSomeName(L"\uFF80ab");
    EXPECT_EQ(Found("x\x80yz", "yz"), 2);
    EXPECT_EQ(Found("x\x81yz", "yz"), None);
}

TEST_F(FindBytesTest, an_earlier_pattern_with_a_high_byte_leaves_its_shift_behind) {
    EXPECT_EQ(Found("zzzzz", "\x80stuv"), None);
    EXPECT_EQ(SharedShiftTable().EntryAt(0xFF80), 4);
    EXPECT_EQ(Found("x\x80yz", "yz"), None);
    // The byte 0x81 was in no pattern.
    EXPECT_EQ(Found("x\x81yz", "yz"), 2);
}

TEST_F(FindBytesTest, the_next_name_tested_resets_what_an_earlier_pattern_left) {
    EXPECT_EQ(Found("zzzzz", "\x80stuv"), None);
    TestSomeName(L"a");
    EXPECT_EQ(Found("x\x80yz", "yz"), 2);
}
