// What fills a handheld's screen stays where it is, whatever is tried with its title line and its system
// menu.

#include <algorithm>

#include "tests/hands/hands_test.h"

class TitleLine : public HandsTest {
  protected:
    // A desktop's windows are there to be moved.
    [[nodiscard]] static bool IsDesktop() {
        const int width = GetSystemMetrics(SM_CXSCREEN);
        const int height = GetSystemMetrics(SM_CYSCREEN);
        return std::max(width, height) > 800 || std::min(width, height) > 480;
    }
    [[nodiscard]] static RECT PlaceOfWindow(HWND window) {
        RECT place = {};
        GetWindowRect(window, &place);
        return place;
    }
    [[nodiscard]] static bool FillsScreen(HWND window) {
        RECT area = {};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
        const RECT place = PlaceOfWindow(window);
        return EqualRect(&place, &area);
    }
    [[nodiscard]] static POINT TitleOf(HWND window) {
        const RECT place = PlaceOfWindow(window);
        return {place.left + 80, place.top + 12};
    }
    static void DragTitle(HWND window) {
        const POINT title = TitleOf(window);
        DragPointer(title, {title.x + 60, title.y + 70});
        Program().WaitForQueue();
    }
};

TEST_F(TitleLine, of_the_main_window_cannot_be_dragged) {
    if (IsDesktop()) GTEST_SKIP() << "not a handheld's screen";
    ASSERT_TRUE(FillsScreen(Program().Window()));
    DragTitle(Program().Window());
    EXPECT_TRUE(FillsScreen(Program().Window()));
    // Nothing holds the pointer: the next click arrives.
    ClickAt(PlaceOf(NamePage, CHECK_SUBFOLDERS));
    EXPECT_TRUE(HoldsWithin(
        StepDeadline, [] { return Program().Control(NamePage, CHECK_SUBFOLDERS).checked == BST_CHECKED; }));
}

TEST_F(TitleLine, of_the_main_window_takes_a_double_click_without_effect) {
    if (IsDesktop()) GTEST_SKIP() << "not a handheld's screen";
    DoubleClickAt(TitleOf(Program().Window()));
    Program().WaitForQueue();
    EXPECT_TRUE(FillsScreen(Program().Window()));
}

TEST_F(TitleLine, of_the_main_window_is_not_moved_or_sized_from_the_system_menu) {
    if (IsDesktop()) GTEST_SKIP() << "not a handheld's screen";
    for (const WORD letter : {WORD{'M'}, WORD{'S'}}) {
        Program().FocusTab();
        PressKey(VK_SPACE, {VK_MENU});
        WaitUntil("the system menu", [] { return IsMenuOpen(); });
        PressKey(letter);
        Sleep(200);
        for (int step = 0; step < 3; ++step)
            PressKey(VK_DOWN);
        PressKey(VK_RETURN);
        Program().WaitForQueue();
        EXPECT_TRUE(FillsScreen(Program().Window())) << static_cast<char>(letter);
        CloseMenus();
    }
}

TEST_F(TitleLine, of_a_dialog_moves_it_unless_it_fills_the_screen) {
    PressKey(VK_F1);
    const ProgramDialog about = Dialog();
    const bool filled = FillsScreen(about.Window());
    // Upright and square screens of a handheld; a lower one shows what is around the dialog.
    const int width = GetSystemMetrics(SM_CXSCREEN);
    EXPECT_EQ(filled, width <= 320 && width <= GetSystemMetrics(SM_CYSCREEN));
    const RECT before = about.Place();
    DragTitle(about.Window());
    const RECT after = about.Place();
    EXPECT_EQ(EqualRect(&before, &after) != FALSE, filled);
    PressKey(VK_ESCAPE);
}
