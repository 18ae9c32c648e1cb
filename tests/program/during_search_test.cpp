// What arrives in the middle of a search: the search is held there, the message is posted, and the search
// goes on.

#include "resources/resource_ids.h"
#include "tests/program/program_test.h"

class DuringSearch : public ProgramTest {
  protected:
    // Holds a search over the whole device once it shows this many rows.
    void HoldSearch(int rows) {
        Program().BringForward();
        Program().Fill(Where(L"\\", true));
        ASSERT_TRUE(Program().FindAndHold(rows));
    }

    void GoOn() {
        Program().Release();
        Program().WaitForEndOfSearch();
    }

    Names EverythingOnTheDevice() {
        static const Names everything = [&] {
            Program().Fill(Where(L"\\", true));
            Program().Find();
            return Program().RowPaths();
        }();
        return everything;
    }

    DWORD ProgramThread() { return GetWindowThreadProcessId(Program().Window(), nullptr); }
};

TEST_F(DuringSearch, the_dialog_shows_its_caption_the_folder_and_an_abort_button) {
    Program().Fill(Where(L"\\names"));
    ASSERT_TRUE(Program().FindAndHold());
    const auto dialog = Program().FindingDialog();
    ASSERT_TRUE(dialog.has_value());
    EXPECT_EQ(dialog->caption, Shown(L"Finding...", L"検索中..."));
    EXPECT_EQ(dialog->TextOf(STATIC_FOLDER), L"\\names");
    EXPECT_EQ(dialog->TextOf(IDCANCEL), Shown(L"Abort", L"中断"));
    GoOn();
    EXPECT_FALSE(Program().FindingDialog().has_value());
}

TEST_F(DuringSearch, the_dialog_lies_within_the_screen) {
    HoldSearch(0);
    const RECT place = Program().FindingDialog()->rectangle;
    EXPECT_GE(place.left, 0);
    EXPECT_GE(place.top, 0);
    EXPECT_LE(place.right, World().screenWidth);
    EXPECT_LE(place.bottom, World().screenHeight);
    GoOn();
}

TEST_F(DuringSearch, the_main_window_is_disabled) {
    HoldSearch(0);
    EXPECT_FALSE(IsWindowEnabled(Program().Window()));
    GoOn();
    EXPECT_TRUE(IsWindowEnabled(Program().Window()));
}

TEST_F(DuringSearch, the_list_is_emptied_first) {
    EverythingOnTheDevice();
    HoldSearch(0);
    EXPECT_EQ(Program().List().count, 0);
    GoOn();
}

TEST_F(DuringSearch, abort_keeps_the_rows_found_so_far_and_selects_the_first) {
    const Names everything = EverythingOnTheDevice();
    HoldSearch(5);
    const int held = Program().List().count;
    Program().PressAbort();
    GoOn();
    const Names rows = Program().RowPaths();
    EXPECT_GE(static_cast<int>(rows.size()), 5);
    // The entry that was under test may still have become a row.
    EXPECT_LE(static_cast<int>(rows.size()), held + 1);
    EXPECT_EQ(rows, Names(everything.begin(), everything.begin() + static_cast<std::ptrdiff_t>(rows.size())));
    EXPECT_EQ(Program().List().selected, 0);
    EXPECT_TRUE(Program().ListHasFocus());
}

TEST_F(DuringSearch, abort_in_a_sub_folder_ends_the_whole_search) {
    Program().Fill(Named(L"*.txt", L"\\walk", true));
    ASSERT_TRUE(Program().FindAndHold(2));
    Program().PressAbort();
    GoOn();
    EXPECT_EQ(Program().RowNames(), (Names{L"one.txt", L"two.txt"}));
    EXPECT_EQ(Program().List().selected, 0);
}

TEST_F(DuringSearch, after_an_abort_the_next_search_runs_whole) {
    const Names everything = EverythingOnTheDevice();
    HoldSearch(1);
    Program().PressAbort();
    GoOn();
    Program().Find();
    EXPECT_EQ(Program().RowPaths(), everything);
}

TEST_F(DuringSearch, a_paint_disturbs_nothing) {
    const Names everything = EverythingOnTheDevice();
    HoldSearch(7);
    Program().Repaint();
    GoOn();
    EXPECT_EQ(Program().RowPaths(), everything);
}

TEST_F(DuringSearch, another_find_does_not_run_inside_the_first) {
    const Names everything = EverythingOnTheDevice();
    HoldSearch(4);
    const int begun = Program().SearchesBegun();
    Program().PostFind();
    Program().PostFind();
    GoOn();
    EXPECT_EQ(Program().SearchesBegun(), begun);
    EXPECT_EQ(Program().RowPaths(), everything);
}

TEST_F(DuringSearch, a_second_run_command_for_the_dialog_starts_nothing) {
    const Names everything = EverythingOnTheDevice();
    HoldSearch(4);
    HWND dialog = nullptr;
    EnumThreadWindows(
        ProgramThread(),
        [](HWND window, LPARAM result) -> BOOL {
            if (GetDlgItem(window, STATIC_FOLDER) == nullptr) return TRUE;
            *reinterpret_cast<HWND*>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&dialog));
    ASSERT_NE(nullptr, dialog);
    PostMessageW(dialog, WM_COMMAND, COMMAND_RUN, 0);
    GoOn();
    EXPECT_EQ(Program().RowPaths(), everything);
}

TEST_F(DuringSearch, menu_commands_do_no_harm) {
    const Names everything = EverythingOnTheDevice();
    HoldSearch(3);
    for (const int command :
         {COMMAND_OPEN, COMMAND_DELETE, COMMAND_RENAME, COMMAND_PROPERTIES, COMMAND_LARGE_ICON,
          COMMAND_DETAILS, COMMAND_SAVE_RESULT, COMMAND_NEW_CONDITION}) {
        PostMessageW(Program().Window(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    }
    GoOn();
    EXPECT_EQ(Program().RowPaths(), everything);
    EXPECT_TRUE(Program().Dialogs().empty());
}

TEST_F(DuringSearch, the_close_box_of_the_disabled_window_is_refused) {
    const Names everything = EverythingOnTheDevice();
    HoldSearch(2);
    PostMessageW(Program().Window(), WM_SYSCOMMAND, SC_CLOSE, 0);
    GoOn();
    EXPECT_EQ(Program().RowPaths(), everything);
    EXPECT_TRUE(Program().IsRunning());
}

TEST_F(DuringSearch, files_that_vanish_and_appear_do_no_harm) {
    Tree().AddFile(L"moving\\first.txt", "text");
    Tree().AddFile(L"moving\\second.txt", "text");
    Program().Fill(Containing(L"text", L"\\moving"));
    ASSERT_TRUE(Program().FindAndHold(0));
    DeleteFileW((Drive().Root() + L"moving\\first.txt").c_str());
    DeleteFileW((Drive().Root() + L"moving\\second.txt").c_str());
    GoOn();
    EXPECT_TRUE(Program().RowNames().empty());
    EXPECT_TRUE(Program().Dialogs().empty());
}
