// The "Finding..." dialog with a job of the test's own.

#include "app/abort_dialog.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "base/message_pump.h"
#include "tests/support/message_pump.h"
#include "tests/support/test_world.h"

namespace {

// What the dialog runs.
class Job : public WindowObject {
  public:
    Job() : WindowObject(nullptr, nullptr) {}
    LRESULT Run(EventArguments&) {
        ++runs;
        if (work) work();
        return 0;
    }

    std::function<void()> work;
    int runs = 0;
};

}  // namespace

class AbortDialogTest : public testing::Test {
  protected:
    void Make(UiLanguage language = UiLanguage::English) {
        ContextForStartUp().uiLanguage = language;
        dialog_ = std::make_unique<AbortDialog>(&host_.Object());
        dialog_->OnRun(&job_, &Job::Run);
    }
    INT_PTR RunWith(const std::function<void()>& work) {
        job_.work = work;
        return dialog_->RunModal();
    }
    [[nodiscard]] HWND Button() const { return GetDlgItem(dialog_->Handle(), IDCANCEL); }
    [[nodiscard]] std::wstring FolderText() const {
        wchar_t text[512] = L"";
        GetDlgItemTextW(dialog_->Handle(), STATIC_FOLDER, text, 512);
        return text;
    }
    // Lets what was posted arrive, as a search does.
    static void PumpAsASearchDoes() {
        ExpectMessages();
        while (PumpOneMessage() == PumpOutcome::Dispatched) {
        }
    }

  private:
    TestWorld world_;

  protected:
    HostWindow host_;
    Job job_;
    std::unique_ptr<AbortDialog> dialog_;
};

TEST_F(AbortDialogTest, the_job_runs_once_the_dialog_is_shown_and_the_result_is_1) {
    Make();
    bool visible = false;
    EXPECT_EQ(RunWith([&] { visible = IsWindowVisible(dialog_->Handle()) != FALSE; }), 1);
    EXPECT_TRUE(visible);
    EXPECT_EQ(job_.runs, 1);
    EXPECT_EQ(dialog_->Handle(), nullptr);
}

TEST_F(AbortDialogTest, its_texts_are_english) {
    Make();
    wchar_t caption[64] = L"";
    wchar_t button[64] = L"";
    RunWith([&] {
        GetWindowTextW(dialog_->Handle(), caption, 64);
        GetWindowTextW(Button(), button, 64);
    });
    EXPECT_EQ(std::wstring(caption), L"Finding...");
    EXPECT_EQ(std::wstring(button), L"Abort");
}

TEST_F(AbortDialogTest, its_texts_are_japanese) {
    Make(UiLanguage::Japanese);
    wchar_t caption[64] = L"";
    wchar_t button[64] = L"";
    RunWith([&] {
        GetWindowTextW(dialog_->Handle(), caption, 64);
        GetWindowTextW(Button(), button, 64);
    });
    EXPECT_EQ(std::wstring(caption), L"検索中...");
    EXPECT_EQ(std::wstring(button), L"中断");
}

TEST_F(AbortDialogTest, its_bar_has_cancel_alone) {
    Make();
    LRESULT buttons = 0;
    TBBUTTON first = {};
    RunWith([&] {
        buttons = SendMessageW(dialog_->MenuBar(), TB_BUTTONCOUNT, 0, 0);
        SendMessageW(dialog_->MenuBar(), TB_GETBUTTON, 0, reinterpret_cast<LPARAM>(&first));
    });
    EXPECT_EQ(buttons, 1);
    EXPECT_EQ(first.idCommand, IDCANCEL);
}

TEST_F(AbortDialogTest, its_parent_takes_no_input_meanwhile_and_does_afterwards) {
    Make();
    bool enabled = true;
    RunWith([&] { enabled = IsWindowEnabled(host_.Handle()) != FALSE; });
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(IsWindowEnabled(host_.Handle()));
}

TEST_F(AbortDialogTest, the_abort_button_sets_the_flag_and_the_result_is_2) {
    Make();
    bool before = true;
    bool after = false;
    EXPECT_EQ(RunWith([&] {
                  before = dialog_->StopRequested();
                  PostMessageW(Button(), BM_CLICK, 0, 0);
                  PumpAsASearchDoes();
                  after = dialog_->StopRequested();
              }),
              2);
    EXPECT_FALSE(before);
    EXPECT_TRUE(after);
}

TEST_F(AbortDialogTest, the_bars_cancel_and_closing_the_dialog_abort_as_well) {
    Make();
    for (const UINT message : {UINT{WM_COMMAND}, UINT{WM_CLOSE}}) {
        bool stopped = false;
        EXPECT_EQ(RunWith([&] {
                      PostMessageW(dialog_->Handle(), message, message == WM_COMMAND ? IDCANCEL : 0, 0);
                      PumpAsASearchDoes();
                      stopped = dialog_->StopRequested();
                  }),
                  2);
        EXPECT_TRUE(stopped) << message;
    }
}

TEST_F(AbortDialogTest, escape_on_the_button_aborts_and_enter_does_not) {
    Make();
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_ESCAPE}}) {
        const bool aborts = key == VK_ESCAPE;
        bool stopped = false;
        EXPECT_EQ(RunWith([&] {
                      EXPECT_EQ(GetFocus(), Button());
                      PostMessageW(Button(), WM_KEYDOWN, key, 1);
                      PumpAsASearchDoes();
                      stopped = dialog_->StopRequested();
                  }),
                  aborts ? 2 : 1);
        EXPECT_EQ(stopped, aborts) << key;
    }
}

TEST_F(AbortDialogTest, keys_that_wait_at_the_end_of_the_job_go_nowhere) {
    Make();
    EXPECT_EQ(RunWith([&] {
                  PostMessageW(Button(), WM_KEYDOWN, VK_ESCAPE, 1);
                  PostMessageW(Button(), WM_CHAR, 'x', 1);
              }),
              1);
    MSG message;
    EXPECT_FALSE(PeekMessageW(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_NOREMOVE));
}

TEST_F(AbortDialogTest, the_programs_end_that_waits_behind_the_keys_is_not_lost) {
    Make();
    RunWith([&] {
        PostMessageW(Button(), WM_CHAR, 'x', 1);
        PostQuitMessage(7);
    });
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
}

TEST_F(AbortDialogTest, another_key_on_the_button_aborts_nothing) {
    Make();
    bool stopped = true;
    EXPECT_EQ(RunWith([&] {
                  PostMessageW(Button(), WM_KEYDOWN, 'A', 1);
                  PostMessageW(Button(), WM_KEYDOWN, VK_TAB, 1);
                  PumpAsASearchDoes();
                  stopped = dialog_->StopRequested();
              }),
              1);
    EXPECT_FALSE(stopped);
}

TEST_F(AbortDialogTest, the_flag_is_clear_again_in_the_next_run) {
    Make();
    EXPECT_EQ(RunWith([&] { dialog_->Abort(); }), 2);
    bool stopped = true;
    EXPECT_EQ(RunWith([&] { stopped = dialog_->StopRequested(); }), 1);
    EXPECT_FALSE(stopped);
    EXPECT_EQ(job_.runs, 2);
}

TEST_F(AbortDialogTest, a_second_run_command_in_the_middle_starts_nothing) {
    Make();
    EXPECT_EQ(RunWith([&] {
                  PostMessageW(dialog_->Handle(), WM_COMMAND, COMMAND_RUN, 0);
                  PumpAsASearchDoes();
              }),
              1);
    EXPECT_EQ(job_.runs, 1);
}

TEST_F(AbortDialogTest, it_says_that_it_is_running_until_it_has_returned) {
    Make();
    EXPECT_FALSE(dialog_->IsRunning());
    bool during = false;
    bool afterAbort = false;
    RunWith([&] {
        during = dialog_->IsRunning();
        dialog_->Abort();
        afterAbort = dialog_->IsRunning();
    });
    EXPECT_TRUE(during);
    EXPECT_TRUE(afterAbort);
    EXPECT_FALSE(dialog_->IsRunning());
}

TEST_F(AbortDialogTest, the_first_folder_is_shown_at_once) {
    Make();
    std::wstring shown;
    RunWith([&] {
        dialog_->EnterFolder(L"\\Program Files & more");
        shown = FolderText();
    });
    EXPECT_EQ(shown, L"\\Program Files & more");
}

TEST_F(AbortDialogTest, a_folder_that_follows_at_once_waits_and_the_latest_one_is_shown) {
    Make();
    std::wstring atOnce, later;
    RunWith([&] {
        dialog_->EnterFolder(L"\\first");
        dialog_->EnterFolder(L"\\second");
        dialog_->EnterFolder(L"\\third");
        atOnce = FolderText();
        Sleep(150);
        EXPECT_FALSE(dialog_->StopRequested());
        later = FolderText();
    });
    EXPECT_EQ(atOnce, L"\\first");
    EXPECT_EQ(later, L"\\third");
}

TEST_F(AbortDialogTest, a_folder_after_a_pause_is_shown_at_once) {
    Make();
    std::wstring shown;
    RunWith([&] {
        dialog_->EnterFolder(L"\\first");
        Sleep(150);
        dialog_->EnterFolder(L"\\second");
        shown = FolderText();
    });
    EXPECT_EQ(shown, L"\\second");
}

TEST_F(AbortDialogTest, a_folder_that_waits_is_shown_before_a_long_file) {
    Make();
    std::wstring before, then;
    RunWith([&] {
        dialog_->EnterFolder(L"\\first");
        dialog_->EnterFolder(L"\\second");
        before = FolderText();
        dialog_->BeforeLongFile();
        then = FolderText();
    });
    EXPECT_EQ(before, L"\\first");
    EXPECT_EQ(then, L"\\second");
}

TEST_F(AbortDialogTest, a_folder_name_of_any_length_is_cut_at_259_units) {
    Make();
    std::wstring shown;
    const std::wstring longName(400, L'f');
    RunWith([&] {
        dialog_->EnterFolder(longName.c_str());
        shown = FolderText();
    });
    EXPECT_EQ(shown, std::wstring(259, L'f'));
}

TEST_F(AbortDialogTest, a_new_run_starts_without_the_last_runs_folder) {
    Make();
    RunWith([&] {
        dialog_->EnterFolder(L"\\old");
        dialog_->EnterFolder(L"\\older");
    });
    std::wstring shown = L"?";
    RunWith([&] {
        Sleep(150);
        EXPECT_FALSE(dialog_->StopRequested());
        shown = FolderText();
    });
    EXPECT_EQ(shown, L"");
}
