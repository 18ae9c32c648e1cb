// The keyboard's way through the main window.

#include "app/page_navigation.h"

#include "tests/app/main_window_test.h"

class PageNavigation : public MainWindowTest {
  protected:
    void SetUp() override { Open(); }

    // A key to whatever has the focus.
    void Press(int key, std::initializer_list<int> modifiers = {}) { Key(GetFocus(), key, modifiers); }
    void Tabulate() { Press(VK_TAB); }
    void TabulateBack() { Press(VK_TAB, {VK_SHIFT}); }

    // The page's control that has the focus, by its id; 0 for the tab control, -1 for the list.
    [[nodiscard]] int FocusedId() const {
        HWND focus = GetFocus();
        if (focus == Tab()) return 0;
        if (focus == List()) return -1;
        while (focus != nullptr && GetParent(focus) != Page(ShownPage()))
            focus = GetParent(focus);
        return GetDlgCtrlID(focus);
    }
    void ShowPage(int index) {
        SetFocus(Tab());
        for (int i = 0; i < index; ++i)
            Key(Tab(), VK_RIGHT);
        ASSERT_EQ(ShownPage(), index);
    }
    void EnableBrowse(bool enable) { EnableWindow(Item(NamePageIndex, BUTTON_BROWSE), enable); }
};

TEST_F(PageNavigation, tab_on_the_tab_control_moves_into_the_shown_page) {
    Tabulate();
    EXPECT_EQ(FocusedId(), COMBO_NAME);
    ShowPage(DatePageIndex);
    Tabulate();
    EXPECT_EQ(FocusedId(), RADIO_ALL_FILES);
}

TEST_F(PageNavigation, the_tab_keys_character_is_consumed_by_the_tab_control) {
    EXPECT_EQ(SendMessageW(Tab(), WM_CHAR, '\t', 1), 0);
    EXPECT_EQ(GetFocus(), Tab());
}

TEST_F(PageNavigation, tab_goes_through_the_name_page_to_the_list_and_back_to_the_tab_control) {
    EnableBrowse(true);
    for (const int id : {COMBO_NAME, EDIT_CONTENT, COMBO_LOCATION, BUTTON_BROWSE, CHECK_SUBFOLDERS, -1, 0}) {
        Tabulate();
        EXPECT_EQ(FocusedId(), id);
    }
}

TEST_F(PageNavigation, a_disabled_browse_button_is_passed_by) {
    EnableBrowse(false);
    SetFocus(EditOf(COMBO_LOCATION));
    Tabulate();
    EXPECT_EQ(FocusedId(), CHECK_SUBFOLDERS);
}

TEST_F(PageNavigation, shift_tab_goes_backwards_and_from_the_tab_control_into_the_page_as_tab_does) {
    EnableBrowse(true);
    SetFocus(List());
    for (const int id :
         {CHECK_SUBFOLDERS, BUTTON_BROWSE, COMBO_LOCATION, EDIT_CONTENT, COMBO_NAME, 0, CHECK_SUBFOLDERS}) {
        TabulateBack();
        EXPECT_EQ(FocusedId(), id);
    }
}

TEST_F(PageNavigation, a_field_reached_by_tab_has_its_text_selected) {
    SetText(NamePageIndex, EDIT_CONTENT, L"abc");
    EnableBrowse(true);
    SetFocus(Item(NamePageIndex, BUTTON_BROWSE));
    ShowPage(SizePageIndex);
    SetText(SizePageIndex, EDIT_KILOBYTES, L"123");
    SetFocus(GetWindow(Item(SizePageIndex, COMBO_FILE_SIZE), GW_CHILD));
    Tabulate();
    ASSERT_EQ(FocusedId(), EDIT_KILOBYTES);
    EXPECT_EQ(Send(SizePageIndex, EDIT_KILOBYTES, EM_GETSEL), MAKELRESULT(0, 3));
}

TEST_F(PageNavigation, the_size_page_is_gone_through_to_the_list) {
    ShowPage(SizePageIndex);
    for (const int id : {COMBO_FILE_TYPE, COMBO_FILE_SIZE, EDIT_KILOBYTES, -1}) {
        Tabulate();
        EXPECT_EQ(FocusedId(), id);
    }
}

TEST_F(PageNavigation, the_date_page_skips_what_is_disabled) {
    ShowPage(DatePageIndex);
    Tabulate();
    EXPECT_EQ(FocusedId(), RADIO_ALL_FILES);
    Tabulate();
    EXPECT_EQ(FocusedId(), -1);
    TabulateBack();
    EXPECT_EQ(FocusedId(), RADIO_ALL_FILES);
}

TEST_F(PageNavigation, the_date_page_goes_through_what_the_choice_enables) {
    ShowPage(DatePageIndex);
    Send(DatePageIndex, RADIO_BETWEEN, BM_CLICK);
    SetFocus(Item(DatePageIndex, RADIO_BETWEEN));
    for (const int id : {PICKER_FROM, PICKER_TO, -1}) {
        Tabulate();
        EXPECT_EQ(FocusedId(), id);
    }
}

TEST_F(PageNavigation, arrows_go_from_one_radio_button_to_the_next_and_choose_it) {
    ShowPage(DatePageIndex);
    SetFocus(Item(DatePageIndex, RADIO_ALL_FILES));
    Press(VK_DOWN);
    EXPECT_EQ(FocusedId(), RADIO_BETWEEN);
    EXPECT_EQ(Send(DatePageIndex, RADIO_BETWEEN, BM_GETCHECK), BST_CHECKED);
    EXPECT_TRUE(IsWindowEnabled(Item(DatePageIndex, PICKER_FROM)));
    Press(VK_DOWN);
    EXPECT_EQ(FocusedId(), RADIO_PAST);
    EXPECT_TRUE(IsWindowEnabled(Item(DatePageIndex, EDIT_DAYS)));
}

TEST_F(PageNavigation, escape_in_a_page_leaves_everything_as_it_is) {
    SetFocus(Item(NamePageIndex, EDIT_CONTENT));
    SetText(NamePageIndex, EDIT_CONTENT, L"abc");
    Press(VK_ESCAPE);
    EXPECT_EQ(ShownPage(), NamePageIndex);
    EXPECT_EQ(FocusedId(), EDIT_CONTENT);
    EXPECT_EQ(TextOf(NamePageIndex, EDIT_CONTENT), L"abc");
    EXPECT_TRUE(IsWindow(Handle()));
}

TEST_F(PageNavigation, enter_on_a_check_box_is_nothing_and_space_checks_it) {
    SetFocus(Item(NamePageIndex, CHECK_SUBFOLDERS));
    Press(VK_RETURN);
    EXPECT_EQ(Send(NamePageIndex, CHECK_SUBFOLDERS, BM_GETCHECK), BST_UNCHECKED);
    EXPECT_EQ(RowCount(), 0);
    PressKeyOn(GetFocus(), VK_SPACE);
    EXPECT_EQ(Send(NamePageIndex, CHECK_SUBFOLDERS, BM_GETCHECK), BST_CHECKED);
}

TEST_F(PageNavigation, a_mnemonic_reaches_its_control_from_within_the_page) {
    SetFocus(Item(NamePageIndex, EDIT_CONTENT));
    MSG message = {GetFocus(), WM_SYSCHAR, 's', 1 | (1 << 29), 0, {0, 0}};
    EXPECT_TRUE(Window().PreTranslate(message));
    EXPECT_EQ(FocusedId(), CHECK_SUBFOLDERS);
    EXPECT_EQ(Send(NamePageIndex, CHECK_SUBFOLDERS, BM_GETCHECK), BST_CHECKED);
}

TEST_F(PageNavigation, a_message_of_another_window_is_left_alone) {
    MSG message = KeyDownMessage(Handle(), VK_TAB);
    EXPECT_FALSE(NavigateByKey(message, {Tab(), Page(NamePageIndex), List()}));
    message = KeyDownMessage(List(), VK_RETURN);
    EXPECT_FALSE(NavigateByKey(message, {Tab(), Page(NamePageIndex), List()}));
}

TEST_F(PageNavigation, the_first_and_last_stops_of_the_pages) {
    EXPECT_EQ(GetDlgCtrlID(FirstTabStop(Page(NamePageIndex))), COMBO_NAME);
    EXPECT_EQ(GetDlgCtrlID(LastTabStop(Page(NamePageIndex))), CHECK_SUBFOLDERS);
    EXPECT_EQ(GetDlgCtrlID(FirstTabStop(Page(SizePageIndex))), COMBO_FILE_TYPE);
    EXPECT_EQ(GetDlgCtrlID(LastTabStop(Page(SizePageIndex))), EDIT_KILOBYTES);
}
