// Whole searches in the real main window.

#include <algorithm>

#include "tests/app/main_window_test.h"
#include "tests/support/temp_tree.h"

class Find : public MainWindowTest {
  protected:
    void SetUp() override {
        tree_.AddFile(L"a.txt", "alpha");
        tree_.AddFile(L"b.log", "beta");
        tree_.AddFile(L"sub\\c.txt", "ALPHA");
        Open();
        SetText(NamePageIndex, COMBO_LOCATION, tree_.Root());
    }
    void FindNames(const wchar_t* name) {
        SetText(NamePageIndex, COMBO_NAME, name);
        RunFind();
    }
    // The command is posted, as the pages do it.
    void RunFind() {
        PostCommand(COMMAND_FIND);
        PumpQueue();
    }
    [[nodiscard]] Texts SortedNames() const {
        Texts names = RowNames();
        std::sort(names.begin(), names.end());
        return names;
    }

    TempTree tree_;
};

TEST_F(Find, finds_what_the_name_asks_for_in_the_folder) {
    FindNames(L"*.txt");
    EXPECT_EQ(RowNames(), Texts{L"a.txt"});
    EXPECT_EQ(CellOf(List(), 0, ResultColumn::Folder), tree_.Root());
    EXPECT_EQ(CellOf(List(), 0, ResultColumn::Size), L"5");
}

TEST_F(Find, the_first_row_is_selected_and_the_list_has_the_focus) {
    FindNames(L"*");
    EXPECT_EQ(SortedNames(), (Texts{L"a.txt", L"b.log", L"sub"}));
    EXPECT_TRUE(IsRowSelected(List(), 0));
    EXPECT_FALSE(IsRowSelected(List(), 1));
    EXPECT_EQ(GetFocus(), List());
    EXPECT_FALSE(IsGray(COMMAND_OPEN));
    EXPECT_FALSE(IsGray(COMMAND_PROPERTIES));
}

TEST_F(Find, descends_where_the_box_is_checked) {
    Send(NamePageIndex, CHECK_SUBFOLDERS, BM_CLICK);
    FindNames(L"*.txt");
    EXPECT_EQ(RowNames(), (Texts{L"a.txt", L"c.txt"}));
    EXPECT_EQ(CellOf(List(), 1, ResultColumn::Folder), tree_.Path(L"sub"));
    EXPECT_EQ(RowNumberOf(List(), 1), 1);
}

TEST_F(Find, nothing_found_leaves_an_empty_list_with_the_focus_and_gray_commands) {
    FindNames(L"*");
    ASSERT_FALSE(IsGray(COMMAND_OPEN));
    FindNames(L"*.none");
    EXPECT_EQ(RowCount(), 0);
    EXPECT_EQ(GetFocus(), List());
    for (const int command : {COMMAND_OPEN, COMMAND_DELETE, COMMAND_RENAME, COMMAND_PROPERTIES})
        EXPECT_TRUE(IsGray(command)) << command;
}

TEST_F(Find, a_folder_that_is_not_there_gives_no_rows_and_no_message) {
    SetText(NamePageIndex, COMBO_LOCATION, tree_.Path(L"missing"));
    FindNames(L"*");
    EXPECT_EQ(RowCount(), 0);
}

TEST_F(Find, a_second_search_starts_with_an_empty_list) {
    FindNames(L"*.txt");
    FindNames(L"*.log");
    EXPECT_EQ(RowNames(), Texts{L"b.log"});
    EXPECT_EQ(RowNumberOf(List(), 0), 0);
}

TEST_F(Find, the_find_command_adds_nothing_to_the_histories) {
    FindNames(L"abc");
    EXPECT_EQ(Send(NamePageIndex, COMBO_NAME, CB_GETCOUNT), 2);
    EXPECT_EQ(Send(NamePageIndex, COMBO_LOCATION, CB_GETCOUNT), 0);
}

TEST_F(Find, enter_in_the_name_adds_to_the_history_and_finds) {
    SetText(NamePageIndex, COMBO_NAME, L"*.log");
    SetFocus(EditOf(COMBO_NAME));
    Key(EditOf(COMBO_NAME), VK_RETURN);
    PumpQueue();
    EXPECT_EQ(RowNames(), Texts{L"b.log"});
    EXPECT_EQ(GetFocus(), List());
}

TEST_F(Find, a_contained_text_is_looked_for_with_its_case_until_the_option_is_cleared) {
    Send(NamePageIndex, CHECK_SUBFOLDERS, BM_CLICK);
    SetText(NamePageIndex, EDIT_CONTENT, L"alpha");
    FindNames(L"*");
    EXPECT_EQ(RowNames(), Texts{L"a.txt"});
    Command(COMMAND_CHECK_CASE);
    RunFind();
    EXPECT_EQ(RowNames(), (Texts{L"a.txt", L"c.txt"}));
    Command(COMMAND_CHECK_CASE);
    RunFind();
    EXPECT_EQ(RowNames(), Texts{L"a.txt"});
}

TEST_F(Find, a_case_option_that_is_gray_counts_as_checked) {
    Send(NamePageIndex, CHECK_SUBFOLDERS, BM_CLICK);
    SetText(NamePageIndex, EDIT_CONTENT, L"alpha");
    Command(COMMAND_CHECK_CASE);
    EnableMenuItem(Window().Menu(), COMMAND_CHECK_CASE, MF_GRAYED);
    FindNames(L"*");
    EXPECT_FALSE(IsMarked(COMMAND_CHECK_CASE));
    EXPECT_EQ(RowNames(), Texts{L"a.txt"});
}

TEST_F(Find, a_size_bound_of_the_third_page_counts) {
    tree_.AddFile(L"big.txt", std::string(10241, 'x'));
    tree_.AddFile(L"edge.txt", std::string(10240, 'x'));
    Send(SizePageIndex, COMBO_FILE_SIZE, CB_SETCURSEL, 1);
    SetText(SizePageIndex, EDIT_KILOBYTES, L"10");
    FindNames(L"*");
    EXPECT_EQ(RowNames(), Texts{L"big.txt"});
}

TEST_F(Find, a_range_of_dates_long_past_finds_nothing) {
    const SYSTEMTIME past = {2001, 1, 0, 1, 0, 0, 0, 0};
    Send(DatePageIndex, RADIO_BETWEEN, BM_CLICK);
    Send(DatePageIndex, PICKER_FROM, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&past));
    Send(DatePageIndex, PICKER_TO, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&past));
    FindNames(L"*");
    EXPECT_EQ(RowCount(), 0);
}

TEST_F(Find, the_list_is_drawn_again_when_the_search_is_over) {
    FindNames(L"*");
    ValidateRect(List(), nullptr);
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    wchar_t text[] = L"one more";
    item.pszText = text;
    SendMessageW(List(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_TRUE(GetUpdateRect(List(), nullptr, FALSE)) << "drawing is still suspended";
}

TEST_F(Find, a_search_in_large_icons_fills_the_list_as_well) {
    Command(COMMAND_LARGE_ICON);
    FindNames(L"*");
    EXPECT_EQ(SortedNames(), (Texts{L"a.txt", L"b.log", L"sub"}));
    EXPECT_TRUE(IsRowSelected(List(), 0));
}
