#include "framework/sheet_fit.h"

#include <algorithm>

#include <prsht.h>

#include "platform/ce_shell.h"
#include "platform/ce_windows.h"

namespace {

constexpr DWORD FlagsAreValid = 1;

constexpr LONG NarrowMargin = 3;

constexpr int ApplyButton = 0x3021;
constexpr int Buttons[] = {IDOK, IDCANCEL, ApplyButton, IDHELP};

SIZE SizeOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return {place.right - place.left, place.bottom - place.top};
}

void MoveButton(HWND button, SIZE excess) {
    if (button == nullptr) return;
    RECT place{};
    GetWindowRect(button, &place);
    MapWindowPoints(nullptr, GetParent(button), reinterpret_cast<POINT*>(&place), 2);
    SetWindowPos(button, nullptr, place.left - excess.cx, place.top - excess.cy, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

RECT PlaceIn(HWND sheet, HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, sheet, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

// The tab control loses the excess. On a screen that is narrower than the sheet, its pages need more of the
// width than the margins of a desktop's sheet leave them.
void FitTabs(HWND sheet, SIZE excess) {
    const HWND tabs = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0));
    RECT place = PlaceIn(sheet, tabs);
    place.right -= excess.cx;
    place.bottom -= excess.cy;
    if (excess.cx > 0) {
        RECT client{};
        GetClientRect(sheet, &client);
        place.left = NarrowMargin;
        place.right = client.right - NarrowMargin;
    }
    SetWindowPos(tabs, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

void FitSheetToScreen(HWND sheet) {
    const SIZE before = SizeOf(sheet);
    // Fills a Pocket PC's screen and leaves the sheet alone elsewhere.
    const ce::DialogInitInfo fullScreen{FlagsAreValid, sheet, ce::DialogSizeFullScreen};
    ce::SHInitDialog(&fullScreen);
    const SIZE now = SizeOf(sheet);
    const RECT screen = ce::ScreenArea();
    const SIZE fitting = {std::min(now.cx, screen.right - screen.left),
                          std::min(now.cy, screen.bottom - screen.top)};
    const SIZE excess = {before.cx - fitting.cx, before.cy - fitting.cy};
    if (excess.cx == 0 && excess.cy == 0) return;
    SetWindowPos(sheet, nullptr, 0, 0, fitting.cx, fitting.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    FitTabs(sheet, excess);
    for (const int id : Buttons)
        MoveButton(GetDlgItem(sheet, id), excess);
}
