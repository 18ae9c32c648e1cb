// Which window takes the input when a dialog is open.

#include <gtest/gtest.h>

#include "platform/windows_ce.h"

namespace {

HWND Make(HWND owner, DWORD style) {
    return CreateWindowExW(0, L"Static", L"", style | WS_VISIBLE, 0, 0, 80, 60, owner, nullptr, nullptr,
                           nullptr);
}

}  // namespace

class ActivatedWindows : public testing::Test {
  protected:
    ~ActivatedWindows() override { DestroyWindow(main); }

    HWND main = Make(nullptr, WS_OVERLAPPEDWINDOW);
    HWND first = Make(main, WS_POPUP | WS_CAPTION);
    HWND second = Make(main, WS_POPUP | WS_CAPTION);
    HWND box = Make(second, WS_POPUP | WS_CAPTION);
};

TEST_F(ActivatedWindows, take_their_own_input_while_they_are_enabled) {
    SetActiveWindow(box);
    EXPECT_EQ(ce::InputWindowOf(main), main);
    EXPECT_FALSE(ce::PassActivationOn(main));
    EXPECT_EQ(GetActiveWindow(), box);
}

TEST_F(ActivatedWindows, leave_it_to_the_dialog_that_was_active_last) {
    EnableWindow(main, FALSE);
    for (const HWND dialog : {first, second}) {
        SetActiveWindow(dialog);
        EXPECT_EQ(ce::InputWindowOf(main), dialog);
    }
}

TEST_F(ActivatedWindows, leave_it_to_the_one_enabled_dialog_after_an_activation_of_their_own) {
    EnableWindow(main, FALSE);
    EnableWindow(first, FALSE);
    EnableWindow(second, FALSE);
    SetActiveWindow(main);
    EXPECT_EQ(ce::InputWindowOf(main), box);
    EXPECT_EQ(ce::InputWindowOf(first), box);
    EXPECT_EQ(ce::InputWindowOf(second), box);
    EXPECT_TRUE(ce::PassActivationOn(main));
    EXPECT_EQ(GetActiveWindow(), box);
}

TEST_F(ActivatedWindows, leave_it_to_no_tooltip_and_no_list_that_drops_down) {
    DestroyWindow(box);
    EnableWindow(main, FALSE);
    EnableWindow(first, FALSE);
    EnableWindow(second, FALSE);
    const HWND tip = Make(main, WS_POPUP | WS_BORDER);
    SetActiveWindow(tip);
    EXPECT_EQ(ce::InputWindowOf(main), main);
    EXPECT_FALSE(ce::PassActivationOn(main));
}

TEST_F(ActivatedWindows, are_restored_when_they_are_asked_to_the_front) {
    ShowWindow(main, SW_MINIMIZE);
    ce::SetForegroundWindow(main);
    EXPECT_FALSE(IsIconic(main));
    EXPECT_EQ(GetForegroundWindow(), main);
}

TEST_F(ActivatedWindows, get_what_a_dialog_leaves_them_while_its_owner_stays_disabled) {
    EnableWindow(main, FALSE);
    EnableWindow(first, FALSE);
    SetActiveWindow(second);
    ce::LeaveInputTo(first, second);
    EXPECT_TRUE(IsWindowEnabled(first));
    EXPECT_EQ(GetWindow(second, GW_OWNER), first);
    EXPECT_FALSE(IsWindowEnabled(main));
}
