// The keyboard on the name page.

#include "conditions/name_page.h"
#include "tests/conditions/page_test.h"

using Texts = std::vector<std::wstring>;

class NamePageKeys : public PageTest {
  protected:
    NamePageKeys() : page_(Host(), HostHandle()) { Open(page_); }

    // Strikes a key in the text field of a combo, which has the focus.
    void PressInCombo(int id, int key, std::initializer_list<int> modifiers = {}) {
        SetFocus(EditOf(id));
        PressKeyOn(EditOf(id), key, modifiers);
    }

    NamePage page_;
};

TEST_F(NamePageKeys, enter_in_the_name_adds_it_to_its_history_and_starts_a_search) {
    SetText(COMBO_NAME, L"notes");
    PressInCombo(COMBO_NAME, VK_RETURN);
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"notes", L"*.log", L"*.txt"}));
    EXPECT_EQ(TextOf(COMBO_NAME), L"notes");
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), Texts());
    EXPECT_EQ(FindCommands(), 1);
}

TEST_F(NamePageKeys, enter_in_the_location_adds_it_to_its_history_and_starts_a_search) {
    SetText(COMBO_LOCATION, L"\\f");
    PressInCombo(COMBO_LOCATION, VK_RETURN);
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), Texts{L"\\f"});
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"*.log", L"*.txt"}));
    EXPECT_EQ(FindCommands(), 1);
}

TEST_F(NamePageKeys, enter_in_an_empty_combo_adds_the_empty_text) {
    PressInCombo(COMBO_LOCATION, VK_RETURN);
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), Texts{L""});
    EXPECT_EQ(FindCommands(), 1);
}

TEST_F(NamePageKeys, enter_in_the_content_starts_a_search_and_adds_nothing) {
    SetText(EDIT_CONTENT, L"abc");
    SetText(COMBO_NAME, L"notes");
    SetFocus(Item(EDIT_CONTENT));
    PressKeyOn(Item(EDIT_CONTENT), VK_RETURN);
    EXPECT_EQ(FindCommands(), 1);
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"*.log", L"*.txt"}));
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), Texts());
    EXPECT_EQ(TextOf(EDIT_CONTENT), L"abc");
}

TEST_F(NamePageKeys, the_search_is_started_by_a_posted_command) {
    SetFocus(Item(EDIT_CONTENT));
    SendMessageW(Item(EDIT_CONTENT), WM_KEYDOWN, VK_RETURN, 0);
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, HostHandle(), WM_COMMAND, WM_COMMAND, PM_NOREMOVE));
    EXPECT_EQ(message.wParam, WPARAM{COMMAND_FIND});
    EXPECT_EQ(message.lParam, 0);
    EXPECT_EQ(FindCommands(), 1);
}

TEST_F(NamePageKeys, tab_in_the_name_goes_to_the_content) {
    PressInCombo(COMBO_NAME, VK_TAB);
    EXPECT_EQ(GetFocus(), Item(EDIT_CONTENT));
    EXPECT_EQ(FindCommands(), 0);
}

TEST_F(NamePageKeys, shift_tab_in_the_name_goes_to_the_window_around_the_page) {
    PressInCombo(COMBO_NAME, VK_TAB, {VK_SHIFT});
    EXPECT_EQ(GetFocus(), HostHandle());
}

TEST_F(NamePageKeys, tab_in_the_location_goes_to_the_browse_button) {
    EnableWindow(Item(BUTTON_BROWSE), TRUE);
    PressInCombo(COMBO_LOCATION, VK_TAB);
    EXPECT_EQ(GetFocus(), Item(BUTTON_BROWSE));
}

TEST_F(NamePageKeys, tab_in_the_location_goes_past_a_browse_button_that_is_disabled) {
    EnableWindow(Item(BUTTON_BROWSE), FALSE);
    PressInCombo(COMBO_LOCATION, VK_TAB);
    EXPECT_EQ(GetFocus(), Item(CHECK_SUBFOLDERS));
}

TEST_F(NamePageKeys, shift_tab_in_the_location_goes_to_the_content) {
    PressInCombo(COMBO_LOCATION, VK_TAB, {VK_SHIFT});
    EXPECT_EQ(GetFocus(), Item(EDIT_CONTENT));
}

TEST_F(NamePageKeys, tab_and_enter_leave_no_character_in_the_fields) {
    SetText(COMBO_NAME, L"n");
    SetText(COMBO_LOCATION, L"l");
    SetText(EDIT_CONTENT, L"c");
    PressInCombo(COMBO_NAME, VK_TAB);
    PressInCombo(COMBO_LOCATION, VK_TAB);
    PressInCombo(COMBO_NAME, VK_RETURN);
    PressInCombo(COMBO_LOCATION, VK_RETURN);
    PressKeyOn(Item(EDIT_CONTENT), VK_RETURN);
    EXPECT_EQ(TextOf(COMBO_NAME), L"n");
    EXPECT_EQ(TextOf(COMBO_LOCATION), L"l");
    EXPECT_EQ(TextOf(EDIT_CONTENT), L"c");
    EXPECT_EQ(FindCommands(), 3);
}

TEST_F(NamePageKeys, enter_adds_no_more_of_a_text_than_a_history_holds) {
    SetText(COMBO_NAME, std::wstring(300, L'x'));
    PressInCombo(COMBO_NAME, VK_RETURN);
    EXPECT_EQ(EntriesOf(COMBO_NAME)[0], std::wstring(259, L'x'));
}

TEST_F(NamePageKeys, eleven_names_entered_leave_the_latest_ten) {
    for (int i = 10; i <= 20; ++i) {
        SetText(COMBO_NAME, std::to_wstring(i));
        PressInCombo(COMBO_NAME, VK_RETURN);
    }
    EXPECT_EQ(EntriesOf(COMBO_NAME),
              (Texts{L"20", L"19", L"18", L"17", L"16", L"15", L"14", L"13", L"12", L"11"}));
    EXPECT_EQ(FindCommands(), 11);
}

// While an input method composes, each key arrives as the one of the method, Enter among them; the
// composition's text comes as characters when it is taken over.
TEST_F(NamePageKeys, enter_that_ends_a_composition_starts_no_search_and_adds_nothing) {
    for (const HWND edit : {EditOf(COMBO_NAME), EditOf(COMBO_LOCATION), Item(EDIT_CONTENT)}) {
        SetWindowTextW(edit, L"");
        SetFocus(edit);
        SendMessageW(edit, WM_IME_STARTCOMPOSITION, 0, 0);
        SendMessageW(edit, WM_KEYDOWN, VK_PROCESSKEY, 1);
        SendMessageW(edit, WM_CHAR, L'日', 1);
        SendMessageW(edit, WM_IME_ENDCOMPOSITION, 0, 0);
        PumpQueue();
        wchar_t text[8] = L"";
        GetWindowTextW(edit, text, 8);
        EXPECT_STREQ(text, L"日");
    }
    EXPECT_EQ(FindCommands(), 0);
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"*.log", L"*.txt"}));
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), Texts());
    // The next Enter is the field's own again.
    PressKeyOn(Item(EDIT_CONTENT), VK_RETURN);
    EXPECT_EQ(FindCommands(), 1);
}

// Some methods leave the keys as they are while they compose.
TEST_F(NamePageKeys, enter_and_tab_belong_to_a_composition_as_long_as_it_lasts) {
    for (const HWND edit : {EditOf(COMBO_NAME), EditOf(COMBO_LOCATION), Item(EDIT_CONTENT)}) {
        SetFocus(edit);
        SendMessageW(edit, WM_IME_STARTCOMPOSITION, 0, 0);
        PressKeyOn(edit, VK_RETURN);
        EXPECT_EQ(FindCommands(), 0);
        SendMessageW(edit, WM_IME_ENDCOMPOSITION, 0, 0);
    }
    SetFocus(EditOf(COMBO_NAME));
    SendMessageW(EditOf(COMBO_NAME), WM_IME_STARTCOMPOSITION, 0, 0);
    PressKeyOn(EditOf(COMBO_NAME), VK_TAB);
    EXPECT_EQ(GetFocus(), EditOf(COMBO_NAME));
    SendMessageW(EditOf(COMBO_NAME), WM_IME_ENDCOMPOSITION, 0, 0);
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"*.log", L"*.txt"}));
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), Texts());
    PressKeyOn(EditOf(COMBO_NAME), VK_RETURN);
    EXPECT_EQ(FindCommands(), 1);
}
