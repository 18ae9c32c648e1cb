#include "fileops/dos_time.h"

#include <gtest/gtest.h>

namespace {

DosTime Packed(WORD year, WORD month, WORD day, WORD hour = 0, WORD minute = 0, WORD second = 0,
               WORD milliseconds = 0) {
    return PackDosTime({year, month, 0, day, hour, minute, second, milliseconds});
}

int Compared(const DosTime& first, const DosTime& second) {
    EXPECT_EQ(CompareDosTimes(second, first), -CompareDosTimes(first, second));
    return CompareDosTimes(first, second);
}

}  // namespace

TEST(DosTime, packs_year_month_and_day) {
    // 0 * 512 + 1 * 32 + 1, 23 * 512 + 12 * 32 + 31 and 127 * 512 + 12 * 32 + 31
    EXPECT_EQ(Packed(1980, 1, 1).date, 33);
    EXPECT_EQ(Packed(2003, 12, 31).date, 12191);
    EXPECT_EQ(Packed(2107, 12, 31).date, 65439);
}

TEST(DosTime, keeps_the_year_in_seven_bits) {
    EXPECT_EQ(Packed(2108, 1, 1).date, Packed(1980, 1, 1).date);
    // 1979 is one less than 1980, and so the last of 128
    EXPECT_EQ(Packed(1979, 1, 1).date, Packed(2107, 1, 1).date);
}

TEST(DosTime, packs_hour_minute_and_half_of_the_seconds) {
    // 1 * 2048 + 2 * 32 + 3 and 23 * 2048 + 59 * 32 + 29
    EXPECT_EQ(Packed(2003, 1, 1, 1, 2, 6).time, 2115);
    EXPECT_EQ(Packed(2003, 1, 1, 1, 2, 7).time, 2115);
    EXPECT_EQ(Packed(2003, 1, 1, 23, 59, 59, 999).time, 49021);
    EXPECT_EQ(Packed(2003, 1, 1).time, 0);
}

TEST(DosTime, compares_equal_within_the_same_two_seconds) {
    EXPECT_EQ(Compared(Packed(2003, 1, 1, 4, 5, 6), Packed(2003, 1, 1, 4, 5, 7, 999)), 0);
    EXPECT_EQ(Compared(Packed(2003, 1, 1, 4, 5, 8), Packed(2003, 1, 1, 4, 5, 7, 999)), 1);
}

TEST(DosTime, compares_each_part_before_the_smaller_ones) {
    const DosTime late = Packed(2003, 6, 15, 23, 59, 58);
    EXPECT_EQ(Compared(Packed(2004, 1, 1), late), 1);
    EXPECT_EQ(Compared(Packed(2003, 7, 1), late), 1);
    EXPECT_EQ(Compared(Packed(2003, 6, 16), late), 1);
    EXPECT_EQ(Compared(Packed(2003, 6, 15, 22, 59, 58), late), -1);
    EXPECT_EQ(Compared(Packed(2003, 6, 15, 23, 58, 58), late), -1);
    EXPECT_EQ(Compared(Packed(2003, 6, 15, 23, 59, 56), late), -1);
    EXPECT_EQ(Compared(late, late), 0);
}

TEST(DosTime, takes_a_year_past_2107_for_an_early_one) {
    EXPECT_EQ(Compared(Packed(2108, 1, 1), Packed(2107, 1, 1)), -1);
}
