#include "platform/ce_shell.h"

#include "platform/ce_system.h"
#include "platform/ce_windows.h"
#include "platform/menu_bar.h"
#include "platform/screen_area.h"
#include "platform/window_placement.h"

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
    const bool child = (GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD) != 0;
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

bool IsShortcutFile(const wchar_t* path) {
    const int length = lstrlenW(path);
    if (length < 5 || lstrcmpiW(path + length - 4, L".lnk") != 0) return false;
    const DWORD attributes = GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

// To look for its icon the desktop's shell opens a shortcut, and not every shell survives one that is
// damaged: of such a file it is asked for the icon of its kind.
DWORD_PTR ShortcutInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    constexpr UINT IconFlags = SHGFI_ICON | SHGFI_SMALLICON;
    SHFILEINFOW icon{};
    ::SHGetFileInfoW(path, FILE_ATTRIBUTE_NORMAL, &icon, sizeof icon,
                     (flags & IconFlags) | SHGFI_USEFILEATTRIBUTES);
    const DWORD_PTR answer = ::SHGetFileInfoW(path, attributes, info, size, flags & ~IconFlags);
    info->hIcon = icon.hIcon;
    info->iIcon = icon.iIcon;
    return answer;
}

// The desktop's shell knows no path without a drive.
DWORD_PTR GetFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    wchar_t full[MAX_PATH];
    const DWORD length = GetFullPathNameW(path, MAX_PATH, full, nullptr);
    const wchar_t* asked = length > 0 && length < MAX_PATH ? full : path;
    const bool looksInside = (flags & SHGFI_ICON) != 0 && (flags & SHGFI_USEFILEATTRIBUTES) == 0;
    if (looksInside && IsShortcutFile(asked)) return ShortcutInfo(asked, attributes, info, size, flags);
    return ::SHGetFileInfoW(asked, attributes, info, size, flags);
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
    GetFileInfo,
};

}  // namespace ce
