#pragma once

// Cuts the system's property sheet, whose smallest size is larger than a handheld's screen.

#include "platform/system_types.h"

// To be called when the sheet is initialised (PSCB_INITIALIZED) and its first page not yet made: makes sheet
// and tab control smaller by what does not fit the screen and moves the buttons along. A sheet that fits is
// left alone. There is room for two buttons on a screen of 240 pixels (PSH_NOAPPLYNOW).
void CutSheetToScreen(HWND sheet);
