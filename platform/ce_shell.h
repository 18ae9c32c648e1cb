#pragma once

// The Pocket PC shell's menu bar and dialog set-up, and the shell's questions about files. On the desktop
// the menu bar is a window of our own with a tool bar in it, at the bottom of its parent.

#include "platform/system_types.h"

#include <commctrl.h>
#include <shellapi.h>

namespace ce {

// Height in pixels that a menu bar takes at the bottom of its parent's client area.
constexpr int MenuBarHeight = 26;

// Messages of the menu bar. Tool-bar messages (TB_ADDBUTTONSW, TB_ADDBITMAP, TB_SETSTATE, ...) sent to the
// bar reach the tool bar in it; the bar sends WM_COMMAND of its buttons and menus to its parent.
constexpr UINT MenuBarGetSubMenu = WM_USER + 401;  // wParam 0, lParam command of a drop-down: its HMENU
constexpr UINT MenuBarGetMenu = WM_USER + 402;     // the whole HMENU
constexpr UINT ToolBarSetToolTips = WM_USER + 81;  // wParam count, lParam array of texts that stay alive

struct MenuBarInfo {
    DWORD cbSize;
    HWND hwndParent;
    DWORD dwFlags;
    UINT nToolBarId;  // an RCDATA resource: menu id, button count, the buttons
    HINSTANCE hInstRes;
    int nBmpId;  // bitmap of 16 x 16 images for the buttons, 0 for none; at most 256 colours, light
                 // grey (192, 192, 192) is see-through
    int cBmpImages;
    HWND hwndMB;  // the bar, on success
};

// Makes a menu bar on the parent. FALSE, with no window left behind, when the resource is missing or the
// window cannot be made. F10, Alt and Alt with a letter open the drop-downs of a top-level parent.
BOOL SHCreateMenuBar(MenuBarInfo* info);

// Flags of SHInitDialog.
constexpr DWORD DialogDoneButton = 1;
constexpr DWORD DialogSizeFullScreen = 4;
constexpr DWORD DialogLowerInputPanel = 8;

struct DialogInitInfo {
    DWORD dwMask;  // 1: dwFlags is valid
    HWND hDlg;
    DWORD dwFlags;
};

// On a Pocket PC's screen (upright or square, at most 320 wide) a full-screen dialog covers the work area; on
// any other screen it keeps the size of its template. To be called before SHCreateMenuBar for the dialog,
// which makes room for the bar at the bottom where the dialog does not fill the screen.
BOOL SHInitDialog(const DialogInitInfo* info);

// To be called when a property sheet is initialised (PSCB_INITIALIZED) and its first page not yet made. The
// handheld's sheet fills the screen; the desktop's is larger than that at its smallest. Here it fills a
// Pocket PC's screen, as a dialog does, and loses elsewhere what does not fit the screen. Tab control and
// buttons follow. There is room for two buttons on a screen of 240 pixels (PSH_NOAPPLYNOW).
void FitSheetToScreen(HWND sheet);

// Questions to the shell about a file; a test counts or answers them.
struct ShellCalls {
    DWORD_PTR (*getFileInfo)(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags);
};
extern ShellCalls shellCalls;
inline DWORD_PTR SHGetFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size,
                               UINT flags) {
    return shellCalls.getFileInfo(path, attributes, info, size, flags);
}

}  // namespace ce
