// Date and size conditions, set on their pages and seen in the rows.

#include <algorithm>

#include "resources/resource_ids.h"
#include "tests/program/program_test.h"

namespace {

constexpr int NoBound = 0;
constexpr int Min = 1;
constexpr int Max = 2;

}  // namespace

class Filters : public ProgramTest {
  protected:
    Names NamesBetween(int first, int second) {
        Program().Click(DatePage, RADIO_BETWEEN);
        Program().SetDate(DatePage, PICKER_FROM, first);
        Program().SetDate(DatePage, PICKER_TO, second);
        return Sorted(NamesFoundBy(Where(L"\\dates")));
    }

    Names NamesOfSize(int answer, int kilobytes, const std::wstring& location = L"\\bounds") {
        Program().SelectEntry(SizePage, COMBO_FILE_SIZE, answer);
        Program().SetSpin(SizePage, SPIN_KILOBYTES, kilobytes);
        return Sorted(NamesFoundBy(Where(location)));
    }
};

TEST_F(Filters, between_a_day_and_itself_finds_only_its_first_instant) {
    EXPECT_EQ(NamesBetween(20020110, 20020110), (Names{L"midnight.txt"}));
}

TEST_F(Filters, between_ends_at_the_first_instant_of_the_second_day) {
    EXPECT_EQ(NamesBetween(20020110, 20020111), (Names{L"midnight.txt", L"next midnight.txt", L"noon.txt"}));
}

TEST_F(Filters, between_with_the_later_day_first_finds_nothing) {
    EXPECT_EQ(NamesBetween(20020111, 20020110), (Names{}));
}

TEST_F(Filters, past_days_reach_back_from_now) {
    Program().Click(DatePage, RADIO_PAST);
    Program().SetSpin(DatePage, SPIN_DAYS, 5);
    EXPECT_EQ(NamesFoundBy(Where(L"\\ages")), (Names{L"two days.txt"}));
    Program().SetSpin(DatePage, SPIN_DAYS, 12);
    EXPECT_EQ(Sorted(NamesFoundBy(Where(L"\\ages"))), (Names{L"ten days.txt", L"two days.txt"}));
}

TEST_F(Filters, a_number_of_days_typed_outside_the_spins_range_is_read_as_typed) {
    Program().Click(DatePage, RADIO_PAST);
    Program().SetText(DatePage, EDIT_DAYS, L"1000");
    EXPECT_EQ(Sorted(NamesFoundBy(Where(L"\\ages"))), (Names{L"ten days.txt", L"two days.txt"}));
    Program().SetText(DatePage, EDIT_DAYS, L"0");
    EXPECT_EQ(NamesFoundBy(Where(L"\\ages")), (Names{}));
}

TEST_F(Filters, an_empty_days_field_reaches_back_more_than_65536_days) {
    Program().Click(DatePage, RADIO_PAST);
    Program().SetText(DatePage, EDIT_DAYS, L"");
    EXPECT_EQ(Sorted(NamesFoundBy(Where(L"\\ages"))),
              (Names{L"century.txt", L"ten days.txt", L"two days.txt"}));
}

TEST_F(Filters, past_days_east_of_utc_leave_out_the_last_hours) {
    if (MinutesAheadOfUtc() != NineHours) GTEST_SKIP() << "worked out for a zone nine hours ahead of UTC";
    Tree().AddFile(L"east\\eight hours.txt");
    Tree().SetAge(L"east\\eight hours.txt", 0, 8);
    Tree().AddFile(L"east\\ten hours.txt");
    Tree().SetAge(L"east\\ten hours.txt", 0, 10);
    Program().Click(DatePage, RADIO_PAST);
    Program().SetSpin(DatePage, SPIN_DAYS, 5);
    EXPECT_EQ(NamesFoundBy(Where(L"\\east")), (Names{L"ten hours.txt"}));
}

TEST_F(Filters, min_is_strictly_larger_and_excludes_folders) {
    EXPECT_EQ(NamesOfSize(Min, 10), (Names{L"10241.bin"}));
}

TEST_F(Filters, max_is_strictly_smaller_and_lets_folders_pass) {
    EXPECT_EQ(NamesOfSize(Max, 10), (Names{L"10239.bin", L"folder"}));
}

TEST_F(Filters, min_of_0_excludes_empty_files_and_folders) {
    const Names names = NamesOfSize(Min, 0, L"\\sizes");
    EXPECT_EQ(names.size(), 6u);
    EXPECT_EQ(std::count(names.begin(), names.end(), L"0.bin"), 0);
    EXPECT_EQ(std::count(names.begin(), names.end(), L"folder"), 0);
}

TEST_F(Filters, max_of_0_excludes_everything) {
    EXPECT_EQ(NamesOfSize(Max, 0, L"\\sizes"), (Names{}));
}

TEST_F(Filters, max_of_1_lets_0_to_1023_bytes_and_folders_pass) {
    EXPECT_EQ(NamesOfSize(Max, 1, L"\\sizes"), (Names{L"0.bin", L"1023.bin", L"folder"}));
}

TEST_F(Filters, the_empty_entry_sets_no_bound) {
    EXPECT_EQ(NamesOfSize(NoBound, 10), (Names{L"10239.bin", L"10240.bin", L"10241.bin", L"folder"}));
}

TEST_F(Filters, a_text_typed_into_the_size_combo_sets_no_bound) {
    Program().SelectEntry(SizePage, COMBO_FILE_SIZE, Max);
    Program().SetSpin(SizePage, SPIN_KILOBYTES, 0);
    Program().SetText(SizePage, COMBO_FILE_SIZE, L"typed");
    Program().SelectEntry(SizePage, COMBO_FILE_SIZE, -1);
    EXPECT_EQ(NamesFoundBy(Where(L"\\bounds")).size(), 4u);
}

TEST_F(Filters, an_empty_size_field_carries_the_spins_error_into_the_bound) {
    // At least 65,536 KB, which no file of the device reaches.
    Program().SelectEntry(SizePage, COMBO_FILE_SIZE, Min);
    Program().SetText(SizePage, EDIT_KILOBYTES, L"");
    EXPECT_EQ(NamesFoundBy(Where(L"\\sizes")), (Names{}));
    Program().SelectEntry(SizePage, COMBO_FILE_SIZE, Max);
    EXPECT_EQ(NamesFoundBy(Where(L"\\sizes")).size(), 8u);
}

TEST_F(Filters, name_date_and_size_conditions_all_have_to_hold) {
    Program().Click(DatePage, RADIO_BETWEEN);
    Program().SetDate(DatePage, PICKER_FROM, 20020101);
    Program().SetDate(DatePage, PICKER_TO, 20021231);
    Program().SelectEntry(SizePage, COMBO_FILE_SIZE, Max);
    Program().SetSpin(SizePage, SPIN_KILOBYTES, 1);
    EXPECT_EQ(Sorted(NamesFoundBy(Named(L"midnight", L"\\", true))),
              (Names{L"midnight.txt", L"next midnight.txt"}));
    Program().SelectEntry(SizePage, COMBO_FILE_SIZE, Min);
    EXPECT_EQ(NamesFoundBy(Named(L"midnight", L"\\", true)), (Names{}));
}
