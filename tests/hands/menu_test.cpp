// The menus, taken with pointer and keys.

#include "tests/hands/hands_test.h"

class Menus : public HandsTest {
  protected:
    [[nodiscard]] bool CaseIsChecked() { return Program().MenuItem(COMMAND_CHECK_CASE).Checked(); }
};

TEST_F(Menus, a_search_ignores_case_after_the_option_was_unticked_with_the_pointer) {
    AddFile(L"a.txt", "one TWO three");
    OpenMenuByPointer(OptionMenu);
    ClickMenuItem(COMMAND_CHECK_CASE);
    Program().WaitForQueue();
    ASSERT_FALSE(CaseIsChecked());
    EXPECT_EQ((Names{L"a.txt"}), NamesFoundBy(Containing(L"two", Folder())));
}

TEST_F(Menus, a_highlight_that_was_left_on_the_unticked_option_changes_nothing) {
    AddFile(L"a.txt", "one TWO three");
    Program().SendMenuCommand(COMMAND_CHECK_CASE);
    OpenMenuByPointer(OptionMenu);
    MovePointerTo(CentreOf(Program().MenuItem(COMMAND_CHECK_CASE).rectangle));
    CloseMenus();
    ASSERT_FALSE(CaseIsChecked());
    EXPECT_EQ((Names{L"a.txt"}), NamesFoundBy(Containing(L"two", Folder())));
}

TEST_F(Menus, a_search_ignores_case_after_the_option_was_unticked_with_keys) {
    AddFile(L"a.txt", "one TWO three");
    OpenMenuByKeys(OptionMenu);
    TakeMenuItemByKeys(COMMAND_CHECK_CASE);
    Program().WaitForQueue();
    ASSERT_FALSE(CaseIsChecked());
    EXPECT_EQ((Names{L"a.txt"}), NamesFoundBy(Containing(L"two", Folder())));
}

TEST_F(Menus, left_and_right_go_from_menu_to_menu_while_the_pointer_rests_on_a_bar_button) {
    OpenMenuByPointer(FileMenu);
    CloseMenus();
    OpenMenuByKeys(OptionMenu);
    CloseMenus();
}
