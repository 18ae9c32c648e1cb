#pragma once

// Window classes: registering the one that a property set describes, and putting a procedure in front of a
// window's own where another class has made it (subclassing).

#include "framework/property_set.h"
#include "platform/system_types.h"

// The procedure is the class's unless the properties name one. Nothing happens when the program's instance
// knows the class already; a failure is ignored, creation will tell.
void RegisterWindowClass(const PropertySet& properties, WNDPROC procedure);

// The procedures that subclassed windows had before belong to the windows and not to the objects that wrap
// them: a window can be wrapped and subclassed again when its first object is gone, and by then its own
// procedure cannot be asked for any more.

// Puts the replacement in front of the window's procedure, unless it is there already, and returns that
// procedure; null, with the window left as it is, when there is no memory to remember it or no such window.
[[nodiscard]] WNDPROC ReplaceProcedure(HWND window, WNDPROC replacement);

// To be called when the window is gone, since its handle may come back.
void ForgetProcedure(HWND window);
