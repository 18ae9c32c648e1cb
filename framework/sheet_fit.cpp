#include "framework/sheet_fit.h"

#include <algorithm>

#include <prsht.h>

#include "platform/screen_area.h"

namespace {

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

}  // namespace

void CutSheetToScreen(HWND sheet) {
    const RECT screen = ce::ScreenArea();
    const SIZE size = SizeOf(sheet);
    const SIZE excess = {std::max(size.cx - (screen.right - screen.left), LONG{0}),
                         std::max(size.cy - (screen.bottom - screen.top), LONG{0})};
    if (excess.cx == 0 && excess.cy == 0) return;
    const HWND tabs = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0));
    const SIZE tabsSize = SizeOf(tabs);
    SetWindowPos(tabs, nullptr, 0, 0, tabsSize.cx - excess.cx, tabsSize.cy - excess.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    for (const int id : Buttons)
        MoveButton(GetDlgItem(sheet, id), excess);
    SetWindowPos(sheet, nullptr, 0, 0, size.cx - excess.cx, size.cy - excess.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
