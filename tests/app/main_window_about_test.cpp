// When the About box opens, and what its memory lines are asked of.

#include "tests/app/main_window_test.h"
#include "tests/app/replaced_storage.h"
#include "tests/support/answered_boxes.h"

class MainWindowAbout : public MainWindowTest {
  protected:
    void SendHelp() {
        HELPINFO help = {};
        help.cbSize = sizeof help;
        SendMessageW(Handle(), WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
        PumpQueue();
    }
};

TEST_F(MainWindowAbout, the_box_shows_the_uninstall_button_and_the_devices_memory) {
    ReplacedStorage storage;
    storage.cards = {{L"Storage Card", {1024, 4096}, true}};
    Open();
    const AnsweredBoxes boxes{IDOK};
    Command(COMMAND_ABOUT);
    ASSERT_EQ(boxes.Seen().size(), 1u);
    EXPECT_EQ(boxes.Seen()[0].owner, Handle());
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"Rest of memories"));
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"Program: 4096/16384KB (25%)"));
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"Storage Card: 1/4KB (25%)"));
    EXPECT_EQ(boxes.Seen()[0].buttons.back(), BUTTON_UNINSTALL);
}

TEST_F(MainWindowAbout, the_box_is_japanese_on_a_japanese_surface) {
    Open(UiLanguage::Japanese);
    const AnsweredBoxes boxes{IDOK};
    Command(COMMAND_ABOUT);
    ASSERT_EQ(boxes.Seen().size(), 1u);
    EXPECT_EQ(boxes.Seen()[0].caption, L"ﾊﾞｰｼﾞｮﾝ情報");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"ﾒﾓﾘ残量"));
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"ｱﾝｲﾝｽﾄ(&U)"));
}

// F1 in a dialog goes up to its owner.
TEST_F(MainWindowAbout, the_help_key_of_another_dialog_opens_no_box_over_it) {
    Open();
    const AnsweredBoxes boxes{IDOK};
    EnableWindow(Handle(), FALSE);
    SendHelp();
    EXPECT_TRUE(boxes.Seen().empty());
    EnableWindow(Handle(), TRUE);
    SendHelp();
    EXPECT_EQ(boxes.Seen().size(), 1u);
}
