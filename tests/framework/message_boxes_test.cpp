#include "framework/message_boxes.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/answered_boxes.h"
#include "tests/support/test_world.h"

class MessageBoxes : public testing::Test {
  protected:
    TestWorld world_;
    HostWindow host_;
};

TEST_F(MessageBoxes, an_error_has_its_title_the_stop_icon_and_one_button) {
    const AnsweredBoxes boxes{IDOK};
    EXPECT_EQ(ShowError(host_.Handle(), L"%s: %d", L"a%sb", 42), IDOK);
    ASSERT_EQ(boxes.Seen().size(), 1u);
    const SeenBox& box = boxes.Seen()[0];
    EXPECT_EQ(box.caption, L"Error");
    EXPECT_TRUE(AnsweredBoxes::Shows(box, L"a%sb: 42"));
    EXPECT_EQ(box.icon, LoadIconW(nullptr, IDI_HAND));
    EXPECT_EQ(box.buttons.size(), 1u);
    EXPECT_EQ(box.owner, host_.Handle());
}

TEST_F(MessageBoxes, a_confirmation_has_its_title_the_exclamation_icon_and_two_buttons) {
    const AnsweredBoxes boxes{IDOK};
    EXPECT_EQ(AskConfirmation(host_.Handle(), L"%s?", L"Sure"), IDOK);
    ASSERT_EQ(boxes.Seen().size(), 1u);
    const SeenBox& box = boxes.Seen()[0];
    EXPECT_EQ(box.caption, L"Confirmation");
    EXPECT_TRUE(AnsweredBoxes::Shows(box, L"Sure?"));
    EXPECT_EQ(box.icon, LoadIconW(nullptr, IDI_EXCLAMATION));
    EXPECT_EQ(box.buttons, (std::vector<int>{IDOK, IDCANCEL}));
    EXPECT_EQ(box.owner, host_.Handle());
}

TEST_F(MessageBoxes, a_confirmation_can_be_cancelled) {
    const AnsweredBoxes boxes{IDCANCEL};
    EXPECT_EQ(AskConfirmation(host_.Handle(), L"Sure?"), IDCANCEL);
}

TEST_F(MessageBoxes, have_japanese_titles_on_a_japanese_surface) {
    ContextForStartUp().uiLanguage = UiLanguage::Japanese;
    const AnsweredBoxes boxes{IDOK};
    ShowError(host_.Handle(), L"x");
    AskConfirmation(host_.Handle(), L"x");
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(boxes.Seen()[0].caption, L"ｴﾗｰ");
    EXPECT_EQ(boxes.Seen()[1].caption, L"確認");
}

TEST_F(MessageBoxes, a_text_that_is_too_long_is_cut) {
    const std::wstring text(3000, L'x');
    const AnsweredBoxes boxes{IDOK};
    ShowError(host_.Handle(), L"%s", text.c_str());
    ASSERT_EQ(boxes.Seen().size(), 1u);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], text.substr(0, 1023)));
}
