#include "results/sort_keys.h"

#include <gtest/gtest.h>

TEST(ParseShownSize, plain_kilobytes_and_megabytes_become_bytes) {
    EXPECT_EQ(ParseShownSize(L"517"), 517);
    EXPECT_EQ(ParseShownSize(L"0"), 0);
    EXPECT_EQ(ParseShownSize(L"12K"), 12288);
    EXPECT_EQ(ParseShownSize(L"1023K"), 1047552);
    EXPECT_EQ(ParseShownSize(L"3M"), 3145728);
    EXPECT_EQ(ParseShownSize(L"2047M"), 2146435072);
}

TEST(ParseShownSize, the_empty_cell_of_a_folder_is_0) {
    EXPECT_EQ(ParseShownSize(L""), 0);
}

TEST(ParseShownSize, a_file_of_2_gigabytes_and_more_shows_and_sorts_as_a_negative_number) {
    EXPECT_EQ(ParseShownSize(L"-2147483648"), -2147483647 - 1);
    EXPECT_EQ(ParseShownSize(L"-1"), -1);
}

TEST(ParseShownSize, the_first_of_the_two_letters_counts) {
    EXPECT_EQ(ParseShownSize(L"2KM"), 2048);
    EXPECT_EQ(ParseShownSize(L"2MK"), 2097152);
    EXPECT_EQ(ParseShownSize(L"2 K"), 2048);
    EXPECT_EQ(ParseShownSize(L"2k"), 2);
}

TEST(CompareSizes, the_greater_number_comes_later) {
    EXPECT_EQ(CompareSizes(2, 1), 1);
    EXPECT_EQ(CompareSizes(1, 2), -1);
    EXPECT_EQ(CompareSizes(2, 2), 0);
    EXPECT_EQ(CompareSizes(-2147483647 - 1, 2147483647), -1);
}

TEST(CompareTexts, letter_case_does_not_count) {
    EXPECT_EQ(CompareTexts(L"README.txt", L"readme.TXT"), 0);
    EXPECT_LT(CompareTexts(L"Alpha", L"beta"), 0);
    EXPECT_GT(CompareTexts(L"Beta", L"alpha"), 0);
    EXPECT_LT(CompareTexts(L"a", L"ab"), 0);
}

TEST(CompareTexts, times_of_one_century_are_in_order_and_the_year_99_comes_after_02) {
    EXPECT_LT(CompareTexts(L"02/07/15 09:05:30", L"02/07/15 09:05:31"), 0);
    EXPECT_LT(CompareTexts(L"02/07/15 23:59:59", L"02/08/01 00:00:00"), 0);
    EXPECT_GT(CompareTexts(L"99/12/31 23:59:59", L"02/01/01 00:00:00"), 0);
}
