// The commands of the main window, and the states that they leave.

#include "tests/app/main_window_test.h"
#include "tests/support/answered_boxes.h"

namespace {

constexpr int SelectionItems[] = {COMMAND_OPEN, COMMAND_DELETE, COMMAND_RENAME, COMMAND_PROPERTIES};

}  // namespace

class MainWindowCommands : public MainWindowTest {
  protected:
    void SetUp() override { Open(); }

    LONG View() const { return GetWindowLongW(List(), GWL_STYLE) & LVS_TYPEMASK; }
    void ExpectViewMark(int marked) const {
        for (const int command : {COMMAND_LARGE_ICON, COMMAND_SMALL_ICON, COMMAND_DETAILS})
            EXPECT_EQ(IsMarked(command), command == marked) << command;
    }
    void AddRow(const wchar_t* name) const {
        LVITEMW item = {};
        item.mask = LVIF_TEXT;
        item.iItem = RowCount();
        std::wstring text = name;
        item.pszText = text.data();
        SendMessageW(List(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    void ExpectSelectionCommands(bool enabled) const {
        for (const int command : SelectionItems)
            EXPECT_EQ(!IsGray(command), enabled) << command;
    }
};

TEST_F(MainWindowCommands, each_view_command_sets_its_view_and_takes_the_radio_mark) {
    Command(COMMAND_LARGE_ICON);
    EXPECT_EQ(View(), LVS_ICON);
    ExpectViewMark(COMMAND_LARGE_ICON);
    Command(COMMAND_SMALL_ICON);
    EXPECT_EQ(View(), LVS_SMALLICON);
    ExpectViewMark(COMMAND_SMALL_ICON);
    Command(COMMAND_DETAILS);
    EXPECT_EQ(View(), LVS_REPORT);
    ExpectViewMark(COMMAND_DETAILS);
}

TEST_F(MainWindowCommands, the_case_option_changes_its_mark_each_time) {
    Command(COMMAND_CHECK_CASE);
    EXPECT_FALSE(IsMarked(COMMAND_CHECK_CASE));
    Command(COMMAND_CHECK_CASE);
    EXPECT_TRUE(IsMarked(COMMAND_CHECK_CASE));
}

TEST_F(MainWindowCommands, new_condition_resets_all_three_pages) {
    SetText(NamePageIndex, COMBO_NAME, L"abc");
    SetText(NamePageIndex, COMBO_LOCATION, L"\\f");
    SetText(NamePageIndex, EDIT_CONTENT, L"kept");
    Send(DatePageIndex, RADIO_PAST, BM_CLICK);
    Send(DatePageIndex, SPIN_DAYS, UDM_SETPOS, 0, 77);
    Send(SizePageIndex, COMBO_FILE_SIZE, CB_SETCURSEL, 2);
    SetText(SizePageIndex, EDIT_KILOBYTES, L"12");
    Command(COMMAND_NEW_CONDITION);
    EXPECT_EQ(TextOf(NamePageIndex, COMBO_NAME), L"");
    EXPECT_EQ(TextOf(NamePageIndex, COMBO_LOCATION), L"");
    EXPECT_EQ(TextOf(NamePageIndex, EDIT_CONTENT), L"kept");
    EXPECT_EQ(Send(DatePageIndex, RADIO_ALL_FILES, BM_GETCHECK), BST_CHECKED);
    EXPECT_EQ(TextOf(DatePageIndex, EDIT_DAYS), L"1");
    EXPECT_EQ(Send(SizePageIndex, COMBO_FILE_SIZE, CB_GETCURSEL), 0);
    EXPECT_EQ(TextOf(SizePageIndex, EDIT_KILOBYTES), L"");
}

TEST_F(MainWindowCommands, save_result_and_40207_and_unknown_commands_change_nothing) {
    AddRow(L"a");
    for (const int command : {COMMAND_SAVE_RESULT, COMMAND_VIEW_STATUS, 40299, 1})
        Command(command);
    EXPECT_EQ(RowCount(), 1);
    EXPECT_TRUE(IsGray(COMMAND_SAVE_RESULT));
    EXPECT_EQ(View(), LVS_REPORT);
    EXPECT_TRUE(IsMarked(COMMAND_CHECK_CASE));
    EXPECT_TRUE(IsWindow(Handle()));
}

TEST_F(MainWindowCommands, each_command_ends_with_what_was_to_be_drawn_being_drawn) {
    for (const int command : {COMMAND_CHECK_CASE, COMMAND_SAVE_RESULT, COMMAND_OPEN, COMMAND_LARGE_ICON,
                              COMMAND_DETAILS, COMMAND_NEW_CONDITION}) {
        SCOPED_TRACE(command);
        InvalidateRect(Handle(), nullptr, FALSE);
        ASSERT_TRUE(GetUpdateRect(Handle(), nullptr, FALSE));
        Command(command);
        EXPECT_FALSE(GetUpdateRect(Handle(), nullptr, FALSE));
    }
}

TEST_F(MainWindowCommands, result_commands_with_no_row_selected_do_nothing) {
    AddRow(L"a");
    const AnsweredBoxes boxes({IDCANCEL});
    for (const int command :
         {COMMAND_OPEN, COMMAND_ADD_TO_START_MENU, COMMAND_DELETE, COMMAND_RENAME, COMMAND_PROPERTIES}) {
        Command(command);
    }
    PumpQueue();
    EXPECT_TRUE(boxes.Seen().empty());
    EXPECT_EQ(RowCount(), 1);
    EXPECT_EQ(SendMessageW(List(), LVM_GETEDITCONTROL, 0, 0), 0);
}

TEST_F(MainWindowCommands, selecting_a_row_enables_the_result_commands) {
    AddRow(L"a");
    ExpectSelectionCommands(false);
    SelectRow(0);
    ExpectSelectionCommands(true);
    EXPECT_TRUE(IsGray(COMMAND_SAVE_RESULT));
}

TEST_F(MainWindowCommands, unselecting_the_row_grays_them_again) {
    AddRow(L"a");
    SelectRow(0);
    SelectRow(0, false);
    ExpectSelectionCommands(false);
}

TEST_F(MainWindowCommands, going_from_one_row_to_another_leaves_them_enabled) {
    AddRow(L"a");
    AddRow(L"b");
    SelectRow(0);
    SelectRow(1);
    ExpectSelectionCommands(true);
}

TEST_F(MainWindowCommands, a_change_of_the_focus_mark_alone_enables_nothing) {
    AddRow(L"a");
    LVITEMW item = {};
    item.stateMask = LVIS_FOCUSED;
    item.state = LVIS_FOCUSED;
    SendMessageW(List(), LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
    ExpectSelectionCommands(false);
}

TEST_F(MainWindowCommands, exit_ends_the_program_with_code_0) {
    const HWND handle = Handle();
    EXPECT_EQ(RunToTheEnd(COMMAND_EXIT), 0);
    EXPECT_FALSE(IsWindow(handle));
}

TEST_F(MainWindowCommands, ctrl_q_is_exit) {
    const HWND handle = Handle();
    Key(Tab(), 'Q', {VK_CONTROL});
    EXPECT_EQ(world_.TheApplication().Run(), 0);
    EXPECT_FALSE(IsWindow(handle));
}

TEST_F(MainWindowCommands, q_alone_is_a_letter) {
    const HWND edit = EditOf(COMBO_NAME);
    SetWindowTextW(edit, L"");
    SetFocus(edit);
    Key(edit, 'Q');
    EXPECT_EQ(TextOf(NamePageIndex, COMBO_NAME), L"q");
    EXPECT_TRUE(IsWindow(Handle()));
}

TEST_F(MainWindowCommands, about_f1_and_the_help_message_open_the_about_box) {
    const AnsweredBoxes boxes({IDOK});
    Command(COMMAND_ABOUT);
    EXPECT_EQ(boxes.Seen().size(), 1U);
    Key(Tab(), VK_F1);
    EXPECT_EQ(boxes.Seen().size(), 2U);
    HELPINFO help = {};
    help.cbSize = sizeof help;
    SendMessageW(Handle(), WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
    EXPECT_EQ(boxes.Seen().size(), 3U);
}

TEST_F(MainWindowCommands, a_key_of_the_tab_control_turns_the_page) {
    SetFocus(Tab());
    Key(Tab(), VK_RIGHT);
    EXPECT_EQ(ShownPage(), DatePageIndex);
    EXPECT_EQ(GetFocus(), Tab());
    Key(Tab(), VK_RIGHT);
    EXPECT_EQ(ShownPage(), SizePageIndex);
    Key(Tab(), VK_LEFT);
    EXPECT_EQ(ShownPage(), DatePageIndex);
}

TEST_F(MainWindowCommands, a_page_that_is_turned_away_keeps_its_contents) {
    SetText(NamePageIndex, EDIT_CONTENT, L"abc");
    SetFocus(Tab());
    Key(Tab(), VK_RIGHT);
    Key(Tab(), VK_LEFT);
    EXPECT_EQ(ShownPage(), NamePageIndex);
    EXPECT_EQ(TextOf(NamePageIndex, EDIT_CONTENT), L"abc");
}
