#include "search/text_conversion.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/windows_ce.h"

namespace {

constexpr UINT ShiftJis = 932;

std::string ToBytes(const std::wstring& source, int size = 520) {
    std::string bytes(static_cast<std::size_t>(size), '#');
    SystemToMultiByte(source.c_str(), bytes.data(), size);
    return bytes.c_str();
}

std::wstring ToUnits(const std::string& source, int size = 260) {
    std::wstring units(static_cast<std::size_t>(size), L'#');
    SystemToWide(source.c_str(), units.data(), size);
    return units.c_str();
}

}  // namespace

TEST(SystemTextConversion, ascii_is_the_same_in_every_code_page) {
    EXPECT_EQ(ToBytes(L"abc 1"), "abc 1");
    EXPECT_EQ(ToBytes(L""), "");
    EXPECT_EQ(ToUnits("abc 1"), L"abc 1");
    EXPECT_EQ(ToUnits(""), L"");
}

TEST(SystemTextConversion, a_text_that_does_not_fit_is_cut) {
    EXPECT_EQ(ToBytes(std::wstring(600, L'a')), std::string(519, 'a'));
    EXPECT_EQ(ToBytes(L"abcdef", 4), "abc");
    EXPECT_EQ(ToUnits(std::string(600, 'a')), std::wstring(259, L'a'));
    EXPECT_EQ(ToUnits("abcdef", 4), L"abc");
}

TEST(SystemTextConversion, a_text_that_fits_exactly_is_not_cut) {
    EXPECT_EQ(ToBytes(L"abc", 4), "abc");
    EXPECT_EQ(ToUnits("abc", 4), L"abc");
}

TEST(SystemTextConversion, a_destination_of_no_size_is_left_alone_and_one_of_one_is_terminated) {
    char bytes[1] = {'#'};
    SystemToMultiByte(L"abc", bytes, 0);
    EXPECT_EQ(bytes[0], '#');
    SystemToMultiByte(L"abc", bytes, 1);
    EXPECT_EQ(bytes[0], '\0');
    wchar_t units[1] = {L'#'};
    SystemToWide("abc", units, 0);
    EXPECT_EQ(units[0], L'#');
    SystemToWide("abc", units, 1);
    EXPECT_EQ(units[0], L'\0');
}

TEST(SystemTextConversion, on_a_japanese_system_the_bytes_are_shift_jis) {
    if (GetACP() != ShiftJis) GTEST_SKIP() << "the system's code page is " << GetACP();
    EXPECT_EQ(ToBytes(L"a\u65E5\u672C\uFF76"), "a\x93\xFA\x96\x7B\xB6");
    EXPECT_EQ(ToUnits("a\x93\xFA\x96\x7B\xB6"), L"a\u65E5\u672C\uFF76");
}

TEST(SystemTextConversion, on_a_japanese_system_a_cut_text_ends_with_a_whole_character) {
    if (GetACP() != ShiftJis) GTEST_SKIP() << "the system's code page is " << GetACP();
    EXPECT_EQ(ToBytes(L"a\u65E5\u672C", 5), "a\x93\xFA");
    EXPECT_EQ(ToUnits("a\x93\xFA\x96\x7B", 3), L"a\u65E5");
}
