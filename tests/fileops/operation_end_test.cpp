// Unusual ways in which a run ends or is disturbed.

#include "resources/resource_ids.h"
#include "tests/fileops/failing_calls.h"
#include "tests/fileops/operation_test.h"
#include "tests/fileops/operation_user.h"
#include "tests/support/message_pump.h"

namespace {

// No answer to any question.
constexpr int UnknownCommand = 30000;

class CloseCounter : public WindowObject {
  public:
    CloseCounter() : WindowObject(nullptr, nullptr) {}
    LRESULT Count(MessageRecord&) {
        ++closed;
        return 0;
    }
    int closed = 0;
};

// The dialog is cancelled as soon as it is up, before its run begins.
class CancelledOperation : public FileOperation {
  public:
    using FileOperation::FileOperation;

  protected:
    LRESULT OnInitDialog(MessageRecord& record) override {
        PostMessageW(Handle(), WM_COMMAND, IDCANCEL, 0);
        return FileOperation::OnInitDialog(record);
    }
};

// Its parent wants to close as soon as the dialog is up, before the run begins.
class OperationOfClosingParent : public FileOperation {
  public:
    using FileOperation::FileOperation;

  protected:
    LRESULT OnInitDialog(MessageRecord& record) override {
        const LRESULT result = FileOperation::OnInitDialog(record);
        StopAndCloseParent();
        return result;
    }
};

// Remembers whether it took input when it ended.
class EnabledOperation : public FileOperation {
  public:
    using FileOperation::FileOperation;
    bool enabledAtEnd = false;

    void End(INT_PTR result) override {
        enabledAtEnd = IsWindowEnabled(Handle()) != FALSE;
        FileOperation::End(result);
    }
};

int dialogsAllowed = 0;

// Refuses the dialogs of this thread beyond those allowed.
LRESULT CALLBACK RefuseDialogs(int code, WPARAM wParam, LPARAM lParam) {
    if (code != HCBT_CREATEWND) return CallNextHookEx(nullptr, code, wParam, lParam);
    wchar_t name[16] = L"";
    GetClassNameW(reinterpret_cast<HWND>(wParam), name, 16);
    return lstrcmpW(name, L"#32770") == 0 && --dialogsAllowed < 0 ? 1 : 0;
}

}  // namespace

class OperationEnd : public OperationTest {
  protected:
    OperationEnd() {
        AddContents(tree_, "s/a=1 s/b=2 s/c=3 d/");
        operation_.confirm = false;
        Prepare(FileOperationKind::Copy, {"s/a", "s/b", "s/c"}, "d");
    }
    // What happens when the second file is copied.
    template <typename Act>
    void AtSecondCopy(FailingCalls& calls, Act act) {
        calls.atCall = [this, act, done = false](int) mutable {
            if (done || Shown(STATIC_SOURCE) != PathIn(tree_, "s/b")) return;
            done = true;
            act();
        };
    }
    [[nodiscard]] HWND StopButton() const { return GetDlgItem(operation_.Handle(), BUTTON_STOP); }
};

TEST_F(OperationEnd, stop_lets_the_file_in_progress_be_completed) {
    FailingCalls calls;
    AtSecondCopy(calls, [this] { PostMessageW(StopButton(), BM_CLICK, 0, 0); });
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=1 d/b=2"));
}

TEST_F(OperationEnd, enter_and_escape_on_the_button_stop_and_another_key_does_not) {
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_ESCAPE}, WPARAM{'A'}}) {
        DeleteFileW(PathIn(tree_, "d/c").c_str());
        FailingCalls calls;
        AtSecondCopy(calls, [this, key] { PostMessageW(StopButton(), WM_KEYDOWN, key, 1); });
        EXPECT_EQ(Run(), "");
        EXPECT_EQ(GetFileAttributesW(PathIn(tree_, "d/c").c_str()) != INVALID_FILE_ATTRIBUTES, key == 'A');
    }
}

TEST_F(OperationEnd, the_bars_cancel_stops) {
    FailingCalls calls;
    AtSecondCopy(calls, [this] { PostMessageW(operation_.Handle(), WM_COMMAND, IDCANCEL, 0); });
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=1 d/b=2"));
}

TEST_F(OperationEnd, the_bars_ok_does_nothing) {
    FailingCalls calls;
    AtSecondCopy(calls, [this] { PostMessageW(operation_.Handle(), WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=1 d/b=2 d/c=3"));
}

TEST_F(OperationEnd, cancelled_before_its_beginning_a_run_does_nothing) {
    CancelledOperation cancelled(&host_.Object());
    ASSERT_TRUE(cancelled.AddSource(PathIn(tree_, "s/a").c_str()));
    ASSERT_TRUE(cancelled.SetDestination(PathIn(tree_, "d").c_str()));
    EXPECT_EQ(cancelled.RunModal(), 1);
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/"));
}

TEST_F(OperationEnd, a_stop_from_before_the_run_is_forgotten) {
    operation_.Stop();
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=1 d/b=2 d/c=3"));
}

TEST_F(OperationEnd, after_a_stop_the_next_run_does_everything) {
    {
        FailingCalls calls;
        AtSecondCopy(calls, [this] { operation_.Stop(); });
        EXPECT_EQ(Run(), "");
    }
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=1 d/b=2 d/c=3"));
}

TEST_F(OperationEnd, a_second_run_command_in_the_middle_starts_nothing) {
    FailingCalls calls;
    AtSecondCopy(calls, [this] { PostMessageW(operation_.Handle(), WM_COMMAND, COMMAND_RUN, 0); });
    EXPECT_EQ(Run(), "");
    int copies = 0;
    for (const Change& change : calls.Changes())
        copies += change.kind == Change::Kind::Copy ? 1 : 0;
    EXPECT_EQ(copies, 3);
}

TEST_F(OperationEnd, it_cannot_be_run_while_it_runs) {
    FailingCalls calls;
    INT_PTR second = 0;
    AtSecondCopy(calls, [&] { second = operation_.RunModal(); });
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(second, -1);
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=1 d/b=2 d/c=3"));
}

TEST_F(OperationEnd, stopped_with_its_parent_it_closes_the_parent_afterwards) {
    CloseCounter counter;
    host_.Object().OnMessage(WM_CLOSE, &counter, &CloseCounter::Count);
    FailingCalls calls;
    AtSecondCopy(calls, [&] {
        operation_.StopAndCloseParent();
        EXPECT_EQ(counter.closed, 0);
    });
    EXPECT_EQ(Run(), "");
    PumpQueue();
    EXPECT_EQ(counter.closed, 1);
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=1 d/b=2"));
    EXPECT_EQ(Run(), "");
    PumpQueue();
    EXPECT_EQ(counter.closed, 1);
}

TEST_F(OperationEnd, stopped_with_its_parent_before_its_beginning_it_does_nothing) {
    CloseCounter counter;
    host_.Object().OnMessage(WM_CLOSE, &counter, &CloseCounter::Count);
    OperationOfClosingParent closing(&host_.Object());
    ASSERT_TRUE(closing.AddSource(PathIn(tree_, "s/a").c_str()));
    ASSERT_TRUE(closing.SetDestination(PathIn(tree_, "d").c_str()));
    EXPECT_EQ(closing.RunModal(), 1);
    PumpQueue();
    EXPECT_EQ(counter.closed, 1);
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/"));
}

TEST_F(OperationEnd, a_failure_is_told_over_the_dialog_and_ends_the_run) {
    DeleteFileW(PathIn(tree_, "s/b").c_str());
    bool ownerIsTheDialog = false;
    EXPECT_EQ(
        Run({IDOK}, [&](HWND box) { ownerIsTheDialog = GetWindow(box, GW_OWNER) == operation_.Handle(); }),
        "Error: Error CopyFile 2");
    EXPECT_TRUE(ownerIsTheDialog);
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/c=3 d/a=1"));
}

TEST_F(OperationEnd, it_ends_with_its_owner_in_the_middle_of_a_file) {
    FailingCalls calls;
    AtSecondCopy(calls, [this] { DestroyWindow(host_.Handle()); });
    EXPECT_EQ(operation_.RunModal(), 1);
    EXPECT_EQ(operation_.Handle(), nullptr);
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=1 d/b=2"));
}

TEST_F(OperationEnd, it_ends_with_its_owner_while_a_question_is_open) {
    operation_.confirm = true;
    AddContents(tree_, "d/a=old");
    OperationUser user(operation_, {UnknownCommand});
    // Left unanswered until its owner goes.
    user.atBox = [](HWND box) {
        SetTimer(box, 1, 1, [](HWND window, UINT, UINT_PTR, DWORD) {
            KillTimer(window, 1);
            DestroyWindow(GetWindow(window, GW_OWNER));
        });
    };
    EXPECT_EQ(operation_.RunModal(), 1);
    EXPECT_EQ(operation_.Handle(), nullptr);
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=old"));
}

TEST_F(OperationEnd, the_programs_end_during_a_question_ends_the_run_and_still_comes) {
    operation_.confirm = true;
    AddContents(tree_, "d/b=old");
    EXPECT_EQ(Run({UnknownCommand}, [](HWND) { PostQuitMessage(5); }), "Confirm File Replace/4");
    MSG message = {};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, WPARAM{5});
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=1 d/b=old"));
}

TEST_F(OperationEnd, stop_behind_an_open_question_ends_the_run_after_the_answered_file) {
    operation_.confirm = true;
    AddContents(tree_, "d/b=old");
    EXPECT_EQ(Run({IDYES}, [this](HWND) { PostMessageW(StopButton(), BM_CLICK, 0, 0); }),
              "Confirm File Replace/4");
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=1 d/b=2"));
}

TEST_F(OperationEnd, after_a_question_that_could_not_be_made_finds_the_dialog_enabled) {
    AddContents(tree_, "d/a=old");
    EnabledOperation asking(&host_.Object());
    ASSERT_TRUE(asking.AddSource(PathIn(tree_, "s/a").c_str()));
    ASSERT_TRUE(asking.SetDestination(PathIn(tree_, "d").c_str()));
    dialogsAllowed = 1;
    const HHOOK refusal = SetWindowsHookExW(WH_CBT, RefuseDialogs, nullptr, GetCurrentThreadId());
    EXPECT_EQ(asking.RunModal(), 1);
    UnhookWindowsHookEx(refusal);
    EXPECT_LT(dialogsAllowed, 0) << "nothing was asked";
    EXPECT_TRUE(asking.enabledAtEnd);
    EXPECT_TRUE(IsWindowEnabled(host_.Handle()));
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/b=2 s/c=3 d/a=old"));
}
