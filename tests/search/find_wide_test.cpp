#include "search/find_wide.h"

#include <gtest/gtest.h>

#include <string>

#include "search/shift_table.h"

namespace {

constexpr int None = -1;

int Found(const std::wstring& text, const std::wstring& pattern) {
    const wchar_t* const found = FindWide(text.c_str(), static_cast<int>(text.size()), pattern.c_str(),
                                          static_cast<int>(pattern.size()));
    return found != nullptr ? static_cast<int>(found - text.c_str()) : None;
}

}  // namespace

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
