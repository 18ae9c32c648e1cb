#pragma once

// The framework's own last word to the user; the program goes on after it.

#include "platform/system_types.h"

// Shows the formatted text under the title "Fatal" with the stop icon; a text longer than 519 units is cut.
// Returns what MessageBoxW returned.
int ShowFatal(HWND owner, const wchar_t* format, ...);
