#include "search/substring_search.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

constexpr int None = -1;

int Found(const std::wstring& text, const std::wstring& pattern) {
    const wchar_t* const found = FindWide(text.c_str(), static_cast<int>(text.size()), pattern.c_str(),
                                          static_cast<int>(pattern.size()));
    return found != nullptr ? static_cast<int>(found - text.c_str()) : None;
}

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

TEST(ShiftTable, a_new_table_holds_nothing_but_0) {
    const auto table = std::make_unique<ShiftTable>();
    for (int index = 0; index < ShiftTable::Entries; ++index)
        ASSERT_EQ(table->EntryAt(index), 0);
}

TEST(ShiftTable, it_has_65792_entries) {
    EXPECT_EQ(ShiftTable::Entries, 65792);
}

TEST(ShiftTable, filling_again_with_the_same_shift_forgets_the_units_and_the_bytes_set_since) {
    const auto table = std::make_unique<ShiftTable>();
    table->FillUnits(3);
    table->SetUnit(L'a', 2);
    table->SetUnit(L'b', 1);
    table->SetByte('\x80', 7);
    table->SetByte('\xFF', 8);
    table->FillUnits(3);
    for (int index = 0; index < ShiftTable::UnitEntries; ++index)
        ASSERT_EQ(table->EntryAt(index), 3);
}

TEST(ShiftTable, filling_with_another_shift_writes_every_entry_of_units) {
    const auto table = std::make_unique<ShiftTable>();
    table->FillUnits(3);
    table->SetUnit(L'a', 2);
    table->FillUnits(5);
    for (int index = 0; index < ShiftTable::UnitEntries; ++index)
        ASSERT_EQ(table->EntryAt(index), 5);
    for (int index = ShiftTable::UnitEntries; index < ShiftTable::Entries; ++index) {
        ASSERT_EQ(table->EntryAt(index), 0);
    }
}

TEST(ShiftTable, clearing_brings_back_the_start) {
    const auto table = std::make_unique<ShiftTable>();
    table->FillUnits(3);
    table->SetUnit(L'a', 2);
    table->FillBytes(4);
    table->Clear();
    for (int index = 0; index < ShiftTable::Entries; ++index)
        ASSERT_EQ(table->EntryAt(index), 0);
    // And the table does not take the old shift for still standing.
    table->FillUnits(3);
    EXPECT_EQ(table->ForUnit(L'a'), 3);
    EXPECT_EQ(table->ForUnit(L'z'), 3);
}

TEST(FindWide, a_substring_is_found_anywhere_in_the_name) {
    EXPECT_EQ(Found(L"abc", L"abc"), 0);
    EXPECT_EQ(Found(L"xabcx.txt", L"abc"), 1);
    EXPECT_EQ(Found(L"report.abc", L"abc"), 7);
}

TEST(FindWide, case_is_told_apart) {
    EXPECT_EQ(Found(L"ABC.TXT", L"abc"), None);
}

TEST(FindWide, the_first_of_several_occurrences_is_returned) {
    EXPECT_EQ(Found(L"xabcabcabc", L"abc"), 1);
}

TEST(FindWide, overlapping_beginnings_of_the_pattern_are_not_skipped) {
    EXPECT_EQ(Found(L"aabaabaaab", L"aaab"), 6);
    EXPECT_EQ(Found(L"abababac", L"abac"), 4);
}

TEST(FindWide, a_pattern_longer_than_the_name_never_matches_but_still_rebuilds_the_table) {
    SharedShiftTable().Clear();
    EXPECT_EQ(Found(L"ab", L"abc"), None);
    EXPECT_EQ(SharedShiftTable().ForUnit(L'a'), 2);
    EXPECT_EQ(SharedShiftTable().ForUnit(L'b'), 1);
    EXPECT_EQ(SharedShiftTable().ForUnit(L'c'), 3);
    EXPECT_EQ(SharedShiftTable().ForUnit(L'z'), 3);
}

TEST(FindWide, an_empty_name_holds_nothing) {
    EXPECT_EQ(Found(L"", L"a"), None);
}

TEST(FindWide, an_empty_pattern_occurs_nowhere) {
    EXPECT_EQ(Found(L"abc", L""), None);
    EXPECT_EQ(Found(L"", L""), None);
}

TEST(FindWide, a_pattern_of_one_unit_makes_every_shift_one) {
    EXPECT_EQ(Found(L"xxxa", L"a"), 3);
    for (int unit = 0; unit < ShiftTable::UnitEntries; ++unit)
        ASSERT_EQ(SharedShiftTable().EntryAt(unit), 1);
}

TEST(FindWide, a_later_place_of_a_unit_overwrites_an_earlier_one_and_the_last_unit_gets_no_entry) {
    // a b a c: a at 0 gives 3, at 2 gives 1; b gives 2; c stands last and keeps 4.
    EXPECT_EQ(Found(L"zzzz", L"abac"), None);
    EXPECT_EQ(SharedShiftTable().ForUnit(L'a'), 1);
    EXPECT_EQ(SharedShiftTable().ForUnit(L'b'), 2);
    EXPECT_EQ(SharedShiftTable().ForUnit(L'c'), 4);
}

TEST(FindWide, units_are_compared_one_by_one_without_normalising) {
    EXPECT_EQ(Found(L"\u65E5\u672C\u8A9E.txt", L"\u672C"), 1);
    // Half-width and full-width katakana are different units, and so are a letter with its accent and apart.
    EXPECT_EQ(Found(L"\uFF76", L"\u30AB"), None);
    EXPECT_EQ(Found(L"e\u0301", L"\u00E9"), None);
}

TEST(FindWide, an_unpaired_surrogate_is_a_unit_like_any_other) {
    const std::wstring name = {L'a', static_cast<wchar_t>(0xD83D), L'b'};
    const std::wstring surrogate = {static_cast<wchar_t>(0xD83D)};
    EXPECT_EQ(Found(name, surrogate), 1);
}

TEST(FindWide, the_entries_of_bytes_are_left_alone) {
    ShiftTable& table = SharedShiftTable();
    table.Clear();
    table.FillBytes(77);
    EXPECT_EQ(Found(L"abc", L"bc"), 1);
    for (int index = ShiftTable::UnitEntries; index < ShiftTable::Entries; ++index) {
        ASSERT_EQ(table.EntryAt(index), 77);
    }
}

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
