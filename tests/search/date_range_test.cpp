#include "search/date_range.h"

#include <gtest/gtest.h>

#include <array>

namespace {

// Year, month, day of week, day, hour, minute, second, millisecond.
using Fields = std::array<int, 8>;

Fields FieldsOf(const SYSTEMTIME& time) {
    return {time.wYear, time.wMonth,  time.wDayOfWeek, time.wDay,
            time.wHour, time.wMinute, time.wSecond,    time.wMilliseconds};
}

}  // namespace

TEST(DateRange, between_two_dates_runs_from_midnight_to_midnight) {
    const SYSTEMTIME first = {2002, 1, 4, 10, 13, 14, 15, 16};
    const SYSTEMTIME second = {2002, 2, 5, 1, 23, 59, 59, 999};
    const DateRange range = BetweenDates(first, second);
    EXPECT_EQ(FieldsOf(range.first), (Fields{2002, 1, 4, 10, 0, 0, 0, 0}));
    EXPECT_EQ(FieldsOf(range.second), (Fields{2002, 2, 5, 1, 0, 0, 0, 0}));
}

TEST(DateRange, dates_in_the_wrong_order_are_kept_in_it) {
    const DateRange range = BetweenDates({2002, 2, 5, 1, 0, 0, 0, 0}, {2002, 1, 4, 10, 0, 0, 0, 0});
    EXPECT_EQ(range.first.wMonth, 2);
    EXPECT_EQ(range.second.wMonth, 1);
}

TEST(DateRange, past_days_run_from_the_start_of_a_day_to_now) {
    const SYSTEMTIME now = {2002, 3, 5, 1, 13, 14, 15, 16};
    const DateRange range = PastDays(now, 3);
    // 1 March less three days is 26 February; the day of week stays that of now.
    EXPECT_EQ(FieldsOf(range.first), (Fields{2002, 2, 5, 26, 0, 0, 0, 0}));
    EXPECT_EQ(FieldsOf(range.second), (Fields{2002, 3, 5, 1, 13, 14, 15, 16}));
}

TEST(DateRange, past_0_days_starts_with_today) {
    const DateRange range = PastDays({2002, 3, 5, 1, 13, 14, 15, 16}, 0);
    EXPECT_EQ(FieldsOf(range.first), (Fields{2002, 3, 5, 1, 0, 0, 0, 0}));
    EXPECT_EQ(FieldsOf(range.second), (Fields{2002, 3, 5, 1, 13, 14, 15, 16}));
}

TEST(DateRange, past_days_cross_the_leap_day_and_the_year) {
    EXPECT_EQ(FieldsOf(PastDays({2000, 3, 0, 1, 1, 0, 0, 0}, 1).first), (Fields{2000, 2, 0, 29, 0, 0, 0, 0}));
    EXPECT_EQ(FieldsOf(PastDays({2001, 1, 0, 1, 1, 0, 0, 0}, 366).first),
              (Fields{2000, 1, 0, 1, 0, 0, 0, 0}));
}

TEST(DateRange, the_spins_error_word_counts_as_days) {
    // From 1 January 1822 to 1 January 2002 it is 180 * 365 + 44 = 65,744 days, 208 more than 65,536: the
    // 209th day of 1822, 28 July.
    EXPECT_EQ(FieldsOf(PastDays({2002, 1, 2, 1, 1, 0, 0, 0}, 0x10000).first),
              (Fields{1822, 7, 2, 28, 0, 0, 0, 0}));
}

TEST(DateRange, more_days_than_the_calendar_has_still_give_an_answer) {
    const SYSTEMTIME now = {2002, 3, 5, 1, 13, 14, 15, 16};
    for (const std::uint32_t days : {0x00FFFFFFU, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        const DateRange range = PastDays(now, days);
        EXPECT_EQ(FieldsOf(range.second), (Fields{2002, 3, 5, 1, 13, 14, 15, 16})) << days;
        EXPECT_EQ(range.first.wHour, 0) << days;
    }
}
