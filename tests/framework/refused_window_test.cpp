// Each allocation of a dialog or a window refused in turn: what cannot be registered is lost, and what is on
// the screen can still be used and closed.

#include <string>

#include "framework/control.h"
#include "tests/framework/dialog_ids.h"
#include "tests/framework/test_dialog.h"
#include "tests/support/refused_memory.h"

namespace {

constexpr INT_PTR NeverEnded = 5555;

int cancelsSent = 0;

// Cancels the dialog that is open, as its bar does; one that does not listen is ended by force, in the end.
void CALLBACK CancelDialog(HWND, UINT, UINT_PTR, DWORD) {
    constexpr int MostCancels = 20;
    const HWND dialog = GetActiveWindow();
    if (dialog == nullptr) return;
    if (++cancelsSent > MostCancels) EndDialog(dialog, NeverEnded);
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

INT_PTR RunAndCancel(Dialog& dialog) {
    cancelsSent = 0;
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, &CancelDialog);
    const INT_PTR result = dialog.RunModal();
    KillTimer(nullptr, timer);
    return result;
}

class RefusedDialogs : public FrameworkTest {};

TEST_F(RefusedDialogs, that_are_modal_can_be_closed_or_do_not_open_and_run_again) {
    int refusals = 0;
    for (int number = 1;; ++number) {
        TestDialog dialog(L"Plain_E");
        INT_PTR result = 0;
        int asked = 0;
        {
            const RefusedMemory refused = RefusedMemory::Only(number);
            result = RunAndCancel(dialog);
            asked = refused.Asked();
        }
        EXPECT_TRUE(result == Dialog::ResultCancel || result == -1) << number << ": " << result;
        EXPECT_EQ(dialog.Handle(), nullptr) << number;
        EXPECT_EQ(RunAndCancel(dialog), Dialog::ResultCancel) << number;
        if (asked < number) break;
        ++refusals;
    }
    EXPECT_GT(refusals, 0) << "nothing was refused";
}

TEST_F(RefusedDialogs, that_lose_a_table_in_their_making_can_be_closed) {
    for (int number = 1; number <= 12; ++number) {
        const RefusedMemory refused(number, number + 1);
        Listener listener;
        TestDialog dialog(L"Plain_E");
        dialog.OnCommand(IDOK, &listener, &Listener::TakeEvent);
        const INT_PTR result = RunAndCancel(dialog);
        EXPECT_TRUE(result == Dialog::ResultCancel || result == -1) << number << ": " << result;
    }
}

TEST_F(RefusedDialogs, that_are_modeless_get_no_window_or_one_that_their_messages_find) {
    for (int number = 1; number <= 6; ++number) {
        TestDialog dialog(L"Plain_E");
        {
            const RefusedMemory refused = RefusedMemory::Only(number);
            dialog.CreateModeless();
        }
        if (dialog.Handle() != nullptr) {
            EXPECT_EQ(Application::Windows()->Find(dialog.Handle()), &dialog) << number;
            continue;
        }
        EXPECT_EQ(FindWindowW(L"#32770", L"Plain"), nullptr) << number << ": a dead dialog was left";
        dialog.CreateModeless();
        EXPECT_NE(dialog.Handle(), nullptr) << number;
    }
}

TEST_F(RefusedDialogs, leave_a_control_that_cannot_be_subclassed_as_it_was) {
    TestWindow window;
    PropertySet properties = ChildProperties(5);
    Control edit(&window, L"Edit", properties);
    {
        const RefusedMemory refused;
        edit.Subclass();
    }
    SetWindowTextW(edit.Handle(), L"words");
    EXPECT_EQ(GetWindowTextLengthW(edit.Handle()), 5);
    edit.Subclass();
    EXPECT_EQ(GetWindowTextLengthW(edit.Handle()), 5);
    MessageRecord record{WM_GETTEXTLENGTH, 0, 0, 0, 0};
    EXPECT_EQ(edit.DefaultProcessing(record), 5);
}

TEST_F(RefusedDialogs, leave_a_control_that_cannot_be_entered_in_the_map_as_it_was) {
    TestWindow window;
    const HWND edit =
        CreateWindowExW(0, L"Edit", L"", WS_CHILD, 0, 0, 50, 20, window.Handle(), nullptr, nullptr, nullptr);
    std::unique_ptr<Control> wrapper;
    {
        const RefusedMemory refused = RefusedMemory::Only(1);
        wrapper = std::make_unique<Control>(&window, edit, L"Edit", Ownership::Wrapped);
    }
    ASSERT_EQ(Application::Windows()->Find(edit), nullptr);
    wrapper->Subclass();
    SetWindowTextW(edit, L"words");
    EXPECT_EQ(GetWindowTextLengthW(edit), 5);
    wrapper.reset();
    EXPECT_EQ(GetWindowTextLengthW(edit), 5);
}

}  // namespace
