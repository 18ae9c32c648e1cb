#include <gtest/gtest.h>

#include <string>

#include "resources/resource_ids.h"
#include "tests/resources/program_module.h"

namespace {

std::wstring StringOf(unsigned int id) {
    wchar_t text[MAX_PATH] = {};
    LoadStringW(ProgramModule(), id, text, MAX_PATH);
    return text;
}

TEST(Strings, the_product_and_its_version_are_named) {
    EXPECT_EQ(StringOf(101), L"QuorinSearch");
    EXPECT_EQ(StringOf(102), L"Version " QUORIN_VERSION);
}

TEST(Strings, the_legal_notice_and_both_contact_lines_are_there) {
    EXPECT_FALSE(StringOf(103).empty());
    EXPECT_FALSE(StringOf(104).empty());
    EXPECT_FALSE(StringOf(105).empty());
}

TEST(Strings, the_menu_bar_is_labelled_in_japanese) {
    EXPECT_EQ(StringOf(10001), L"ﾌｧｲﾙ");
    EXPECT_EQ(StringOf(10002), L"表示");
    EXPECT_EQ(StringOf(10003), L"ｵﾌﾟｼｮﾝ");
}

TEST(Strings, the_menu_bar_is_labelled_in_english) {
    EXPECT_EQ(StringOf(10101), L"File");
    EXPECT_EQ(StringOf(10102), L"View");
    EXPECT_EQ(StringOf(10103), L"Option");
}

TEST(Strings, the_names_of_the_ids_are_the_numbers_in_use) {
    EXPECT_EQ(STRING_PRODUCT_NAME, 101);
    EXPECT_EQ(STRING_VERSION, 102);
    EXPECT_EQ(STRING_LEGAL_NOTICE, 103);
    EXPECT_EQ(STRING_CONTACT_1, 104);
    EXPECT_EQ(STRING_CONTACT_2, 105);
}

}  // namespace
