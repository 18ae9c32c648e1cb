#include "search/calendar.h"

#include <gtest/gtest.h>

#include "tests/search/plain_calendar.h"

namespace {

SYSTEMTIME Date(int year, int month, int day) {
    SYSTEMTIME date = {};
    date.wYear = static_cast<WORD>(year);
    date.wMonth = static_cast<WORD>(month);
    date.wDay = static_cast<WORD>(day);
    return date;
}

testing::AssertionResult IsDate(const SYSTEMTIME& date, int year, int month, int day) {
    if (date.wYear == year && date.wMonth == month && date.wDay == day) return testing::AssertionSuccess();
    return testing::AssertionFailure() << date.wYear << "-" << date.wMonth << "-" << date.wDay
                                       << " instead of " << year << "-" << month << "-" << day;
}

}  // namespace

TEST(Calendar, before_1582_every_fourth_year_is_a_leap_year) {
    EXPECT_TRUE(IsLeapYear(1500));
    EXPECT_TRUE(IsLeapYear(4));
    EXPECT_TRUE(IsLeapYear(100));
    EXPECT_TRUE(IsLeapYear(1580));
    EXPECT_FALSE(IsLeapYear(1581));
    EXPECT_FALSE(IsLeapYear(1));
}

TEST(Calendar, from_1582_a_century_is_a_leap_year_only_every_400_years) {
    EXPECT_FALSE(IsLeapYear(1582));
    EXPECT_TRUE(IsLeapYear(1584));
    EXPECT_TRUE(IsLeapYear(1600));
    EXPECT_FALSE(IsLeapYear(1700));
    EXPECT_FALSE(IsLeapYear(1900));
    EXPECT_TRUE(IsLeapYear(2000));
    EXPECT_TRUE(IsLeapYear(2004));
    EXPECT_FALSE(IsLeapYear(2001));
    EXPECT_FALSE(IsLeapYear(2100));
}

TEST(Calendar, years_before_the_first_keep_the_sign_of_the_remainder) {
    EXPECT_TRUE(IsLeapYear(0));
    EXPECT_TRUE(IsLeapYear(-4));
    EXPECT_FALSE(IsLeapYear(-1));
    EXPECT_FALSE(IsLeapYear(-3));
}

TEST(Calendar, a_month_outside_1_to_12_and_a_year_below_1_are_invalid) {
    EXPECT_FALSE(IsValidDate(Date(2001, 0, 1)));
    EXPECT_FALSE(IsValidDate(Date(2001, 13, 1)));
    EXPECT_FALSE(IsValidDate(Date(2000, 0, 1)));
    EXPECT_FALSE(IsValidDate(Date(2000, 13, 1)));
    EXPECT_FALSE(IsValidDate(Date(0, 1, 1)));
    EXPECT_TRUE(IsValidDate(Date(1, 1, 1)));
}

TEST(Calendar, in_a_leap_year_any_day_passes) {
    EXPECT_TRUE(IsValidDate(Date(2000, 2, 31)));
    EXPECT_TRUE(IsValidDate(Date(2000, 4, 99)));
    EXPECT_TRUE(IsValidDate(Date(2000, 1, 0)));
}

TEST(Calendar, in_a_common_year_each_month_has_its_length) {
    constexpr int Lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month) {
        EXPECT_FALSE(IsValidDate(Date(2001, month, 0))) << month;
        EXPECT_TRUE(IsValidDate(Date(2001, month, 1))) << month;
        EXPECT_TRUE(IsValidDate(Date(2001, month, Lengths[month - 1]))) << month;
        EXPECT_FALSE(IsValidDate(Date(2001, month, Lengths[month - 1] + 1))) << month;
    }
    EXPECT_FALSE(IsValidDate(Date(2001, 2, 29)));
}

TEST(Calendar, day_1_is_1_january_of_the_year_1) {
    EXPECT_EQ(DaysFromDate(Date(1, 1, 1)), 1);
    SYSTEMTIME date = {};
    EXPECT_TRUE(DateFromDays(1, date));
    EXPECT_TRUE(IsDate(date, 1, 1, 1));
}

TEST(Calendar, the_day_after_4_october_1582_is_15_october) {
    EXPECT_EQ(DaysFromDate(Date(1582, 10, 4)), 577737);
    EXPECT_EQ(DaysFromDate(Date(1582, 10, 15)), 577738);
    SYSTEMTIME date = {};
    EXPECT_TRUE(DateFromDays(577737, date));
    EXPECT_TRUE(IsDate(date, 1582, 10, 4));
    EXPECT_TRUE(DateFromDays(577738, date));
    EXPECT_TRUE(IsDate(date, 1582, 10, 15));
}

TEST(Calendar, known_days_have_their_numbers) {
    // 365 * 2000 + 500 - 20 + 5 + 12 - 10 days before 2001; the 10 dropped ones are no days.
    EXPECT_EQ(DaysFromDate(Date(2001, 1, 1)), 730488);
    EXPECT_EQ(DaysFromDate(Date(2000, 12, 31)), 730487);
    // 31 days of January on from 1 January 2002, which is 365 days after that of 2001.
    EXPECT_EQ(DaysFromDate(Date(2002, 2, 1)), 730488 + 365 + 31);
}

TEST(Calendar, an_invalid_date_has_the_number_minus_1) {
    EXPECT_EQ(DaysFromDate(Date(2001, 2, 29)), -1);
    EXPECT_EQ(DaysFromDate(Date(2001, 13, 1)), -1);
    EXPECT_EQ(DaysFromDate(Date(0, 1, 1)), -1);
}

TEST(Calendar, a_day_beyond_its_month_in_a_leap_year_counts_on) {
    EXPECT_EQ(DaysFromDate(Date(2000, 2, 31)), DaysFromDate(Date(2000, 3, 2)));
    EXPECT_EQ(DaysFromDate(Date(2000, 1, 0)), DaysFromDate(Date(1999, 12, 31)));
}

TEST(Calendar, writing_a_date_leaves_the_other_fields_alone) {
    SYSTEMTIME date = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_TRUE(DateFromDays(730488, date));
    EXPECT_TRUE(IsDate(date, 2001, 1, 1));
    EXPECT_EQ(date.wDayOfWeek, 3);
    EXPECT_EQ(date.wHour, 5);
    EXPECT_EQ(date.wMinute, 6);
    EXPECT_EQ(date.wSecond, 7);
    EXPECT_EQ(date.wMilliseconds, 8);
}

TEST(Calendar, every_day_up_to_the_year_3000_has_the_number_after_the_day_before_and_comes_back) {
    PlainDay day;
    for (int number = 1; day.year <= 3000; ++number, day.Advance()) {
        ASSERT_EQ(DaysFromDate(Date(day.year, day.month, day.day)), number)
            << day.year << "-" << day.month << "-" << day.day;
        SYSTEMTIME date = {};
        ASSERT_TRUE(DateFromDays(number, date)) << number;
        ASSERT_TRUE(IsDate(date, day.year, day.month, day.day)) << number;
    }
}

TEST(Calendar, day_numbers_before_the_first_give_a_date_that_is_not_valid) {
    SYSTEMTIME date = {};
    // One step back from the year 1: the year 0 is taken for a leap year of 366 days, less the one day.
    EXPECT_FALSE(DateFromDays(0, date));
    EXPECT_TRUE(IsDate(date, 0, 12, 31));
    EXPECT_FALSE(DateFromDays(-1, date));
    EXPECT_TRUE(IsDate(date, 0, 12, 30));
}

TEST(Calendar, a_day_left_over_after_december_stays_in_december) {
    SYSTEMTIME date = {};
    // -4000 / 365 = -10, the rest -350; -350 + 10 / 4 = -348; the year -10 adds 365: 17 left, and the year is
    // -10.
    EXPECT_TRUE(DateFromDays(-4000, date));
    EXPECT_TRUE(IsDate(date, 65526, 1, 17));
    // -730000 / 365 = -2000, rest 0; 2000 / 4 = 500 left in the year -1999: 500 - 334 in December.
    EXPECT_FALSE(DateFromDays(-730000, date));
    EXPECT_TRUE(IsDate(date, 63537, 12, 166));
}

TEST(Calendar, the_ends_of_the_day_numbers_come_to_an_end) {
    SYSTEMTIME date = {};
    DateFromDays(2147483647, date);
    EXPECT_GE(date.wMonth, 1);
    EXPECT_LE(date.wMonth, 12);
    DateFromDays(-2147483647 - 1, date);
    EXPECT_EQ(date.wMonth, 12);
}
