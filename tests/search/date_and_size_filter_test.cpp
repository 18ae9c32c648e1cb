#include "search/date_and_size_filter.h"

#include <gtest/gtest.h>

namespace {

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
