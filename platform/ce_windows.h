#pragma once

// Windows, classes and colours where the desktop differs from the handheld.

#include "platform/system_types.h"

namespace ce {

// The flag that marks a colour or brush index as a system colour (0x40000000).
constexpr DWORD SystemColorFlag = 0x40000000;

// A dialog's class reads "Dialog" (the desktop's own name for it is "#32770").
int GetClassNameW(HWND window, wchar_t* name, int capacity);

// A top-level window with CW_USEDEFAULT in all four places fills the work area of a handheld-sized screen
// (up to 800 x 480, either way round), with a caption as its title line, and its user cannot move it away; on
// a larger screen it gets a window of handheld proportions that cannot be resized. Any other window is made
// as asked. A failed creation answers null.
HWND CreateWindowExW(DWORD extendedStyle, const wchar_t* className, const wchar_t* title, DWORD style, int x,
                     int y, int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                     void* parameter);

// The procedure that takes the window's messages, and putting another one in its place, which answers the one
// before (null where there is no such window). A window's long word holds a pointer on the handheld only.
[[nodiscard]] WNDPROC WindowProcedure(HWND window);
WNDPROC SetWindowProcedure(HWND window, WNDPROC procedure);

// What a dialog answers to the message that it has just handled (DWL_MSGRESULT).
void SetDialogResult(HWND dialog, LRESULT result);

// The icon of all windows of this window's class.
void SetClassIcon(HWND window, HICON icon);

// Registers the class; a background brush given as index with the flag is brought to the desktop's form, and
// a class without a cursor gets the arrow.
ATOM RegisterClassW(const WNDCLASSW* windowClass);

// As the system's call. The desktop makes a box as wide as its longest line: one that would not lie within
// the work area is laid out anew, with its text broken anywhere and, if need be, in smaller letters.
int MessageBoxW(HWND owner, const wchar_t* text, const wchar_t* title, UINT style);

// Take an index with or without the flag.
DWORD GetSysColor(int index);
HBRUSH GetSysColorBrush(int index);

// The part of the screen that windows may fill: the screen, of the size that ce::GetSystemMetrics tells,
// without what the system keeps for its own bars.
[[nodiscard]] RECT ScreenArea();

}  // namespace ce
