#pragma once

// Controls that answer differently on the desktop.

#include "platform/handles.h"
#include "platform/system_types.h"

#include <commctrl.h>

namespace ce {

// UDM_GETPOS: the number in the buddy's text in the low word, as typed even where it lies outside the range;
// or, where the text is no number of 16 bits (an empty text is none), the last position with 1 in the high
// word. The desktop counts an empty text as 0 and refuses what lies outside the range.
[[nodiscard]] DWORD SpinPosition(HWND spin);

// GetMenuItemInfoW by command for the state word; 0 without a menu or such an item. The desktop leaves the
// mark of the item that was highlighted last (MFS_HILITE) in the word after the menu has closed; it is
// dropped here.
[[nodiscard]] UINT MenuItemState(HMENU menu, UINT command);

// TCM_SETCURSEL. The desktop's control keeps a mark on a tab that was left by an arrow key, and the next
// click on it then changes nothing; no other tab is left marked here.
void SelectTab(HWND tabs, int index);

// DTM_SETFORMAT. A year of three letters is one of four digits, as it is shown anywhere; the desktop's
// control shows it so, but not every one lets it be changed. It is given the four letters that mean the same.
void SetPickerFormat(HWND picker, const wchar_t* format);

// The view of a list view (LVS_ICON, LVS_SMALLICON, LVS_REPORT or LVS_LIST in its style). The desktop's list
// draws the new view over the old one, unless all of it is drawn anew.
void SetListView(HWND list, DWORD view);

// The font of a list view's rows; null where the list's own is right, as on the handheld. The desktop's list
// writes as below the desktop's icons, which on a Japanese system may be in letters of one width.
[[nodiscard]] UniqueFont ListFont();

// The font of a control that no dialog gives one, shared by all.
[[nodiscard]] HFONT ControlFont();

// To be called with each WM_SYSKEYDOWN and WM_SYSCHAR of a list view; true for one of Enter, with which all
// is done. The handheld's list reports Enter with Alt held (LVN_KEYDOWN) like any key, once for a key that is
// held; the desktop's would look for a menu of that letter, and beep.
bool TakeAltEnter(HWND list, UINT message, WPARAM key, LPARAM state);

// A list of icons of this size in the colours of the screen, with room for so many more each time that it is
// full. The desktop's lists hold 16 colours unless they are asked for more.
[[nodiscard]] UniqueImageList CreateIconList(int size, int initial, int growth);

// CB_FINDSTRING: the first entry after `start`, and round again up to `start` itself, that begins with the
// text, without regard to case; CB_ERR for none. Every entry begins with an empty text. The desktop finds
// nothing for an empty text and overlooks a "[" before an entry.
[[nodiscard]] int FindComboEntry(HWND combo, int start, const wchar_t* text);

}  // namespace ce
