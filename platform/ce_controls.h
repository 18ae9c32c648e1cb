#pragma once

// Controls that answer differently on the desktop.

#include "platform/system_types.h"

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

// CB_FINDSTRING: the first entry after `start`, and round again up to `start` itself, that begins with the
// text, without regard to case; CB_ERR for none. Every entry begins with an empty text. The desktop finds
// nothing for an empty text and overlooks a "[" before an entry.
[[nodiscard]] int FindComboEntry(HWND combo, int start, const wchar_t* text);

}  // namespace ce
