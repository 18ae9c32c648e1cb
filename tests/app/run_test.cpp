// A whole run of the program, from its arguments to its exit code.

#include "app/run.h"

#include <gtest/gtest.h>

#include "app/start_up.h"
#include "base/program_context.h"
#include "platform/windows_ce.h"
#include "tests/support/message_pump.h"

namespace {

// A window of the class by which a running copy is known.
class RunningCopy {
  public:
    RunningCopy() {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = DefWindowProcW;
        windowClass.lpszClassName = L"QuorinSearch";
        // Kept for good: an earlier test may have registered the class.
        RegisterClassW(&windowClass);
        window_ = CreateWindowW(L"QuorinSearch", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                                nullptr, nullptr);
    }
    ~RunningCopy() { DestroyWindow(window_); }
    // As one that has been closed and is being taken apart.
    void Go() const {
        EnableWindow(window_, FALSE);
        ShowWindow(window_, SW_HIDE);
    }
    [[nodiscard]] HWND Window() const { return window_; }

  private:
    HWND window_;
};

// What a window of the class shows while the program runs, read from within its loop.
struct Seen {
    bool visible = false;
    int windows = 0;
};
Seen seen;

void CALLBACK LookAndQuit(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    const HWND window = FindWindowW(L"QuorinSearch", nullptr);
    seen.visible = window != nullptr && IsWindowVisible(window);
    for (HWND next = nullptr; (next = FindWindowExW(nullptr, next, L"QuorinSearch", nullptr)) != nullptr;)
        ++seen.windows;
    PostQuitMessage(5);
}

class Run : public testing::Test {
  protected:
    void SetUp() override {
        seen = Seen();
        before_ = Context();
    }
    void TearDown() override { ContextForStartUp() = before_; }

    // Runs until a timer of the program's loop has looked and quits with 5.
    static int RunAndLook(const wchar_t* commandLine, int showCommand = SW_SHOWNORMAL) {
        SetTimer(nullptr, 0, 100, &LookAndQuit);
        return RunQuorinSearch(GetModuleHandleW(nullptr), commandLine, showCommand);
    }

  private:
    ProgramContext before_;
};

}  // namespace

TEST_F(Run, the_main_window_is_shown_and_the_exit_code_is_that_of_the_quit) {
    EXPECT_EQ(RunAndLook(L""), 5);
    EXPECT_TRUE(seen.visible);
    EXPECT_EQ(seen.windows, 1);
    EXPECT_EQ(FindWindowW(L"QuorinSearch", nullptr), nullptr) << "the window outlives the run";
}

TEST_F(Run, the_show_command_is_that_of_the_start) {
    EXPECT_EQ(RunAndLook(L"", SW_HIDE), 5);
    EXPECT_EQ(seen.windows, 1);
    EXPECT_FALSE(seen.visible);
    EXPECT_EQ(Context().showCommand, SW_HIDE);
}

TEST_F(Run, words_on_the_command_line_change_nothing) {
    std::wstring words = L"/? -x \"a b\" ";
    for (int i = 0; i < 200; ++i)
        words += L"word ";
    EXPECT_EQ(RunAndLook(words.c_str()), 5);
    EXPECT_TRUE(seen.visible);
    EXPECT_EQ(seen.windows, 1);
}

TEST_F(Run, the_conversion_library_is_gone_afterwards) {
    EXPECT_EQ(RunAndLook(L""), 5);
    EXPECT_EQ(Context().conversionLibrary, nullptr);
}

TEST_F(Run, one_run_can_follow_another) {
    EXPECT_EQ(RunAndLook(L""), 5);
    EXPECT_EQ(RunAndLook(L""), 5);
    EXPECT_EQ(FindWindowW(L"QuorinSearch", nullptr), nullptr);
}

TEST_F(Run, while_a_copy_runs_another_ends_with_1_and_brings_the_first_forward) {
    const RunningCopy copy;
    const HWND other = CreateWindowW(L"STATIC", L"", WS_POPUP | WS_VISIBLE, 60, 0, 50, 50, nullptr, nullptr,
                                     nullptr, nullptr);
    SetForegroundWindow(other);
    EXPECT_EQ(RunQuorinSearch(GetModuleHandleW(nullptr), L"", SW_SHOWNORMAL), 1);
    EXPECT_EQ(GetForegroundWindow(), copy.Window());
    EXPECT_EQ(FindWindowExW(nullptr, copy.Window(), L"QuorinSearch", nullptr), nullptr)
        << "it built a window";
    EXPECT_EQ(Context().conversionLibrary, nullptr);
    DestroyWindow(other);
}

TEST_F(Run, a_copy_that_is_being_taken_apart_keeps_no_other_from_running) {
    const RunningCopy going;
    going.Go();
    EXPECT_EQ(RunAndLook(L""), 5);
    EXPECT_TRUE(seen.visible);
    EXPECT_EQ(seen.windows, 2);
}

TEST_F(Run, beside_copies_that_are_being_taken_apart_the_running_one_is_found) {
    const RunningCopy first;
    first.Go();
    const RunningCopy running;
    const RunningCopy last;
    last.Go();
    SetWindowPos(last.Window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(RunQuorinSearch(GetModuleHandleW(nullptr), L"", SW_SHOWNORMAL), 1);
    EXPECT_EQ(GetForegroundWindow(), running.Window());
}

TEST_F(Run, a_copy_that_was_started_hidden_or_is_disabled_by_a_dialog_runs) {
    const RunningCopy copy;
    EnableWindow(copy.Window(), FALSE);
    EXPECT_TRUE(BringRunningCopyForward());
    EnableWindow(copy.Window(), TRUE);
    ShowWindow(copy.Window(), SW_HIDE);
    EXPECT_TRUE(BringRunningCopyForward());
}

TEST_F(Run, without_a_running_copy_there_is_none_to_bring_forward) {
    EXPECT_FALSE(BringRunningCopyForward());
}
