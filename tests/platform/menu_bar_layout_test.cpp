#include <gtest/gtest.h>

#include <vector>

#include "platform/desktop/menu_bar_layout.h"

namespace {

using Words = std::vector<WORD>;

bool Read(const Words& words, ce::MenuBarLayout& layout) {
    return ce::ReadMenuBarLayout(words.data(), words.size() * sizeof(WORD), layout);
}

TEST(MenuBarLayout, reads_its_menu_and_every_button) {
    const Words words{101,                                    // menu
                      2,                                      // buttons
                      0xFFFE, 100, 4,  0x18, 10101, 0,        // no picture, a caption, a sub-menu
                      3,      2,   12, 0,    0,     0xFFFF};  // a picture, no caption, no sub-menu
    ce::MenuBarLayout layout;
    ASSERT_TRUE(Read(words, layout));
    EXPECT_EQ(layout.menuId, 101);
    ASSERT_EQ(layout.buttonCount, 2);
    EXPECT_EQ(layout.buttons[0].image, ce::MenuBarNoImage);
    EXPECT_EQ(layout.buttons[0].command, 100);
    EXPECT_EQ(layout.buttons[0].state, 4);
    EXPECT_EQ(layout.buttons[0].style, 0x18);
    EXPECT_EQ(layout.buttons[0].stringId, 10101);
    EXPECT_EQ(layout.buttons[0].subMenu, 0);
    EXPECT_EQ(layout.buttons[1].image, 3);
    EXPECT_EQ(layout.buttons[1].command, 2);
    EXPECT_EQ(layout.buttons[1].state, 12);
    EXPECT_EQ(layout.buttons[1].style, 0);
    EXPECT_EQ(layout.buttons[1].stringId, ce::MenuBarNoString);
    EXPECT_EQ(layout.buttons[1].subMenu, ce::MenuBarNoMenu);
}

TEST(MenuBarLayout, without_buttons_is_the_header_alone) {
    ce::MenuBarLayout layout;
    ASSERT_TRUE(Read(Words{28701, 0}, layout));
    EXPECT_EQ(layout.menuId, 28701);
    EXPECT_EQ(layout.buttonCount, 0);
}

TEST(MenuBarLayout, may_be_followed_by_padding) {
    ce::MenuBarLayout layout;
    ASSERT_TRUE(Read(Words{28701, 0, 0, 0}, layout));
    EXPECT_EQ(layout.buttonCount, 0);
}

TEST(MenuBarLayout, that_is_too_short_for_what_it_announces_is_refused) {
    ce::MenuBarLayout layout;
    EXPECT_FALSE(ce::ReadMenuBarLayout(nullptr, 0, layout));
    EXPECT_FALSE(Read(Words{101}, layout));
    EXPECT_FALSE(Read(Words{101, 1}, layout));
    EXPECT_FALSE(Read(Words{101, 1, 0, 0, 0, 0, 0}, layout));
    EXPECT_TRUE(Read(Words{101, 1, 0, 0, 0, 0, 0, 0}, layout));
}

TEST(MenuBarLayout, with_more_buttons_than_a_bar_takes_is_refused) {
    Words words(2 + 6 * 17, 0);
    ce::MenuBarLayout layout;
    words[1] = 17;
    EXPECT_FALSE(Read(words, layout));
    words[1] = 16;
    EXPECT_TRUE(Read(words, layout));
}

TEST(Mnemonic, is_the_one_after_the_first_single_ampersand) {
    EXPECT_EQ(ce::Mnemonic(L"&View"), L'V');
    EXPECT_EQ(ce::Mnemonic(L"Sa&ve &all"), L'V');
    EXPECT_EQ(ce::Mnemonic(L"Cut && &paste"), L'P');
    EXPECT_EQ(ce::Mnemonic(L"ｵﾌﾟｼｮﾝ(&O)"), L'O');
}

TEST(Mnemonic, is_none_without_an_ampersand_of_its_own) {
    EXPECT_EQ(ce::Mnemonic(L"File"), L'\0');
    EXPECT_EQ(ce::Mnemonic(L"Cut && paste"), L'\0');
    EXPECT_EQ(ce::Mnemonic(L"Ends with &"), L'\0');
    EXPECT_EQ(ce::Mnemonic(L""), L'\0');
}

TEST(CaptionForKey, finds_the_marked_letter_in_either_case) {
    const wchar_t* const captions[] = {L"File", L"&View", L"Option"};
    EXPECT_EQ(ce::CaptionForKey(captions, 3, L'v'), 1);
    EXPECT_EQ(ce::CaptionForKey(captions, 3, L'V'), 1);
}

TEST(CaptionForKey, falls_back_to_the_first_letter_of_a_caption_that_marks_nothing) {
    const wchar_t* const captions[] = {L"File", L"&View", L"Option"};
    EXPECT_EQ(ce::CaptionForKey(captions, 3, L'f'), 0);
    EXPECT_EQ(ce::CaptionForKey(captions, 3, L'O'), 2);
}

TEST(CaptionForKey, prefers_a_marked_letter_to_a_first_letter) {
    const wchar_t* const captions[] = {L"View", L"O&verview"};
    EXPECT_EQ(ce::CaptionForKey(captions, 2, L'v'), 1);
    EXPECT_EQ(ce::CaptionForKey(captions, 2, L'o'), -1)
        << "a caption that marks a letter answers to no other";
}

TEST(CaptionForKey, takes_the_first_of_two_that_claim_a_letter) {
    const wchar_t* const captions[] = {L"File", L"Find"};
    EXPECT_EQ(ce::CaptionForKey(captions, 2, L'f'), 0);
}

TEST(CaptionForKey, finds_nothing_for_a_letter_that_no_caption_has_and_for_none) {
    const wchar_t* const captions[] = {L"File", L""};
    EXPECT_EQ(ce::CaptionForKey(captions, 2, L'x'), -1);
    EXPECT_EQ(ce::CaptionForKey(captions, 2, L'\0'), -1);
    EXPECT_EQ(ce::CaptionForKey(captions, 0, L'f'), -1);
}

}  // namespace
