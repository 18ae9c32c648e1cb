// The properties sheet under the pointer: a name that is cut is whole in a tooltip, one that is not has none.

#include <commctrl.h>

#include "tests/hands/hands_test.h"

namespace {

// A tooltip comes after half a second.
constexpr DWORD RestTime = 2000;

BOOL CALLBACK TakeVisibleTooltip(HWND window, LPARAM found) {
    wchar_t name[40] = L"";
    GetClassNameW(window, name, 40);
    if (!IsWindowVisible(window) || lstrcmpiW(name, TOOLTIPS_CLASSW) != 0) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

HWND VisibleTooltip() {
    HWND found = nullptr;
    EnumWindows(TakeVisibleTooltip, reinterpret_cast<LPARAM>(&found));
    return found;
}

}  // namespace

class SheetInHands : public HandsTest {
  protected:
    ProgramDialog OpenFor(const std::wstring& name) {
        AddFile(name);
        Find(L"*.qsa");
        SelectRow(name);
        ClickBarButton(COMMAND_PROPERTIES);
        return Dialog();
    }
};

TEST_F(SheetInHands, shows_a_cut_name_whole_while_the_pointer_rests_on_it) {
    const ProgramDialog sheet = OpenFor(std::wstring(160, L'W') + L".qsa");
    MovePointerTo(MiddleOf(sheet.Control(STATIC_DISPLAY_NAME)));
    WaitUntil("the tooltip", [] { return VisibleTooltip() != nullptr; });
    RECT place = {};
    GetWindowRect(VisibleTooltip(), &place);
    EXPECT_GE(place.left, 0);
    EXPECT_GE(place.top, 0);
    EXPECT_LE(place.right, World().screenWidth);
    EXPECT_LE(place.bottom, World().screenHeight);
    MovePointerTo(MiddleOf(sheet.Control(CHECK_SYSTEM)));
    WaitUntil("the tooltip to go", [] { return VisibleTooltip() == nullptr; });
    PressKey(VK_ESCAPE);
    WaitUntil("the sheet to close", [&] { return !IsWindowVisible(sheet.Window()); });
}

TEST_F(SheetInHands, shows_nothing_over_a_name_that_is_whole) {
    const ProgramDialog sheet = OpenFor(L"a.qsa");
    RestPointerAt(MiddleOf(sheet.Control(STATIC_DISPLAY_NAME)), RestTime);
    EXPECT_EQ(VisibleTooltip(), nullptr);
    PressKey(VK_ESCAPE);
    WaitUntil("the sheet to close", [&] { return !IsWindowVisible(sheet.Window()); });
}

TEST_F(SheetInHands, covers_the_screen_of_a_pocket_pc) {
    const ProgramDialog sheet = OpenFor(L"a.qsa");
    RECT place = {};
    GetWindowRect(sheet.Window(), &place);
    const RECT screen = {0, 0, World().screenWidth, World().screenHeight};
    EXPECT_EQ(EqualRect(&place, &screen) != FALSE, World().screenWidth == 240);
    PressKey(VK_ESCAPE);
    WaitUntil("the sheet to close", [&] { return !IsWindowVisible(sheet.Window()); });
}
