// TKCONV.DLL as the program gets it: loaded by name, its exports looked up by their plain spellings.

#include "tkconv/tkconv.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

namespace {

// The library stands in the folder above the one of the tests.
std::wstring LibraryPath() {
    wchar_t self[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    std::wstring folder(self);
    for (int level = 0; level < 2; ++level)
        folder.resize(folder.find_last_of(L'\\'));
    return folder + L"\\TKCONV.DLL";
}

class ConversionLibrary : public testing::Test {
  protected:
    void SetUp() override {
        library_ = LoadLibraryW(LibraryPath().c_str());
        ASSERT_NE(library_, nullptr) << "TKCONV.DLL is not beside the program";
        toShiftJis_ = reinterpret_cast<decltype(toShiftJis_)>(GetProcAddress(library_, "unicode2sjis"));
        fromShiftJis_ = reinterpret_cast<decltype(fromShiftJis_)>(GetProcAddress(library_, "sjis2unicode"));
        fromJis_ = reinterpret_cast<decltype(fromJis_)>(GetProcAddress(library_, "jis2unicode"));
        ASSERT_NE(toShiftJis_, nullptr);
        ASSERT_NE(fromShiftJis_, nullptr);
        ASSERT_NE(fromJis_, nullptr);
    }
    void TearDown() override {
        if (library_ != nullptr) FreeLibrary(library_);
    }

    unsigned int FromShiftJisCode(unsigned int code) const {
        return fromShiftJis_(static_cast<unsigned char>(code >> 8), static_cast<unsigned char>(code & 0xFF));
    }
    unsigned int FromJisCode(unsigned int code) const {
        return fromJis_(static_cast<unsigned char>(code >> 8), static_cast<unsigned char>(code & 0xFF));
    }

    HMODULE library_ = nullptr;
    decltype(&unicode2sjis) toShiftJis_ = nullptr;
    decltype(&sjis2unicode) fromShiftJis_ = nullptr;
    decltype(&jis2unicode) fromJis_ = nullptr;
};

struct Pair {
    unsigned short unit;
    unsigned short code;
};

constexpr Pair DoubleBytes[] = {
    {0x3000, 0x8140},  // ideographic space, the first one
    {0x3042, 0x82A0},  // あ
    {0x30A2, 0x8341},  // ア
    {0x30BD, 0x835C},  // ソ, its trail byte is a backslash
    {0x8868, 0x955C},  // 表, likewise
    {0x4E9C, 0x889F},  // 亜, the first of level 1
    {0x6F22, 0x8ABF},  // 漢
    {0x5B57, 0x8E9A},  // 字
    {0x7199, 0xEAA4},  // 熙, the last of level 2
    {0xFF21, 0x8260},  // Ａ
    {0xFF5E, 0x8160},  // ～
    {0xFF0D, 0x817C},  // －
    {0x2225, 0x8161},  // ∥
    {0xFFE2, 0x81CA},  // ￢, which stands three times in the code page
    {0x2252, 0x81E0},  // ≒, which stands twice
    {0x2460, 0x8740},  // ①
    {0x2170, 0xFA40},  // ⅰ
    {0x9AD9, 0xFBFC},  // 髙
    {0x7E8A, 0xFA5C},  // 纊, which stands twice
    {0xE000, 0xF040},  // the first user-defined one
};

TEST_F(ConversionLibrary, double_byte_characters_convert_both_ways) {
    for (const Pair& pair : DoubleBytes) {
        EXPECT_EQ(toShiftJis_(pair.unit), pair.code) << std::hex << pair.unit;
        EXPECT_EQ(FromShiftJisCode(pair.code), pair.unit) << std::hex << pair.code;
    }
}

TEST_F(ConversionLibrary, ascii_is_its_own_code) {
    for (unsigned short unit = 1; unit < 0x80; ++unit)
        EXPECT_EQ(toShiftJis_(unit), unit);
}

TEST_F(ConversionLibrary, the_backslash_is_single_byte_5c) {
    EXPECT_EQ(toShiftJis_(L'\\'), 0x5C);
}

TEST_F(ConversionLibrary, half_width_katakana_are_single_bytes) {
    EXPECT_EQ(toShiftJis_(0xFF8A), 0xCA);  // ﾊ
    EXPECT_EQ(toShiftJis_(0xFF9D), 0xDD);  // ﾝ
    EXPECT_EQ(toShiftJis_(0xFF76), 0xB6);  // ｶ
    EXPECT_EQ(toShiftJis_(0xFF78), 0xB8);  // ｸ
    for (unsigned short code = 0xA1; code <= 0xDF; ++code)
        EXPECT_EQ(toShiftJis_(static_cast<unsigned short>(0xFF61 + code - 0xA1)), code);
}

TEST_F(ConversionLibrary, the_first_c1_control_is_the_code_pages_own_byte_80) {
    EXPECT_EQ(toShiftJis_(0x80), 0x80);
}

TEST_F(ConversionLibrary, the_other_c1_controls_have_no_code) {
    for (unsigned short unit = 0x81; unit <= 0x9F; ++unit)
        EXPECT_EQ(toShiftJis_(unit), 0) << std::hex << unit;
}

TEST_F(ConversionLibrary, a_unit_that_the_code_page_lacks_has_no_code) {
    EXPECT_EQ(toShiftJis_(0x0000), 0);
    EXPECT_EQ(toShiftJis_(0x20AC), 0);  // the euro sign
    EXPECT_EQ(toShiftJis_(0x0E01), 0);  // a Thai letter
    EXPECT_EQ(toShiftJis_(0xAC00), 0);  // a Korean syllable
    EXPECT_EQ(toShiftJis_(0xFFFF), 0);
}

TEST_F(ConversionLibrary, a_letter_that_only_looks_alike_is_not_taken) {
    EXPECT_EQ(toShiftJis_(0x00E9), 0);  // é is not e
    EXPECT_EQ(toShiftJis_(0x00A5), 0);  // the yen sign is not the backslash
    EXPECT_EQ(toShiftJis_(0x00A9), 0);  // © is not c
    EXPECT_EQ(toShiftJis_(0x203E), 0);  // the overline is not the tilde
}

TEST_F(ConversionLibrary, a_surrogate_has_no_code) {
    for (unsigned int unit = 0xD800; unit <= 0xDFFF; ++unit)
        EXPECT_EQ(toShiftJis_(static_cast<unsigned short>(unit)), 0) << std::hex << unit;
}

TEST_F(ConversionLibrary, every_code_leads_back_to_its_unit) {
    unsigned int doubleBytes = 0;
    for (unsigned int unit = 0; unit <= 0xFFFF; ++unit) {
        const unsigned int code = toShiftJis_(static_cast<unsigned short>(unit));
        if (code <= 0xFF) continue;
        ++doubleBytes;
        EXPECT_EQ(FromShiftJisCode(code), unit) << std::hex << code;
    }
    // JIS X 0208 alone has 6,879 characters.
    EXPECT_GE(doubleBytes, 6879u);
}

TEST_F(ConversionLibrary, a_character_that_stands_twice_is_read_from_both_places) {
    EXPECT_EQ(FromShiftJisCode(0x8790), 0x2252u);
    EXPECT_EQ(FromShiftJisCode(0xED40), 0x7E8Au);
}

TEST_F(ConversionLibrary, two_bytes_without_a_lead_byte_are_no_character) {
    EXPECT_EQ(FromShiftJisCode(0x4142), 0u);
    EXPECT_EQ(FromShiftJisCode(0xB1B2), 0u);
    EXPECT_EQ(FromShiftJisCode(0x0082), 0u);
    EXPECT_EQ(FromShiftJisCode(0x8040), 0u);
    EXPECT_EQ(FromShiftJisCode(0xA040), 0u);
    EXPECT_EQ(FromShiftJisCode(0xFD40), 0u);
    EXPECT_EQ(FromShiftJisCode(0xFF40), 0u);
}

TEST_F(ConversionLibrary, a_lead_byte_without_a_trail_byte_is_no_character) {
    EXPECT_EQ(FromShiftJisCode(0x8200), 0u);
    EXPECT_EQ(FromShiftJisCode(0x8220), 0u);
    EXPECT_EQ(FromShiftJisCode(0x813F), 0u);
    EXPECT_EQ(FromShiftJisCode(0x817F), 0u);
    EXPECT_EQ(FromShiftJisCode(0x81FD), 0u);
}

TEST_F(ConversionLibrary, an_empty_place_of_the_code_page_is_no_character) {
    EXPECT_EQ(FromShiftJisCode(0x8240), 0u);
    EXPECT_EQ(FromShiftJisCode(0x8540), 0u);
}

constexpr Pair JisCodes[] = {
    {0x3000, 0x2121},  // the first place
    {0x00D7, 0x215F},  // ×, the last trail byte before the gap
    {0x00F7, 0x2160},  // ÷, the first behind it
    {0x25C6, 0x2221},  // ◆, the first of the second row of a lead byte
    {0x25EF, 0x227E},  // ◯, the last place of a lead byte
    {0x3042, 0x2422},  // あ
    {0x4E9C, 0x3021},  // 亜
    {0x6ECC, 0x5E7E},  // 滌, the last before the gap between the lead bytes
    {0x6F3E, 0x5F21},  // 漾, the first behind it
    {0x7199, 0x7426},  // 熙
};

TEST_F(ConversionLibrary, a_jis_code_names_its_unit) {
    for (const Pair& pair : JisCodes)
        EXPECT_EQ(FromJisCode(pair.code), pair.unit) << std::hex << pair.code;
}

TEST_F(ConversionLibrary, a_row_or_cell_outside_of_jis_has_no_unit) {
    EXPECT_EQ(FromJisCode(0x2021), 0u);
    EXPECT_EQ(FromJisCode(0x7F21), 0u);
    EXPECT_EQ(FromJisCode(0x3020), 0u);
    EXPECT_EQ(FromJisCode(0x307F), 0u);
    EXPECT_EQ(FromJisCode(0xB0A1), 0u);
    EXPECT_EQ(FromJisCode(0x0000), 0u);
}

TEST_F(ConversionLibrary, an_empty_place_of_jis_has_no_unit) {
    EXPECT_EQ(FromJisCode(0x2921), 0u);
}

TEST_F(ConversionLibrary, all_6879_characters_of_jis_are_there) {
    int found = 0;
    for (unsigned int row = 0x21; row <= 0x74; ++row) {
        // Rows 9 to 15 are empty in the standard, though the code page fills one of them.
        if (row >= 0x29 && row < 0x30) continue;
        for (unsigned int cell = 0x21; cell <= 0x7E; ++cell)
            if (FromJisCode(row << 8 | cell) != 0) ++found;
    }
    EXPECT_EQ(found, 6879);
}

}  // namespace
