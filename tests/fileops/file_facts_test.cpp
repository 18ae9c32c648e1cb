#include "fileops/file_facts.h"

#include "fileops/file_details.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <iterator>
#include <string>

#include "platform/windows_ce.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/temp_tree.h"

namespace {

std::wstring SizeDetails(DWORD size) {
    wchar_t text[64];
    FormatSizeDetails(size, text, std::size(text));
    return text;
}

BOOL NineHoursLater(const FILETIME* utc, FILETIME* local) {
    ULARGE_INTEGER time;
    time.LowPart = utc->dwLowDateTime;
    time.HighPart = utc->dwHighDateTime;
    time.QuadPart += 9ULL * 60 * 60 * 10000000;
    *local = {time.LowPart, time.HighPart};
    return TRUE;
}

// The device's own short forms of 2002-07-15 09:05:30.
std::wstring ShortForms() {
    const SYSTEMTIME local = {2002, 7, 1, 15, 9, 5, 30, 0};
    wchar_t date[80];
    wchar_t clock[80];
    GetDateFormatW(LOCALE_SYSTEM_DEFAULT, 0, &local, nullptr, date, 80);
    GetTimeFormatW(LOCALE_SYSTEM_DEFAULT, 0, &local, nullptr, clock, 80);
    return std::wstring(date) + L" " + clock;
}

std::wstring DetailsOf(const std::wstring& path) {
    wchar_t text[FileDetailsCapacity] = L"as before";
    FormatFileDetails(path.c_str(), text);
    return text;
}

void SetWritten(const std::wstring& path, const SYSTEMTIME& utc) {
    FILETIME time;
    ASSERT_TRUE(SystemTimeToFileTime(&utc, &time));
    const HANDLE file =
        CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, &time));
    CloseHandle(file);
}

}  // namespace

TEST(FileFacts, a_program_ends_in_exe_or_com_in_any_case) {
    EXPECT_TRUE(IsProgramFile(L"a.exe"));
    EXPECT_TRUE(IsProgramFile(L"a.EXE"));
    EXPECT_TRUE(IsProgramFile(L"a.com"));
    EXPECT_TRUE(IsProgramFile(L"\\folder\\a.Com"));
    EXPECT_FALSE(IsProgramFile(L"a.txt"));
    EXPECT_FALSE(IsProgramFile(L"a.exe.txt"));
    EXPECT_FALSE(IsProgramFile(L"aexe1"));
}

TEST(FileFacts, an_ending_alone_is_no_program) {
    EXPECT_FALSE(IsProgramFile(L".exe"));
    EXPECT_FALSE(IsProgramFile(L".com"));
    EXPECT_FALSE(IsProgramFile(L""));
}

TEST(FileFacts, sizes_below_100_kilobytes_show_one_decimal_cut_off) {
    EXPECT_EQ(SizeDetails(0), L"0.0KB (0 bytes)");
    EXPECT_EQ(SizeDetails(1023), L"0.9KB (1023 bytes)");
    EXPECT_EQ(SizeDetails(1024), L"1.0KB (1024 bytes)");
    EXPECT_EQ(SizeDetails(1126), L"1.0KB (1126 bytes)");
    EXPECT_EQ(SizeDetails(1127), L"1.1KB (1127 bytes)");
    EXPECT_EQ(SizeDetails(102399), L"99.9KB (102399 bytes)");
}

TEST(FileFacts, sizes_from_100_kilobytes_show_whole_ones) {
    EXPECT_EQ(SizeDetails(102400), L"100KB (102400 bytes)");
    EXPECT_EQ(SizeDetails(103423), L"100KB (103423 bytes)");
    EXPECT_EQ(SizeDetails(2147483647), L"2097151KB (2147483647 bytes)");
}

TEST(FileFacts, a_size_is_written_as_a_signed_number) {
    EXPECT_EQ(SizeDetails(2147483648u), L"2097152KB (-2147483648 bytes)");
}

TEST(FileFacts, details_are_the_size_and_the_local_time_on_two_lines) {
    TempTree tree;
    const Replaced zone(ce::systemCalls.fileTimeToLocalFileTime, &NineHoursLater);
    const std::wstring path = tree.AddFile(L"a.txt", std::string(1023, 'x'));
    SetWritten(path, {2002, 7, 1, 15, 0, 5, 30, 0});
    EXPECT_EQ(DetailsOf(path), L"0.9KB (1023 bytes)\n" + ShortForms());
}

TEST(FileFacts, details_take_the_low_32_bits_of_a_size) {
    const Replaced zone(ce::systemCalls.fileTimeToLocalFileTime, &NineHoursLater);
    const Replaced find(ce::fileCalls.findFirstFile, [](const wchar_t*, WIN32_FIND_DATAW* data) -> HANDLE {
        *data = {};
        data->nFileSizeHigh = 1;
        data->nFileSizeLow = 102400;
        const SYSTEMTIME written = {2002, 7, 1, 15, 0, 5, 30, 0};
        SystemTimeToFileTime(&written, &data->ftLastWriteTime);
        return data;
    });
    const Replaced close(ce::fileCalls.findClose, [](HANDLE) -> BOOL { return TRUE; });
    EXPECT_EQ(DetailsOf(L"\\large.bin"), L"100KB (102400 bytes)\n" + ShortForms());
}

TEST(FileFacts, details_of_a_missing_file_are_empty) {
    TempTree tree;
    EXPECT_EQ(DetailsOf(tree.Path(L"missing.txt")), L"");
}

TEST(FileFacts, an_attribute_is_there_only_when_it_can_be_read) {
    TempTree tree;
    const std::wstring path = tree.AddFile(L"a.txt");
    EXPECT_FALSE(HasAttribute(path.c_str(), FILE_ATTRIBUTE_DIRECTORY));
    EXPECT_TRUE(HasAttribute(tree.Root().c_str(), FILE_ATTRIBUTE_DIRECTORY));
    EXPECT_FALSE(HasAttribute(tree.Path(L"missing").c_str(), FILE_ATTRIBUTE_DIRECTORY));
}
