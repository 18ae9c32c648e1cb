#include <gtest/gtest.h>

#include <optional>

#include "tests/platform/bar_ids.h"
#include "tests/platform/test_parent.h"
#include "tests/support/replaced_calls.h"

namespace {

constexpr DWORD OrdinaryFlags = ce::DialogDoneButton | ce::DialogSizeFullScreen;

// A dialog of 100 x 60 units with two edits and no shell set-up yet.
class DialogSetUp : public testing::Test {
  protected:
    void SetUp() override {
        dialog_ = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(DIALOG_PLAIN), nullptr,
                                     Procedure, reinterpret_cast<LPARAM>(this));
        ASSERT_NE(dialog_, nullptr);
        GetWindowRect(dialog_, &asDesigned_);
    }
    void TearDown() override { DestroyWindow(dialog_); }

    void PretendPocketPc() {
        screen_.emplace(ce::systemCalls.getSystemMetrics,
                        [](int index) { return index == SM_CXSCREEN ? 240 : 320; });
    }
    void PretendHandheldPc() {
        screen_.emplace(ce::systemCalls.getSystemMetrics,
                        [](int index) { return index == SM_CXSCREEN ? 640 : 240; });
    }
    void PretendDesktop() {
        screen_.emplace(ce::systemCalls.getSystemMetrics,
                        [](int index) { return index == SM_CXSCREEN ? 1920 : 1080; });
    }
    [[nodiscard]] BOOL Init(DWORD flags, DWORD mask = 1) const {
        const ce::DialogInitInfo info{mask, dialog_, flags};
        return ce::SHInitDialog(&info);
    }
    [[nodiscard]] HWND MakeBar() const {
        ce::MenuBarInfo info{};
        info.cbSize = sizeof(info);
        info.hwndParent = dialog_;
        info.nToolBarId = BAR_EMPTY;
        info.hInstRes = GetModuleHandleW(nullptr);
        info.nBmpId = BAR_PICTURES;
        info.cBmpImages = 5;
        return ce::SHCreateMenuBar(&info) ? info.hwndMB : nullptr;
    }
    [[nodiscard]] RECT Rectangle() const {
        RECT rectangle{};
        GetWindowRect(dialog_, &rectangle);
        return rectangle;
    }
    static void ExpectSame(const RECT& actual, const RECT& expected) {
        EXPECT_EQ(actual.left, expected.left);
        EXPECT_EQ(actual.top, expected.top);
        EXPECT_EQ(actual.right, expected.right);
        EXPECT_EQ(actual.bottom, expected.bottom);
    }
    void ExpectBarAtBottom(HWND bar) const {
        RECT client{};
        GetClientRect(dialog_, &client);
        RECT rectangle{};
        GetWindowRect(bar, &rectangle);
        MapWindowPoints(HWND_DESKTOP, dialog_, reinterpret_cast<POINT*>(&rectangle), 2);
        ExpectSame(rectangle, RECT{0, client.bottom - 26, client.right, client.bottom});
    }
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_INITDIALOG) SetWindowLongPtrW(window, DWLP_USER, lParam);
        auto* self = reinterpret_cast<DialogSetUp*>(GetWindowLongPtrW(window, DWLP_USER));
        // The edits' own notifications carry their handles.
        const bool fromBar = LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL;
        if (message == WM_COMMAND && fromBar && self != nullptr) self->commands_.push_back({wParam, lParam});
        return FALSE;
    }

    std::optional<Replaced<int (*)(int)>> screen_;
    HWND dialog_ = nullptr;
    RECT asDesigned_{};
    std::vector<TestParent::Command> commands_;
};

TEST_F(DialogSetUp, a_full_screen_dialog_covers_a_pocket_pc_s_screen) {
    PretendPocketPc();
    EXPECT_TRUE(Init(OrdinaryFlags));
    ExpectSame(Rectangle(), RECT{0, 0, 240, 320});
}

TEST_F(DialogSetUp, a_full_screen_dialog_keeps_its_asDesigneds_size_on_a_handheld_pc) {
    PretendHandheldPc();
    EXPECT_TRUE(Init(OrdinaryFlags));
    ExpectSame(Rectangle(), asDesigned_);
}

TEST_F(DialogSetUp, a_full_screen_dialog_keeps_its_asDesigneds_size_on_a_desktop) {
    PretendDesktop();
    EXPECT_TRUE(Init(OrdinaryFlags));
    ExpectSame(Rectangle(), asDesigned_);
}

TEST_F(DialogSetUp, a_dialog_that_only_lowers_the_input_panel_keeps_its_size_everywhere) {
    PretendPocketPc();
    EXPECT_TRUE(Init(ce::DialogLowerInputPanel));
    ExpectSame(Rectangle(), asDesigned_);
}

TEST_F(DialogSetUp, flags_that_are_not_marked_valid_and_no_dialog_are_refused) {
    PretendPocketPc();
    EXPECT_FALSE(Init(OrdinaryFlags, 0));
    ExpectSame(Rectangle(), asDesigned_);
    const ce::DialogInitInfo nobody{1, nullptr, OrdinaryFlags};
    EXPECT_FALSE(ce::SHInitDialog(&nobody));
    EXPECT_FALSE(ce::SHInitDialog(nullptr));
}

TEST_F(DialogSetUp, the_bar_of_a_full_screen_dialog_lies_at_its_bottom) {
    PretendPocketPc();
    ASSERT_TRUE(Init(OrdinaryFlags));
    const HWND bar = MakeBar();
    ASSERT_NE(bar, nullptr);
    ExpectSame(Rectangle(), RECT{0, 0, 240, 320});
    ExpectBarAtBottom(bar);
}

TEST_F(DialogSetUp, the_bar_of_a_smaller_dialog_gets_26_more_pixels_at_the_bottom) {
    PretendHandheldPc();
    ASSERT_TRUE(Init(OrdinaryFlags));
    const HWND bar = MakeBar();
    ASSERT_NE(bar, nullptr);
    ExpectSame(Rectangle(),
               RECT{asDesigned_.left, asDesigned_.top, asDesigned_.right, asDesigned_.bottom + 26});
    ExpectBarAtBottom(bar);
}

TEST_F(DialogSetUp, a_bar_that_cannot_be_made_leaves_the_dialog_as_it_is) {
    PretendHandheldPc();
    ce::MenuBarInfo info{};
    info.cbSize = sizeof(info);
    info.hwndParent = dialog_;
    info.nToolBarId = BAR_MISSING;
    info.hInstRes = GetModuleHandleW(nullptr);
    EXPECT_FALSE(ce::SHCreateMenuBar(&info));
    ExpectSame(Rectangle(), asDesigned_);
}

TEST_F(DialogSetUp, tab_goes_round_the_controls_and_never_into_the_bar) {
    const HWND bar = MakeBar();
    ASSERT_NE(bar, nullptr);
    const HWND first = GetDlgItem(dialog_, EDIT_FIRST);
    const HWND second = GetDlgItem(dialog_, EDIT_SECOND);
    EXPECT_EQ(GetNextDlgTabItem(dialog_, first, FALSE), second);
    EXPECT_EQ(GetNextDlgTabItem(dialog_, second, FALSE), first);
    EXPECT_EQ(GetNextDlgGroupItem(dialog_, second, FALSE), first) << "arrow keys";
}

TEST_F(DialogSetUp, the_bar_s_buttons_end_at_the_dialog_as_commands_without_a_control) {
    const HWND bar = MakeBar();
    TBBUTTON buttons[2]{};
    for (int index = 0; index < 2; ++index) {
        buttons[index].iBitmap = index;
        buttons[index].idCommand = index == 0 ? IDCANCEL : IDOK;
        buttons[index].fsState = TBSTATE_ENABLED;
    }
    ASSERT_TRUE(SendMessageW(bar, TB_ADDBUTTONSW, 2, reinterpret_cast<LPARAM>(buttons)));
    EXPECT_EQ(GetDlgItem(dialog_, IDCANCEL), nullptr);
    Click(bar, IDCANCEL);
    Click(bar, IDOK);
    ASSERT_TRUE(PumpUntil([&] { return commands_.size() == 2; }));
    EXPECT_EQ(commands_, (std::vector<TestParent::Command>{{IDCANCEL, 0}, {IDOK, 0}}));
}

}  // namespace
