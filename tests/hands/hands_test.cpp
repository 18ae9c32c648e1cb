#include "tests/hands/hands_test.h"

#include <commctrl.h>

namespace {

HWND ToolBarOf(HWND window) {
    const HWND bar = FindWindowExW(window, nullptr, L"QuorinMenuBar", nullptr);
    return FindWindowExW(bar, nullptr, TOOLBARCLASSNAMEW, nullptr);
}

void WaitForMenu() {
    WaitUntil("the menu to open", [] { return FindWindowW(L"#32768", nullptr) != nullptr; });
}

}  // namespace

void HandsTest::OpenMenuByPointer(MenuIndex menu) {
    constexpr int Buttons[] = {FileButton, ViewButton, OptionButton};
    ClickAt(PlaceOfBarButton(Buttons[menu]));
    WaitForMenu();
}

// A menu that the keyboard opened has its first item marked.
void HandsTest::OpenMenuByKeys(MenuIndex menu) {
    constexpr UINT FirstItems[] = {COMMAND_OPEN, COMMAND_LARGE_ICON, COMMAND_CHECK_CASE};
    PressKey(VK_F10);
    WaitForMenu();
    for (int step = 0; step <= menu; ++step) {
        if (step > 0) PressKey(VK_RIGHT);
        WaitUntil("the menu's first item to be marked", [&] {
            const MenuItemState first = Program().MenuItem(FirstItems[step]);
            return !IsRectEmpty(&first.rectangle) && (first.state & MFS_HILITE) != 0;
        });
    }
}

void HandsTest::ClickMenuItem(UINT command) {
    RECT place = {};
    WaitUntil("the menu's item", [&] {
        const RECT rectangle = Program().MenuItem(command).rectangle;
        place = rectangle;
        return !IsRectEmpty(&rectangle);
    });
    ClickAt(CentreOf(place));
    WaitUntil("the menu to close", [] { return !IsMenuOpen(); });
}

void HandsTest::TakeMenuItemByKeys(UINT command) {
    MarkMenuItemByKeys(command);
    PressKey(VK_RETURN);
    WaitUntil("the menu to close", [] { return !IsMenuOpen(); });
}

// The keys go over separators, and over no grey item. The mark in an item's state is no help, for it stays
// there from the last time.
void HandsTest::MarkMenuItemByKeys(UINT command) {
    int steps = 0;
    for (const MenuItemState& item : Program().Menu()) {
        if (item.depth == 0) steps = 0;
        if (item.depth == 0 || item.Separator()) continue;
        if (item.id == command) break;
        ++steps;
    }
    for (int step = 0; step < steps; ++step)
        PressKey(VK_DOWN);
}

void HandsTest::CloseMenus() {
    WaitUntil("the menus to close", [] {
        if (!IsMenuOpen()) return true;
        PressKey(VK_ESCAPE);
        Sleep(50);
        return !IsMenuOpen();
    });
}

POINT HandsTest::PlaceOfBarButton(int command) {
    for (const ButtonState& button : Program().Bar()) {
        if (button.command == command) return CentreOf(button.rectangle);
    }
    throw DriverError("the bar has no such button");
}

void HandsTest::ClickBarButton(int command) {
    ClickAt(PlaceOfBarButton(command));
}

// The buttons stand in the order Cancel, OK, from the left. A tool bar of another process gives no
// rectangles, but its size of buttons.
POINT HandsTest::PlaceOfDialogButton(HWND dialog, int command) {
    const HWND toolBar = ToolBarOf(dialog);
    if (toolBar == nullptr) throw DriverError("the dialog has no bar");
    const LRESULT size = SendMessageW(toolBar, TB_GETBUTTONSIZE, 0, 0);
    const LRESULT index = SendMessageW(toolBar, TB_COMMANDTOINDEX, static_cast<WPARAM>(command), 0);
    if (index < 0) throw DriverError("the dialog's bar has no such button");
    const LONG width = LOWORD(size);
    POINT place = {static_cast<LONG>(index) * width + width / 2, HIWORD(size) / 2};
    ClientToScreen(toolBar, &place);
    return place;
}

POINT HandsTest::MiddleOf(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return CentreOf(place);
}

void HandsTest::OpenForRow(UINT command) {
    OpenMenuByPointer(FileMenu);
    ClickMenuItem(command);
}

ProgramDialog HandsTest::DialogInFront() {
    const ProgramDialog dialog = Dialog();
    WaitUntil("the dialog in front", [&] { return GetForegroundWindow() == dialog.Window(); });
    return dialog;
}

HWND HandsTest::FocusWindow() {
    GUITHREADINFO foreground = {};
    foreground.cbSize = sizeof(foreground);
    return GetGUIThreadInfo(0, &foreground) ? foreground.hwndFocus : nullptr;
}
