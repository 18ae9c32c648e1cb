#include "platform/ce_shell.h"

#include "platform/ce_system.h"
#include "platform/ce_windows.h"
#include "platform/desktop/menu_bar.h"
#include "platform/desktop/shell_files.h"
#include "platform/desktop/window_placement.h"

#include <prsht.h>

#include <algorithm>

namespace ce {

namespace {

constexpr DWORD FlagsAreValid = 1;

bool FindLayout(HINSTANCE instance, UINT id, MenuBarLayout& layout) {
    HRSRC place = FindResourceW(instance, MAKEINTRESOURCEW(id), RT_RCDATA);
    if (place == nullptr) return false;
    HGLOBAL block = LoadResource(instance, place);
    if (block == nullptr) return false;
    return ReadMenuBarLayout(LockResource(block), SizeofResource(instance, place), layout);
}

bool IsTopLevelDialog(HWND window) {
    wchar_t name[8];
    const bool child = (GetWindowLongW(window, GWL_STYLE) & WS_CHILD) != 0;
    return !child && ce::GetClassNameW(window, name, 8) > 0 && lstrcmpW(name, L"Dialog") == 0;
}

// A dialog of its template's size has no room for a bar; one that fills the screen has nowhere to grow.
void MakeRoomForBar(HWND dialog) {
    RECT now{};
    GetWindowRect(dialog, &now);
    const RECT screen = ScreenArea();
    if (EqualRect(&now, &screen)) return;
    ::SetWindowPos(dialog, nullptr, 0, 0, now.right - now.left, now.bottom - now.top + MenuBarHeight,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

constexpr LONG NarrowMargin = 3;

constexpr int ApplyButton = 0x3021;
constexpr int Buttons[] = {IDOK, IDCANCEL, ApplyButton, IDHELP};

SIZE SizeOfWindow(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return SizeOf(place);
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
// width than the sheet's margins leave them.
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

BOOL SHCreateMenuBar(MenuBarInfo* info) {
    if (info == nullptr || info->cbSize != sizeof(MenuBarInfo)) return FALSE;
    info->hwndMB = nullptr;
    MenuBarLayout layout;
    if (!IsWindow(info->hwndParent) || !FindLayout(info->hInstRes, info->nToolBarId, layout)) return FALSE;
    const INITCOMMONCONTROLSEX bars{sizeof(INITCOMMONCONTROLSEX), ICC_BAR_CLASSES};
    InitCommonControlsEx(&bars);
    info->hwndMB = MenuBar::Create(*info, layout);
    if (info->hwndMB == nullptr) return FALSE;
    if (IsTopLevelDialog(info->hwndParent)) {
        MakeRoomForBar(info->hwndParent);
        SendMessageW(info->hwndMB, WM_SIZE, 0, 0);
    }
    return TRUE;
}

BOOL SHInitDialog(const DialogInitInfo* info) {
    if (info == nullptr || !IsWindow(info->hDlg) || (info->dwMask & FlagsAreValid) == 0) return FALSE;
    if ((info->dwFlags & DialogSizeFullScreen) == 0) return TRUE;
    if (!IsPocketScreen(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN))) return TRUE;
    const RECT area = ScreenArea();
    ::SetWindowPos(info->hDlg, nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

void FitSheetToScreen(HWND sheet) {
    const SIZE before = SizeOfWindow(sheet);
    // Fills a Pocket PC's screen and leaves the sheet alone elsewhere.
    const DialogInitInfo fullScreen{FlagsAreValid, sheet, DialogSizeFullScreen};
    SHInitDialog(&fullScreen);
    const SIZE now = SizeOfWindow(sheet);
    const RECT screen = ScreenArea();
    const SIZE fitting = {std::min(now.cx, screen.right - screen.left),
                          std::min(now.cy, screen.bottom - screen.top)};
    const SIZE excess = {before.cx - fitting.cx, before.cy - fitting.cy};
    if (excess.cx == 0 && excess.cy == 0) return;
    SetWindowPos(sheet, nullptr, 0, 0, fitting.cx, fitting.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    FitTabs(sheet, excess);
    for (const int id : Buttons)
        MoveButton(GetDlgItem(sheet, id), excess);
}

ShellCalls shellCalls = {
    GetShellFileInfo,
};

}  // namespace ce
