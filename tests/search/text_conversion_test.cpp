#include "search/text_conversion.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "base/program_context.h"
#include "tkconv/tkconv.h"

namespace {

// The four routines fit the slots of the program context.
constexpr ToMultiByteRoutine ToMultiByteRoutines[] = {DefaultToMultiByte, LibraryToMultiByte};
constexpr ToWideRoutine ToWideRoutines[] = {DefaultToWide, LibraryToWide};

// And the library's exports fit what is set from them.
static_assert(std::is_same_v<decltype(&unicode2sjis), UnicodeToSjisFunction>);
static_assert(std::is_same_v<decltype(&sjis2unicode), SjisToUnicodeFunction>);

// A library that knows a handful of characters.
unsigned short FakeUnicodeToSjis(unsigned short unit) {
    if (unit < 0x80) return unit;
    switch (unit) {
        case 0x65E5:
            return 0x93FA;
        case 0x672C:
            return 0x967B;
        case 0xFF76:
            return 0xB6;
        default:
            return 0;
    }
}

unsigned short FakeSjisToUnicode(unsigned char lead, unsigned char trail) {
    if (lead == 0x93 && trail == 0xFA) return 0x65E5;
    if (lead == 0x96 && trail == 0x7B) return 0x672C;
    return 0;
}

std::string ToBytes(ToMultiByteRoutine routine, const std::wstring& source, int size = 520) {
    std::string bytes(static_cast<std::size_t>(size), '#');
    routine(source.c_str(), bytes.data(), size);
    return bytes.c_str();
}

std::wstring ToUnits(ToWideRoutine routine, const std::string& source, int size = 260) {
    std::wstring units(static_cast<std::size_t>(size), L'#');
    routine(source.c_str(), units.data(), size);
    return units.c_str();
}

class LibraryConversion : public testing::Test {
  protected:
    LibraryConversion() { UseConversionLibrary(FakeUnicodeToSjis, FakeSjisToUnicode); }
    ~LibraryConversion() override { UseConversionLibrary(nullptr, nullptr); }
};

}  // namespace

TEST(DefaultConversion, each_unit_is_cut_to_its_low_8_bits) {
    EXPECT_EQ(ToBytes(DefaultToMultiByte, L"abc"), "abc");
    EXPECT_EQ(ToBytes(DefaultToMultiByte, L"\u00E9\u65E5\u672C"), "\xE9\xE5\x2C");
    EXPECT_EQ(ToBytes(DefaultToMultiByte, L""), "");
}

TEST(DefaultConversion, a_unit_with_the_low_byte_0_ends_the_text) {
    EXPECT_EQ(ToBytes(DefaultToMultiByte, L"\u0100"), "");
    EXPECT_EQ(ToBytes(DefaultToMultiByte, L"ab\u3000cd"), "ab");
}

TEST(DefaultConversion, as_many_as_519_bytes_fit_the_content_pattern) {
    EXPECT_EQ(ToBytes(DefaultToMultiByte, std::wstring(600, L'a')), std::string(519, 'a'));
}

TEST(DefaultConversion, each_byte_becomes_a_unit_of_the_same_value) {
    EXPECT_EQ(ToUnits(DefaultToWide, "a\x81\xFF"), L"a\u0081\u00FF");
    EXPECT_EQ(ToUnits(DefaultToWide, "abcdef", 4), L"abc");
}

TEST(TextConversion, a_destination_of_no_size_is_left_alone_and_one_of_one_is_terminated) {
    for (const bool withLibrary : {false, true}) {
        UseConversionLibrary(withLibrary ? FakeUnicodeToSjis : nullptr,
                             withLibrary ? FakeSjisToUnicode : nullptr);
        for (const ToMultiByteRoutine routine : ToMultiByteRoutines) {
            char bytes[1] = {'#'};
            routine(L"abc", bytes, 0);
            EXPECT_EQ(bytes[0], '#');
            routine(L"abc", bytes, 1);
            EXPECT_EQ(bytes[0], '\0');
        }
        for (const ToWideRoutine routine : ToWideRoutines) {
            wchar_t units[1] = {L'#'};
            routine("abc", units, 0);
            EXPECT_EQ(units[0], L'#');
            routine("abc", units, 1);
            EXPECT_EQ(units[0], L'\0');
        }
    }
    UseConversionLibrary(nullptr, nullptr);
}

TEST_F(LibraryConversion, a_code_above_0xff_is_its_high_byte_and_its_low_byte) {
    EXPECT_EQ(ToBytes(LibraryToMultiByte, L"a\u65E5\u672C!"), "a\x93\xFA\x96\x7B!");
}

TEST_F(LibraryConversion, a_code_up_to_0xff_is_its_low_byte_alone) {
    EXPECT_EQ(ToBytes(LibraryToMultiByte, L"\uFF76z"), "\xB6z");
}

TEST_F(LibraryConversion, a_unit_without_a_code_becomes_a_question_mark) {
    EXPECT_EQ(ToBytes(LibraryToMultiByte, L"a\u00E9\u0100b"), "a??b");
}

TEST_F(LibraryConversion, a_two_byte_code_that_no_longer_fits_is_cut_after_its_high_byte) {
    EXPECT_EQ(ToBytes(LibraryToMultiByte, L"a\u65E5\u672C", 5), "a\x93\xFA\x96");
    EXPECT_EQ(ToBytes(LibraryToMultiByte, L"a\u65E5\u672C", 4), "a\x93\xFA");
    EXPECT_EQ(ToBytes(LibraryToMultiByte, L"\u65E5", 2), "\x93");
}

TEST_F(LibraryConversion, a_lead_byte_and_its_trail_byte_become_one_unit) {
    EXPECT_EQ(ToUnits(LibraryToWide, "a\x93\xFA\x96\x7B!"), L"a\u65E5\u672C!");
}

TEST_F(LibraryConversion, a_pair_without_a_unit_becomes_a_question_mark) {
    EXPECT_EQ(ToUnits(LibraryToWide, "\x81@\xFDqz"), L"??z");
}

TEST_F(LibraryConversion, a_lead_byte_at_the_end_becomes_a_question_mark) {
    EXPECT_EQ(ToUnits(LibraryToWide, "ab\x93"), L"ab?");
}

TEST_F(LibraryConversion, a_single_byte_0xa1_to_0xdf_becomes_half_width_katakana) {
    EXPECT_EQ(ToUnits(LibraryToWide, "\xA1\xB6\xDF"), L"\uFF61\uFF76\uFF9F");
}

TEST_F(LibraryConversion, any_other_single_byte_becomes_the_unit_of_the_same_value) {
    EXPECT_EQ(ToUnits(LibraryToWide, "a\x7F\x80\xA0\xFE\xFF"), L"a\u007F\u0080\u00A0\u00FE\u00FF");
}

TEST_F(LibraryConversion, the_wide_text_is_cut_where_the_destination_ends) {
    EXPECT_EQ(ToUnits(LibraryToWide, "a\x93\xFA\x96\x7B", 3), L"a\u65E5");
}

TEST(LibraryConversionWithoutExports, a_missing_export_leaves_its_direction_to_the_default) {
    UseConversionLibrary(nullptr, FakeSjisToUnicode);
    EXPECT_EQ(ToBytes(LibraryToMultiByte, L"\u65E5"), "\xE5");
    EXPECT_EQ(ToUnits(LibraryToWide, "\x93\xFA"), L"\u65E5");
    UseConversionLibrary(FakeUnicodeToSjis, nullptr);
    EXPECT_EQ(ToBytes(LibraryToMultiByte, L"\u65E5"), "\x93\xFA");
    EXPECT_EQ(ToUnits(LibraryToWide, "\x93\xFA"), L"\u0093\u00FA");
    UseConversionLibrary(nullptr, nullptr);
}
