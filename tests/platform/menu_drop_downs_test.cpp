#include <gtest/gtest.h>

#include "tests/platform/bar_ids.h"
#include "tests/platform/test_parent.h"

namespace {

constexpr LPARAM AltDown = 1L << 29;

class MenuDropDowns : public testing::Test {
  protected:
    void SetUp() override {
        bar_ = parent_.MakeBar(BAR_ENGLISH);
        ASSERT_NE(bar_, nullptr);
        PumpAll();
    }

    [[nodiscard]] HMENU SubMenu(int command) const {
        return reinterpret_cast<HMENU>(SendMessageW(bar_, ce::MenuBarGetSubMenu, 0, command));
    }
    // Pumps until a menu was open and has been closed again by what the steps did.
    [[nodiscard]] bool WaitForMenu(const MenuDriver& driver) const {
        return PumpUntil([&] { return driver.AllTaken() && !MenuIsOpen(); }) && !driver.HadToClose();
    }
    void Key(WPARAM key) const { PressKey(parent_.Handle(), key); }

    using Menus = std::vector<HMENU>;
    using Commands = std::vector<TestParent::Command>;

    TestParent parent_{240, 200};
    HWND bar_ = nullptr;
};

// With the pointer at rest away from the bar: moves of an earlier test may still be on their way.
class MenuDropDownsByPointer : public MenuDropDowns {
  protected:
    void SetUp() override {
        MenuDropDowns::SetUp();
        RestPointerAt(POINT{120, 20});
    }

    // Moves the pointer until it stays there.
    static void RestPointerAt(POINT place) {
        int stayed = 0;
        ASSERT_TRUE(PumpUntil([&] {
            POINT now{};
            GetCursorPos(&now);
            stayed = now.x == place.x && now.y == place.y ? stayed + 1 : 0;
            if (stayed == 0) SetCursorPos(place.x, place.y);
            return stayed == 20;
        }));
    }

    [[nodiscard]] POINT OnScreen(int command) const {
        const LPARAM middle = MiddleOf(bar_, command);
        POINT point{static_cast<short>(LOWORD(middle)), static_cast<short>(HIWORD(middle))};
        ClientToScreen(ToolBarOf(bar_), &point);
        return point;
    }
    void MovePointerTo(int command) const {
        const POINT point = OnScreen(command);
        SetCursorPos(point.x, point.y);
        mouse_event(MOUSEEVENTF_MOVE, 1, 0, 0, 0);
    }
    static void PressMouse() {
        mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
        mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    }
};

TEST_F(MenuDropDowns, a_click_opens_the_menu_and_the_picked_item_reaches_the_parent_as_a_menu_command) {
    MenuDriver driver({[&] { Key(VK_DOWN); }, [&] { Key(VK_DOWN); }, [&] { Key(VK_RETURN); }});
    Click(bar_, BUTTON_FILE);
    ASSERT_TRUE(WaitForMenu(driver));
    EXPECT_FALSE(driver.HadToClose());
    EXPECT_EQ(parent_.menusOpened, Menus{SubMenu(BUTTON_FILE)});
    ASSERT_TRUE(PumpUntil([&] { return !parent_.commands.empty(); }));
    EXPECT_EQ(parent_.commands, (Commands{{ITEM_DELETE, 0}}));
}

TEST_F(MenuDropDowns, the_menu_lies_above_the_bar_at_its_button) {
    RECT menu{};
    bool pressed = false;
    MenuDriver driver({[&] {
        GetWindowRect(FindWindowW(L"#32768", nullptr), &menu);
        pressed = SendMessageW(bar_, TB_ISBUTTONPRESSED, BUTTON_VIEW, 0) != 0;
        Key(VK_ESCAPE);
    }});
    RECT barRectangle{};
    GetWindowRect(bar_, &barRectangle);
    Click(bar_, BUTTON_VIEW);
    ASSERT_TRUE(WaitForMenu(driver));
    RECT button = ButtonRectangle(bar_, BUTTON_VIEW);
    MapWindowPoints(ToolBarOf(bar_), HWND_DESKTOP, reinterpret_cast<POINT*>(&button), 2);
    EXPECT_LT(menu.top, menu.bottom);
    EXPECT_LE(menu.bottom, button.top);
    EXPECT_GE(menu.bottom, barRectangle.top - 1);
    EXPECT_EQ(menu.left, button.left);
    EXPECT_TRUE(pressed) << "the button is down while its menu is open";
    EXPECT_EQ(SendMessageW(bar_, TB_ISBUTTONPRESSED, BUTTON_VIEW, 0), 0);
}

TEST_F(MenuDropDowns, escape_closes_the_menu_without_a_command) {
    MenuDriver driver({[&] { Key(VK_ESCAPE); }});
    Click(bar_, BUTTON_FILE);
    ASSERT_TRUE(WaitForMenu(driver));
    PumpAll();
    EXPECT_FALSE(driver.HadToClose());
    EXPECT_TRUE(parent_.commands.empty());
}

TEST_F(MenuDropDowns, a_greyed_item_sends_no_command) {
    EnableMenuItem(SubMenu(BUTTON_OPTION), ITEM_CASE, MF_BYCOMMAND | MF_GRAYED);
    MenuDriver driver({[&] { Key(VK_DOWN); }, [&] { Key(VK_RETURN); }, [&] { Key(VK_ESCAPE); }});
    Click(bar_, BUTTON_OPTION);
    PumpUntil([&] { return !parent_.menusOpened.empty() && !MenuIsOpen(); });
    PumpAll();
    EXPECT_EQ(parent_.menusOpened, Menus{SubMenu(BUTTON_OPTION)});
    EXPECT_TRUE(parent_.commands.empty());
}

TEST_F(MenuDropDowns, alt_with_the_marked_letter_opens_the_menu_wherever_the_focus_is) {
    const HWND edit = ::CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20,
                                        parent_.Handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
    SetFocus(edit);
    PumpAll();
    parent_.commands.clear();  // the edit tells of its focus
    MenuDriver driver({[&] { Key(VK_RETURN); }});
    PostMessageW(edit, WM_SYSCHAR, L'v', AltDown);
    ASSERT_TRUE(WaitForMenu(driver));
    EXPECT_EQ(parent_.menusOpened, Menus{SubMenu(BUTTON_VIEW)});
    ASSERT_TRUE(PumpUntil([&] { return !parent_.commands.empty(); }))
        << "the keyboard starts at the first item";
    EXPECT_EQ(parent_.commands, (Commands{{ITEM_LARGE, 0}}));
}

TEST_F(MenuDropDowns, alt_with_the_first_letter_opens_a_menu_that_marks_none) {
    MenuDriver driver({[&] { Key(VK_ESCAPE); }});
    PostMessageW(parent_.Handle(), WM_SYSCHAR, L'O', AltDown);
    ASSERT_TRUE(WaitForMenu(driver));
    EXPECT_EQ(parent_.menusOpened, Menus{SubMenu(BUTTON_OPTION)});
}

TEST_F(MenuDropDowns, alt_with_another_letter_is_left_to_the_system) {
    PostMessageW(parent_.Handle(), WM_SYSCHAR, L'x', AltDown);
    ASSERT_TRUE(PumpUntil([&] { return !parent_.systemCommands.empty(); }));
    EXPECT_EQ(parent_.systemCommands, std::vector<UINT>{SC_KEYMENU});
    EXPECT_TRUE(parent_.menusOpened.empty());
}

TEST_F(MenuDropDowns, f10_opens_the_first_menu_from_a_child_too) {
    const HWND edit = ::CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20,
                                        parent_.Handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
    SetFocus(edit);
    MenuDriver driver({[&] { Key(VK_ESCAPE); }});
    keybd_event(VK_F10, 0, 0, 0);
    keybd_event(VK_F10, 0, KEYEVENTF_KEYUP, 0);
    ASSERT_TRUE(WaitForMenu(driver));
    EXPECT_EQ(parent_.menusOpened, Menus{SubMenu(BUTTON_FILE)});
}

TEST_F(MenuDropDowns, alt_alone_opens_the_first_menu) {
    MenuDriver driver({[&] { Key(VK_ESCAPE); }});
    keybd_event(VK_MENU, 0, 0, 0);
    keybd_event(VK_MENU, 0, KEYEVENTF_KEYUP, 0);
    ASSERT_TRUE(WaitForMenu(driver));
    EXPECT_EQ(parent_.menusOpened, Menus{SubMenu(BUTTON_FILE)});
}

TEST_F(MenuDropDowns, right_goes_from_menu_to_menu_and_from_the_last_to_the_first) {
    MenuDriver driver(
        {[&] { Key(VK_RIGHT); }, [&] { Key(VK_RIGHT); }, [&] { Key(VK_RIGHT); }, [&] { Key(VK_ESCAPE); }});
    Click(bar_, BUTTON_FILE);
    ASSERT_TRUE(WaitForMenu(driver));
    EXPECT_EQ(parent_.menusOpened, (Menus{SubMenu(BUTTON_FILE), SubMenu(BUTTON_VIEW), SubMenu(BUTTON_OPTION),
                                          SubMenu(BUTTON_FILE)}));
}

TEST_F(MenuDropDowns, left_goes_from_the_first_menu_to_the_last_and_marks_its_first_item) {
    MenuDriver driver({[&] { Key(VK_LEFT); }, [&] { Key(VK_RETURN); }});
    Click(bar_, BUTTON_FILE);
    ASSERT_TRUE(WaitForMenu(driver));
    EXPECT_EQ(parent_.menusOpened, (Menus{SubMenu(BUTTON_FILE), SubMenu(BUTTON_OPTION)}));
    ASSERT_TRUE(PumpUntil([&] { return !parent_.commands.empty(); }));
    EXPECT_EQ(parent_.commands, (Commands{{ITEM_CASE, 0}}));
}

TEST_F(MenuDropDownsByPointer, the_pointer_over_another_button_opens_its_menu) {
    MenuDriver driver({[&] { MovePointerTo(BUTTON_OPTION); },
                       {[&] { Key(VK_ESCAPE); }, [&] { return parent_.menusOpened.size() == 2; }}});
    Click(bar_, BUTTON_FILE);
    ASSERT_TRUE(WaitForMenu(driver));
    EXPECT_EQ(parent_.menusOpened, (Menus{SubMenu(BUTTON_FILE), SubMenu(BUTTON_OPTION)}));
}

TEST_F(MenuDropDownsByPointer, a_second_click_on_the_button_closes_its_menu) {
    MenuDriver driver({[&] { MovePointerTo(BUTTON_FILE); }, [] {}, [] { PressMouse(); }});
    Click(bar_, BUTTON_FILE);
    ASSERT_TRUE(WaitForMenu(driver));
    PumpForAWhile();
    EXPECT_FALSE(driver.HadToClose());
    EXPECT_EQ(parent_.menusOpened, Menus{SubMenu(BUTTON_FILE)}) << "and does not open it again";
}

TEST_F(MenuDropDownsByPointer,
       a_click_of_the_mouse_opens_the_menu_and_it_stays_open_when_the_button_is_let_go) {
    bool openStill = false;
    MenuDriver driver({[] {}, [] {},
                       [&] {
                           openStill = MenuIsOpen();
                           Key(VK_ESCAPE);
                       }});
    RestPointerAt(OnScreen(BUTTON_FILE));
    PressMouse();
    ASSERT_TRUE(WaitForMenu(driver));
    EXPECT_TRUE(openStill);
    EXPECT_EQ(parent_.menusOpened, Menus{SubMenu(BUTTON_FILE)});
}

TEST_F(MenuDropDownsByPointer, nothing_opens_while_the_parent_is_disabled) {
    EnableWindow(parent_.Handle(), FALSE);
    MenuDriver driver({});
    SendMessageW(parent_.Handle(), WM_SYSCOMMAND, SC_KEYMENU, 0);
    PostMessageW(parent_.Handle(), WM_SYSCHAR, L'v', AltDown);
    RestPointerAt(OnScreen(BUTTON_FILE));
    PressMouse();
    PumpForAWhile();
    EXPECT_TRUE(parent_.menusOpened.empty());
    EnableWindow(parent_.Handle(), TRUE);
}

TEST_F(MenuDropDowns, a_drop_down_that_was_asked_for_before_the_parent_was_disabled_stays_closed) {
    MenuDriver driver({});
    Click(bar_, BUTTON_FILE);
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, ToolBarOf(bar_), WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_REMOVE));
    DispatchMessageW(&message);
    EnableWindow(parent_.Handle(), FALSE);
    PumpForAWhile();
    EXPECT_TRUE(parent_.menusOpened.empty());
    EnableWindow(parent_.Handle(), TRUE);
}

TEST_F(MenuDropDowns, a_bar_destroyed_under_its_open_menu_closes_it_and_is_not_touched_again) {
    MenuDriver driver({[&] { DestroyWindow(bar_); }});
    Click(bar_, BUTTON_FILE);
    ASSERT_TRUE(WaitForMenu(driver));
    EXPECT_FALSE(IsWindow(bar_));
    EXPECT_TRUE(IsWindow(parent_.Handle()));
    // The next bar works as the first one did.
    bar_ = parent_.MakeBar(BAR_ENGLISH);
    parent_.menusOpened.clear();
    MenuDriver again({[&] { Key(VK_ESCAPE); }});
    Click(bar_, BUTTON_VIEW);
    ASSERT_TRUE(WaitForMenu(again));
    EXPECT_EQ(parent_.menusOpened, Menus{SubMenu(BUTTON_VIEW)});
}

TEST_F(MenuDropDowns, the_marked_letter_of_a_japanese_menu_opens_it) {
    DestroyWindow(bar_);
    bar_ = parent_.MakeBar(BAR_JAPANESE);
    MenuDriver driver({[&] { Key(VK_ESCAPE); }});
    PostMessageW(parent_.Handle(), WM_SYSCHAR, L'o', AltDown);
    ASSERT_TRUE(WaitForMenu(driver));
    EXPECT_EQ(parent_.menusOpened, Menus{SubMenu(BUTTON_OPTION)});
}

}  // namespace
