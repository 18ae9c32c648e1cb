#include <gtest/gtest.h>
#include <windows.h>

#include "tests/resources/page_window.h"

namespace {

// The main window and the dialog have a menu bar each.
constexpr LONG BarHeight = 26;
constexpr LONG LowestScreen = 240;

class AbortDialogLayout : public testing::TestWithParam<const wchar_t*> {};

TEST_P(AbortDialogLayout, the_dialog_with_a_menu_bar_fits_the_screen_and_shows_its_button) {
    const HWND dialog = MakeDialog(GetParam(), nullptr);
    ASSERT_NE(dialog, nullptr);
    RECT window = {}, area = {}, button = {};
    GetWindowRect(dialog, &window);
    GetClientRect(dialog, &area);
    EXPECT_LE(window.right - window.left, PocketScreen);
    EXPECT_LE(window.bottom - window.top + BarHeight, LowestScreen - BarHeight);
    GetWindowRect(GetDlgItem(dialog, 2), &button);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&button), 2);
    EXPECT_LE(button.right, area.right);
    EXPECT_LE(button.bottom, area.bottom);
    RECT folder = {};
    GetWindowRect(GetDlgItem(dialog, 11901), &folder);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&folder), 2);
    EXPECT_LE(folder.right, area.right);
    EXPECT_LE(folder.bottom, button.top);
    DestroyWindow(dialog);
}

INSTANTIATE_TEST_SUITE_P(Languages, AbortDialogLayout, testing::Values(L"ABORTDIALOG_E", L"ABORTDIALOG_J"));

}  // namespace
