#pragma once

// The procedures that subclassed windows had before. They belong to the windows and not to the objects that
// wrap them: a window can be wrapped and subclassed again when its first object is gone, and by then its own
// procedure cannot be asked for any more.

#include "platform/system_types.h"

// Puts the replacement in front of the window's procedure, unless it is there already, and returns that
// procedure; null, with the window left as it is, when there is no memory to remember it or no such window.
[[nodiscard]] WNDPROC ReplaceProcedure(HWND window, WNDPROC replacement);

// To be called when the window is gone, since its handle may come back.
void ForgetProcedure(HWND window);
