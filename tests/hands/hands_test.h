#pragma once

// The fixture of the tests that use the program as a person does. Conditions and rows may be prepared by
// messages; what a test is about is done with pointer and keys.

#include <initializer_list>
#include <string>

#include "resources/resource_ids.h"
#include "tests/program/results_test.h"
#include "tests/support/user_input.h"

class HandsTest : public ResultsTest {
  protected:
    // The drop-downs of the menu bar, in its order.
    enum MenuIndex { FileMenu, ViewMenu, OptionMenu };
    // The commands of the buttons that open them.
    static constexpr int FileButton = 100, ViewButton = 200, OptionButton = 300;

    // A click on the bar's button; returns when the drop-down is open.
    void OpenMenuByPointer(MenuIndex menu);
    // Alt with the menu's letter, or F10 and the arrows where it has none.
    void OpenMenuByKeys(MenuIndex menu);
    // The item of the open menu: a click on it.
    void ClickMenuItem(UINT command);
    // Down to the item.
    void MarkMenuItemByKeys(UINT command);
    // The same, and Enter.
    void TakeMenuItemByKeys(UINT command);
    [[nodiscard]] static bool IsMenuOpen() { return FindWindowW(L"#32768", nullptr) != nullptr; }
    // Esc until no menu is open.
    static void CloseMenus();

    // A click on the bar's button with this command.
    void ClickBarButton(int command);
    [[nodiscard]] POINT PlaceOfBarButton(int command);
    // The button of a dialog's own bar (IDOK, IDCANCEL), in the middle.
    [[nodiscard]] static POINT PlaceOfDialogButton(HWND dialog, int command);
    // The middle of a control on the screen.
    [[nodiscard]] POINT PlaceOf(int page, int id) { return CentreOf(Program().Control(page, id).rectangle); }
    using ResultsTest::PlaceOf;

    [[nodiscard]] static POINT MiddleOf(HWND window);

    // The menu File by the pointer, and its item for the selected row.
    void OpenForRow(UINT command);
    // The dialog that was just opened, once it is in front.
    [[nodiscard]] ProgramDialog DialogInFront();

    // The window that takes the keyboard, of whatever program; null for none.
    [[nodiscard]] static HWND FocusWindow();
};
