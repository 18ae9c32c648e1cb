#include "results/sort_keys.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <string>

namespace {

int CompareTexts(std::wstring first, std::wstring second) {
    FoldForComparison(first.data());
    FoldForComparison(second.data());
    return CompareFoldedTexts(first.c_str(), second.c_str());
}

}  // namespace

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

TEST(SortTexts, folded_texts_compare_like_the_texts_in_the_c_librarys_comparison) {
    static constexpr wchar_t Units[] = {L'a',      L'A',      L'z',      L'Z',      L'[',      L'`',
                                        L'_',      L'0',      L' ',      L'\u00C0', L'\u00E0', L'\u3042',
                                        L'\uFF21', L'\uFF41', L'\uFF76', L'\xD800'};
    std::mt19937 engine(5);
    const auto someText = [&] {
        std::wstring text;
        for (auto units = engine() % 5; units > 0; --units)
            text += Units[engine() % std::size(Units)];
        return text;
    };
    const auto sign = [](int number) { return number > 0 ? 1 : number < 0 ? -1 : 0; };
    for (int round = 0; round < 20000; ++round) {
        const std::wstring first = someText();
        const std::wstring second = someText();
        ASSERT_EQ(CompareTexts(first, second), sign(_wcsicmp(first.c_str(), second.c_str())))
            << "round " << round;
    }
}
