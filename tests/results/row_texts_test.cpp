#include "results/row_texts.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

std::wstring SizeText(DWORD lowSize) {
    wchar_t text[RowTextCapacity];
    FormatResultSize(lowSize, text);
    return text;
}

std::wstring FolderText(const std::wstring& path) {
    wchar_t folder[MAX_PATH];
    FolderOfResult(path.c_str(), folder);
    return folder;
}

std::wstring TimeText(const SYSTEMTIME& time) {
    wchar_t text[2 * RowTextCapacity];
    FormatResultTime(time, text);
    return text;
}

SYSTEMTIME Time(WORD year, WORD month, WORD day, WORD hour, WORD minute, WORD second) {
    SYSTEMTIME time = {};
    time.wYear = year;
    time.wMonth = month;
    time.wDay = day;
    time.wHour = hour;
    time.wMinute = minute;
    time.wSecond = second;
    return time;
}

}  // namespace

TEST(ResultSize, a_file_below_1024_bytes_shows_its_bytes) {
    EXPECT_EQ(SizeText(0), L"0");
    EXPECT_EQ(SizeText(1), L"1");
    EXPECT_EQ(SizeText(1023), L"1023");
}

TEST(ResultSize, from_1024_bytes_it_shows_whole_kilobytes_and_never_rounds_up) {
    EXPECT_EQ(SizeText(1024), L"1K");
    EXPECT_EQ(SizeText(2047), L"1K");
    EXPECT_EQ(SizeText(2048), L"2K");
    EXPECT_EQ(SizeText(1048575), L"1023K");
}

TEST(ResultSize, from_1048576_bytes_it_shows_whole_megabytes_and_never_rounds_up) {
    EXPECT_EQ(SizeText(1048576), L"1M");
    EXPECT_EQ(SizeText(2097151), L"1M");
    EXPECT_EQ(SizeText(5767168), L"5M");
    EXPECT_EQ(SizeText(0x7FFFFFFF), L"2047M");
}

TEST(ResultSize, from_2_gigabytes_the_low_word_reads_as_a_negative_number) {
    EXPECT_EQ(SizeText(0x80000000), L"-2147483648");
    EXPECT_EQ(SizeText(0xC0000000), L"-1073741824");
    EXPECT_EQ(SizeText(0xFFFFFFFF), L"-1");
}

TEST(ResultFolder, a_file_in_the_root_shows_the_separator_alone) {
    EXPECT_EQ(FolderText(L"\\a.txt"), L"\\");
}

TEST(ResultFolder, a_deeper_file_shows_everything_before_the_last_separator) {
    EXPECT_EQ(FolderText(L"\\My Documents\\a.txt"), L"\\My Documents");
    EXPECT_EQ(FolderText(L"\\a\\b\\c"), L"\\a\\b");
    EXPECT_EQ(FolderText(L"D:\\a.txt"), L"D:");
}

TEST(ResultFolder, a_path_without_a_separator_shows_no_folder) {
    EXPECT_EQ(FolderText(L"a.txt"), L"");
    EXPECT_EQ(FolderText(L""), L"");
}

TEST(ResultFolder, the_later_of_both_kinds_of_separator_counts) {
    EXPECT_EQ(FolderText(L"\\a/b\\c"), L"\\a/b");
    EXPECT_EQ(FolderText(L"\\a\\b/c"), L"\\a\\b");
}

TEST(ResultFolder, a_folder_never_ends_in_a_backslash_but_the_root_does) {
    EXPECT_EQ(FolderText(L"\\a\\\\b"), L"\\a");
    EXPECT_EQ(FolderText(L"\\\\b"), L"\\");
}

TEST(ResultFolder, one_pair_of_enclosing_quotes_is_no_part_of_the_path) {
    EXPECT_EQ(FolderText(L"\"\\a b\\c\""), L"\\a b");
    EXPECT_EQ(FolderText(L"\"\"\\a\\c\"\""), L"\"\\a");
    EXPECT_EQ(FolderText(L"\"\\a\\c"), L"\"\\a");
}

TEST(ResultFolder, the_longest_path_that_a_row_can_have_keeps_its_whole_folder) {
    const std::wstring folder = L"\\" + std::wstring(256, L'f');
    EXPECT_EQ(FolderText(folder + L"\\n"), folder);
}

TEST(ResultTime, date_and_time_stand_in_two_digits_each_with_one_blank_between) {
    EXPECT_EQ(TimeText(Time(2002, 7, 15, 9, 5, 30)), L"02/07/15 09:05:30");
    EXPECT_EQ(TimeText(Time(1999, 12, 31, 23, 59, 59)), L"99/12/31 23:59:59");
}

TEST(ResultTime, midnight_is_hour_zero) {
    EXPECT_EQ(TimeText(Time(2026, 1, 1, 0, 0, 0)), L"26/01/01 00:00:00");
}

TEST(ResultTime, the_afternoon_is_counted_on_to_24_hours) {
    EXPECT_EQ(TimeText(Time(2026, 1, 1, 13, 1, 2)), L"26/01/01 13:01:02");
}

TEST(ResultTime, any_time_reads_as_the_system_writes_it_and_none_where_the_system_writes_none) {
    std::mt19937 engine(3);
    const auto upTo = [&](int most) {
        return static_cast<WORD>(std::uniform_int_distribution<int>(0, most)(engine));
    };
    for (int round = 0; round < 2000; ++round) {
        // Few days, so that they come again, in years whose texts are kept in one place; now and then a
        // moment that is none.
        SYSTEMTIME time = Time(static_cast<WORD>(1999 + upTo(16)), static_cast<WORD>(1 + upTo(1)),
                               static_cast<WORD>(1 + upTo(1)), upTo(23), upTo(59), upTo(59));
        if (upTo(20) == 0) time.wHour = static_cast<WORD>(24 + upTo(3));
        if (upTo(20) == 0) time.wMinute = 60;
        if (upTo(20) == 0) time.wSecond = 60;
        if (upTo(20) == 0) time.wMilliseconds = static_cast<WORD>(999 + upTo(1));
        if (upTo(20) == 0) time.wMonth = static_cast<WORD>(upTo(1) * 13);
        wchar_t date[RowTextCapacity] = L"";
        wchar_t clock[RowTextCapacity] = L"";
        GetDateFormatW(LOCALE_SYSTEM_DEFAULT, 0, &time, L"yy'/'MM'/'dd", date, RowTextCapacity);
        GetTimeFormatW(LOCALE_SYSTEM_DEFAULT, 0, &time, L"HH':'mm':'ss", clock, RowTextCapacity);
        ASSERT_EQ(TimeText(time), std::wstring(date) + L" " + clock) << "round " << round;
    }
}
