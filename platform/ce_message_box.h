#pragma once

// The system's message box, kept on the screen.

#include "platform/system_types.h"

namespace ce {

// As the system's call. The desktop makes a box as wide as its longest line: one that would not lie within
// the work area is laid out anew, with its text broken anywhere and, if need be, in smaller letters.
int MessageBoxW(HWND owner, const wchar_t* text, const wchar_t* title, UINT style);

}  // namespace ce
