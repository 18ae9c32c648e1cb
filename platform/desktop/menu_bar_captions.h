#pragma once

// The looks of a menu bar's buttons: as wide as they must be, with their captions in the middle.

#include "platform/system_types.h"

#include <commctrl.h>

namespace ce {

// Gives each button just the width of its caption or picture. By itself the tool bar makes all of them as
// wide as the widest, and three captions with two pictures would not fit a screen of 240 pixels.
void FitMenuBarButtons(HWND toolBar);

// The answer to the tool bar's NM_CUSTOMDRAW. Draws a button that has only a caption, beside which the tool
// bar would keep room for a picture; all others are left to the tool bar.
LRESULT DrawMenuBarCaption(HWND toolBar, const NMTBCUSTOMDRAW& request);

}  // namespace ce
