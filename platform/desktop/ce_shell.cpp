#include "platform/ce_shell.h"

#include "platform/ce_system.h"
#include "platform/ce_windows.h"
#include "platform/desktop/menu_bar.h"
#include "platform/desktop/shell_files.h"
#include "platform/desktop/window_placement.h"

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

ShellCalls shellCalls = {
    GetShellFileInfo,
};

}  // namespace ce
