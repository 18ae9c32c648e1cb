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
    ~ActivatedWindows() override { DestroyWindow(main_); }

    HWND main_ = Make(nullptr, WS_OVERLAPPEDWINDOW);
    HWND first_ = Make(main_, WS_POPUP | WS_CAPTION);
    HWND second_ = Make(main_, WS_POPUP | WS_CAPTION);
    HWND box_ = Make(second_, WS_POPUP | WS_CAPTION);
};

TEST_F(ActivatedWindows, take_their_own_input_while_they_are_enabled) {
    SetActiveWindow(box_);
    EXPECT_EQ(ce::InputWindowOf(main_), main_);
    EXPECT_FALSE(ce::PassActivationOn(main_));
    EXPECT_EQ(GetActiveWindow(), box_);
}

TEST_F(ActivatedWindows, leave_it_to_the_dialog_that_was_active_last) {
    EnableWindow(main_, FALSE);
    for (const HWND dialog : {first_, second_}) {
        SetActiveWindow(dialog);
        EXPECT_EQ(ce::InputWindowOf(main_), dialog);
    }
}

TEST_F(ActivatedWindows, leave_it_to_the_one_enabled_dialog_after_an_activation_of_their_own) {
    EnableWindow(main_, FALSE);
    EnableWindow(first_, FALSE);
    EnableWindow(second_, FALSE);
    SetActiveWindow(main_);
    EXPECT_EQ(ce::InputWindowOf(main_), box_);
    EXPECT_EQ(ce::InputWindowOf(first_), box_);
    EXPECT_EQ(ce::InputWindowOf(second_), box_);
    EXPECT_TRUE(ce::PassActivationOn(main_));
    EXPECT_EQ(GetActiveWindow(), box_);
}

TEST_F(ActivatedWindows, leave_it_to_no_tooltip_and_no_list_that_drops_down) {
    DestroyWindow(box_);
    EnableWindow(main_, FALSE);
    EnableWindow(first_, FALSE);
    EnableWindow(second_, FALSE);
    const HWND tip = Make(main_, WS_POPUP | WS_BORDER);
    SetActiveWindow(tip);
    EXPECT_EQ(ce::InputWindowOf(main_), main_);
    EXPECT_FALSE(ce::PassActivationOn(main_));
}

TEST_F(ActivatedWindows, are_restored_when_they_are_asked_to_the_front) {
    ShowWindow(main_, SW_MINIMIZE);
    ce::SetForegroundWindow(main_);
    EXPECT_FALSE(IsIconic(main_));
    EXPECT_EQ(GetForegroundWindow(), main_);
}

TEST_F(ActivatedWindows, get_what_a_dialog_leaves_them_while_its_owner_stays_disabled) {
    EnableWindow(main_, FALSE);
    EnableWindow(first_, FALSE);
    SetActiveWindow(second_);
    ce::LeaveInputTo(first_, second_);
    EXPECT_TRUE(IsWindowEnabled(first_));
    EXPECT_EQ(GetWindow(second_, GW_OWNER), first_);
    EXPECT_FALSE(IsWindowEnabled(main_));
}
