#include "search/search_conditions.h"

#include <gtest/gtest.h>

TEST(SearchConditions, the_bits_have_their_values) {
    EXPECT_EQ(SearchConditions::TypeFilter, 0x0001);
    EXPECT_EQ(SearchConditions::DateRange, 0x0002);
    EXPECT_EQ(SearchConditions::SizeAbove, 0x0004);
    EXPECT_EQ(SearchConditions::SizeBelow, 0x0008);
    EXPECT_EQ(SearchConditions::ContentString, 0x0100);
    EXPECT_EQ(SearchConditions::IgnoreCase, 0x0200);
    EXPECT_EQ(SearchConditions::SubFolders, 0x1000);
}

TEST(SearchConditions, a_new_record_has_no_condition) {
    const SearchConditions conditions;
    EXPECT_EQ(conditions.flags, 0);
    EXPECT_EQ(conditions.sizeBound, 0U);
    EXPECT_STREQ(conditions.contentPattern, "");
}

TEST(SearchConditions, the_content_pattern_holds_520_bytes) {
    EXPECT_EQ(sizeof(SearchConditions::contentPattern), 520U);
}

TEST(SearchConditions, each_bit_is_told_from_the_others) {
    SearchConditions conditions;
    conditions.flags = SearchConditions::SizeBelow | SearchConditions::SubFolders;
    EXPECT_TRUE(conditions.Has(SearchConditions::SizeBelow));
    EXPECT_TRUE(conditions.Has(SearchConditions::SubFolders));
    EXPECT_FALSE(conditions.Has(SearchConditions::SizeAbove));
    EXPECT_FALSE(conditions.Has(SearchConditions::IgnoreCase));
}
