// The main window's file operation, and messages that arrive in the middle of one.

#include <functional>

#include "tests/app/main_window_test.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/temp_tree.h"

namespace {

constexpr int FileCount = 30;

int copied = 0;
std::function<void()> disturbance;

BOOL CountCopy(const wchar_t*, const wchar_t*, BOOL) {
    if (++copied == 5 && disturbance) disturbance();
    return TRUE;
}

}  // namespace

class DuringFileOperation : public MainWindowTest {
  protected:
    void SetUp() override {
        copied = 0;
        Open();
        for (int i = 0; i < FileCount; ++i)
            tree_.AddFile(L"s\\" + std::to_wstring(i), "text");
        tree_.AddFolder(L"d");
        FileOperation& operation = Window().Operation();
        ASSERT_TRUE(operation.AddSource(tree_.Path(L"s").c_str()));
        ASSERT_TRUE(operation.SetDestination(tree_.Path(L"d").c_str()));
    }
    void TearDown() override { disturbance = nullptr; }

    // A whole operation in the middle of which this happens.
    INT_PTR RunWith(const std::function<void()>& event) {
        disturbance = event;
        return Window().Operation().RunModal();
    }

    TempTree tree_;

  private:
    Replaced<decltype(ce::FileCalls::copyFile)> copy_{ce::fileCalls.copyFile, CountCopy};
};

TEST_F(DuringFileOperation, undisturbed_it_takes_every_file_and_the_window_is_usable_again) {
    bool enabled = true;
    EXPECT_EQ(RunWith([&] { enabled = IsWindowEnabled(Handle()) != FALSE; }), 1);
    EXPECT_FALSE(enabled);
    EXPECT_EQ(copied, FileCount);
    EXPECT_TRUE(IsWindowEnabled(Handle()));
}

TEST_F(DuringFileOperation, commands_are_dropped) {
    SetText(NamePageIndex, COMBO_NAME, L"*");
    EXPECT_EQ(RunWith([this] {
                  // The search last: while it runs the others would be dropped on its account.
                  for (const int command : {COMMAND_LARGE_ICON, COMMAND_CHECK_CASE, COMMAND_NEW_CONDITION,
                                            COMMAND_ABOUT, COMMAND_FIND}) {
                      PostCommand(command);
                  }
              }),
              1);
    EXPECT_EQ(copied, FileCount);
    EXPECT_EQ(RowCount(), 0);
    EXPECT_EQ(GetWindowLongW(List(), GWL_STYLE) & LVS_TYPEMASK, LVS_REPORT);
    EXPECT_TRUE(IsMarked(COMMAND_CHECK_CASE));
    EXPECT_EQ(TextOf(NamePageIndex, COMBO_NAME), L"*");
}

TEST_F(DuringFileOperation, closing_the_window_stops_it_first_and_closes_then) {
    bool stillThere = false;
    EXPECT_EQ(RunWith([&] {
                  SendMessageW(Handle(), WM_CLOSE, 0, 0);
                  stillThere = IsWindow(Handle()) != FALSE;
              }),
              1);
    EXPECT_TRUE(stillThere);
    EXPECT_EQ(copied, 5);
    EXPECT_EQ(world_.TheApplication().Run(), 0);
    EXPECT_FALSE(IsWindow(Handle()));
}

TEST_F(DuringFileOperation, the_exit_command_ends_it_and_the_program) {
    EXPECT_EQ(RunWith([this] { PostCommand(COMMAND_EXIT); }), 1);
    EXPECT_GE(copied, 5);
    EXPECT_LT(copied, FileCount);
    EXPECT_EQ(world_.TheApplication().Run(), 0);
}

TEST_F(DuringFileOperation, the_windows_sudden_end_ends_it) {
    const HWND main = Handle();
    EXPECT_EQ(RunWith([main] { DestroyWindow(main); }), 1);
    EXPECT_EQ(copied, 5);
    EXPECT_EQ(world_.TheApplication().Run(), 0);
}
