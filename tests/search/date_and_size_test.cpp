#include "search/date_and_size.h"

#include <gtest/gtest.h>

#include <array>

namespace {

// Year, month, day of week, day, hour, minute, second, millisecond.
using Fields = std::array<int, 8>;

Fields FieldsOf(const SYSTEMTIME& time) {
    return {time.wYear, time.wMonth,  time.wDayOfWeek, time.wDay,
            time.wHour, time.wMinute, time.wSecond,    time.wMilliseconds};
}

FILETIME Time(std::uint32_t high, std::uint32_t low) {
    FILETIME time = {};
    time.dwHighDateTime = high;
    time.dwLowDateTime = low;
    return time;
}

WIN32_FIND_DATAW EntryOf(const FILETIME& lastWrite, std::uint32_t size = 0) {
    WIN32_FIND_DATAW entry = {};
    entry.ftLastWriteTime = lastWrite;
    entry.nFileSizeLow = size;
    return entry;
}

SearchConditions Between(const FILETIME& from, const FILETIME& to) {
    SearchConditions conditions;
    conditions.flags = SearchConditions::DateRange;
    conditions.fromTime = from;
    conditions.toTime = to;
    return conditions;
}

bool PassesSize(std::uint16_t bit, std::uint32_t bound, std::uint32_t size) {
    SearchConditions conditions;
    conditions.flags = bit;
    conditions.sizeBound = bound;
    return PassesDateAndSize(conditions, EntryOf(Time(1, 1), size));
}

}  // namespace

TEST(DateRange, between_two_dates_runs_from_midnight_to_midnight) {
    const SYSTEMTIME first = {2002, 1, 4, 10, 13, 14, 15, 16};
    const SYSTEMTIME second = {2002, 2, 5, 1, 23, 59, 59, 999};
    const DateRange range = BetweenDates(first, second);
    EXPECT_EQ(FieldsOf(range.from), (Fields{2002, 1, 4, 10, 0, 0, 0, 0}));
    EXPECT_EQ(FieldsOf(range.to), (Fields{2002, 2, 5, 1, 0, 0, 0, 0}));
}

TEST(DateRange, dates_in_the_wrong_order_are_kept_in_it) {
    const DateRange range = BetweenDates({2002, 2, 5, 1, 0, 0, 0, 0}, {2002, 1, 4, 10, 0, 0, 0, 0});
    EXPECT_EQ(range.from.wMonth, 2);
    EXPECT_EQ(range.to.wMonth, 1);
}

TEST(DateRange, past_days_run_from_the_start_of_a_day_to_now) {
    const SYSTEMTIME now = {2002, 3, 5, 1, 13, 14, 15, 16};
    const DateRange range = PastDays(now, 3);
    // 1 March less three days is 26 February; the day of week stays that of now.
    EXPECT_EQ(FieldsOf(range.from), (Fields{2002, 2, 5, 26, 0, 0, 0, 0}));
    EXPECT_EQ(FieldsOf(range.to), (Fields{2002, 3, 5, 1, 13, 14, 15, 16}));
}

TEST(DateRange, past_0_days_starts_with_today) {
    const DateRange range = PastDays({2002, 3, 5, 1, 13, 14, 15, 16}, 0);
    EXPECT_EQ(FieldsOf(range.from), (Fields{2002, 3, 5, 1, 0, 0, 0, 0}));
    EXPECT_EQ(FieldsOf(range.to), (Fields{2002, 3, 5, 1, 13, 14, 15, 16}));
}

TEST(DateRange, past_days_cross_the_leap_day_and_the_year) {
    EXPECT_EQ(FieldsOf(PastDays({2000, 3, 0, 1, 1, 0, 0, 0}, 1).from), (Fields{2000, 2, 0, 29, 0, 0, 0, 0}));
    EXPECT_EQ(FieldsOf(PastDays({2001, 1, 0, 1, 1, 0, 0, 0}, 366).from), (Fields{2000, 1, 0, 1, 0, 0, 0, 0}));
}

TEST(DateRange, the_spins_error_word_counts_as_days) {
    // From 1 January 1822 to 1 January 2002 it is 180 * 365 + 44 = 65,744 days, 208 more than 65,536: the
    // 209th day of 1822, 28 July.
    EXPECT_EQ(FieldsOf(PastDays({2002, 1, 2, 1, 1, 0, 0, 0}, 0x10000).from),
              (Fields{1822, 7, 2, 28, 0, 0, 0, 0}));
}

TEST(DateRange, more_days_than_the_calendar_has_still_give_an_answer) {
    const SYSTEMTIME now = {2002, 3, 5, 1, 13, 14, 15, 16};
    for (const std::uint32_t days : {0x00FFFFFFU, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        const DateRange range = PastDays(now, days);
        EXPECT_EQ(FieldsOf(range.to), (Fields{2002, 3, 5, 1, 13, 14, 15, 16})) << days;
        EXPECT_EQ(range.from.wHour, 0) << days;
    }
}

TEST(SizeBound, the_empty_entry_is_no_limit_and_a_bound_of_0) {
    EXPECT_EQ(SizeBoundOf(0, 10).limit, SizeLimit::None);
    EXPECT_EQ(SizeBoundOf(0, 10).bytes, 0U);
}

TEST(SizeBound, the_second_entry_is_min_in_units_of_1024_bytes) {
    EXPECT_EQ(SizeBoundOf(1, 10).limit, SizeLimit::Above);
    EXPECT_EQ(SizeBoundOf(1, 10).bytes, 10240U);
}

TEST(SizeBound, the_third_entry_is_max_with_the_same_bound) {
    EXPECT_EQ(SizeBoundOf(2, 10).limit, SizeLimit::Below);
    EXPECT_EQ(SizeBoundOf(2, 10).bytes, 10240U);
}

TEST(SizeBound, without_a_selection_the_bound_is_not_written) {
    for (const int index : {-1, 3, 1000}) {
        EXPECT_EQ(SizeBoundOf(index, 10).limit, SizeLimit::None);
        EXPECT_EQ(SizeBoundOf(index, 10).bytes, std::nullopt);
    }
}

TEST(SizeBound, the_spins_error_word_is_carried_into_the_bound) {
    EXPECT_EQ(SizeBoundOf(1, 0x10000).bytes, 0x04000000U);
    EXPECT_EQ(SizeBoundOf(2, 0x10005).bytes, 0x04001400U);
}

TEST(SizeBound, bits_shifted_out_are_lost) {
    EXPECT_EQ(SizeBoundOf(1, 0xFFFFFFFFU).bytes, 0xFFFFFC00U);
}

TEST(DateFilter, both_ends_belong_to_the_range) {
    const SearchConditions conditions = Between(Time(10, 5), Time(12, 5));
    EXPECT_FALSE(PassesDateAndSize(conditions, EntryOf(Time(10, 4))));
    EXPECT_TRUE(PassesDateAndSize(conditions, EntryOf(Time(10, 5))));
    EXPECT_TRUE(PassesDateAndSize(conditions, EntryOf(Time(11, 0))));
    EXPECT_TRUE(PassesDateAndSize(conditions, EntryOf(Time(12, 5))));
    EXPECT_FALSE(PassesDateAndSize(conditions, EntryOf(Time(12, 6))));
}

TEST(DateFilter, from_and_to_the_same_instant_pass_that_instant_only) {
    const SearchConditions conditions = Between(Time(10, 5), Time(10, 5));
    EXPECT_FALSE(PassesDateAndSize(conditions, EntryOf(Time(10, 4))));
    EXPECT_TRUE(PassesDateAndSize(conditions, EntryOf(Time(10, 5))));
    EXPECT_FALSE(PassesDateAndSize(conditions, EntryOf(Time(10, 6))));
}

TEST(DateFilter, with_the_first_date_after_the_second_nothing_passes) {
    const SearchConditions conditions = Between(Time(12, 5), Time(10, 5));
    for (const std::uint32_t high : {9U, 10U, 11U, 12U, 13U}) {
        EXPECT_FALSE(PassesDateAndSize(conditions, EntryOf(Time(high, 5)))) << high;
    }
}

TEST(DateFilter, times_are_not_looked_at_without_the_bit) {
    SearchConditions conditions = Between(Time(10, 5), Time(10, 5));
    conditions.flags = 0;
    EXPECT_TRUE(PassesDateAndSize(conditions, EntryOf(Time(1, 1))));
}

TEST(SizeFilter, min_passes_only_what_is_larger) {
    EXPECT_FALSE(PassesSize(SearchConditions::SizeAbove, 10240, 10239));
    EXPECT_FALSE(PassesSize(SearchConditions::SizeAbove, 10240, 10240));
    EXPECT_TRUE(PassesSize(SearchConditions::SizeAbove, 10240, 10241));
}

TEST(SizeFilter, min_0_excludes_what_is_empty) {
    EXPECT_FALSE(PassesSize(SearchConditions::SizeAbove, 0, 0));
    EXPECT_TRUE(PassesSize(SearchConditions::SizeAbove, 0, 1));
}

TEST(SizeFilter, max_passes_only_what_is_smaller) {
    EXPECT_TRUE(PassesSize(SearchConditions::SizeBelow, 1024, 0));
    EXPECT_TRUE(PassesSize(SearchConditions::SizeBelow, 1024, 1023));
    EXPECT_FALSE(PassesSize(SearchConditions::SizeBelow, 1024, 1024));
}

TEST(SizeFilter, max_0_excludes_everything) {
    EXPECT_FALSE(PassesSize(SearchConditions::SizeBelow, 0, 0));
    EXPECT_FALSE(PassesSize(SearchConditions::SizeBelow, 0, 0xFFFFFFFFU));
}

TEST(SizeFilter, sizes_are_compared_without_a_sign) {
    EXPECT_TRUE(PassesSize(SearchConditions::SizeAbove, 10, 0x80000000U));
    EXPECT_FALSE(PassesSize(SearchConditions::SizeBelow, 10, 0x80000000U));
    EXPECT_TRUE(PassesSize(SearchConditions::SizeBelow, 0x90000000U, 0x80000000U));
}

TEST(SizeFilter, the_high_half_of_the_size_is_ignored) {
    SearchConditions conditions;
    conditions.flags = SearchConditions::SizeAbove;
    conditions.sizeBound = 1024;
    WIN32_FIND_DATAW entry = EntryOf(Time(1, 1), 100);
    entry.nFileSizeHigh = 1;
    EXPECT_FALSE(PassesDateAndSize(conditions, entry));
}

TEST(SizeFilter, the_bound_is_not_looked_at_without_a_bit) {
    EXPECT_TRUE(PassesSize(0, 1024, 5000));
}

TEST(DateAndSizeFilter, both_conditions_have_to_hold) {
    SearchConditions conditions = Between(Time(10, 0), Time(12, 0));
    conditions.flags |= SearchConditions::SizeAbove;
    conditions.sizeBound = 100;
    EXPECT_TRUE(PassesDateAndSize(conditions, EntryOf(Time(11, 0), 101)));
    EXPECT_FALSE(PassesDateAndSize(conditions, EntryOf(Time(11, 0), 100)));
    EXPECT_FALSE(PassesDateAndSize(conditions, EntryOf(Time(13, 0), 101)));
}
