#pragma once

// Fits the system's property sheet to the screen. Its smallest size is larger than a handheld's screen.

#include "platform/system_types.h"

// To be called when the sheet is initialised (PSCB_INITIALIZED) and its first page not yet made: the sheet
// fills a Pocket PC's screen, as a dialog does, and loses elsewhere what does not fit the screen. Tab control
// and buttons follow. There is room for two buttons on a screen of 240 pixels (PSH_NOAPPLYNOW).
void FitSheetToScreen(HWND sheet);
