#include "search/size_bound.h"

#include <gtest/gtest.h>

TEST(SizeBound, the_empty_entry_is_no_bound_and_writes_0) {
    std::uint32_t bound = 77;
    EXPECT_EQ(SizeBoundOf(0, 10, bound), SizeAnswer::None);
    EXPECT_EQ(bound, 0U);
}

TEST(SizeBound, the_second_entry_is_min_in_units_of_1024_bytes) {
    std::uint32_t bound = 77;
    EXPECT_EQ(SizeBoundOf(1, 10, bound), SizeAnswer::Min);
    EXPECT_EQ(bound, 10240U);
}

TEST(SizeBound, the_third_entry_is_max_with_the_same_bound) {
    std::uint32_t bound = 77;
    EXPECT_EQ(SizeBoundOf(2, 10, bound), SizeAnswer::Max);
    EXPECT_EQ(bound, 10240U);
}

TEST(SizeBound, without_a_selection_the_bound_is_not_written) {
    for (const int index : {-1, 3, 1000}) {
        std::uint32_t bound = 77;
        EXPECT_EQ(SizeBoundOf(index, 10, bound), SizeAnswer::None);
        EXPECT_EQ(bound, 77U);
    }
}

TEST(SizeBound, the_spins_error_word_is_carried_into_the_bound) {
    std::uint32_t bound = 0;
    EXPECT_EQ(SizeBoundOf(1, 0x10000, bound), SizeAnswer::Min);
    EXPECT_EQ(bound, 0x04000000U);
    EXPECT_EQ(SizeBoundOf(2, 0x10005, bound), SizeAnswer::Max);
    EXPECT_EQ(bound, 0x04001400U);
}

TEST(SizeBound, bits_shifted_out_are_lost) {
    std::uint32_t bound = 0;
    EXPECT_EQ(SizeBoundOf(1, 0xFFFFFFFFU, bound), SizeAnswer::Min);
    EXPECT_EQ(bound, 0xFFFFFC00U);
}
