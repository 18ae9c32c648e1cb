#pragma once

// Registers window classes, and subclasses windows of other classes: puts a procedure in front of their own.

#include "framework/property_set.h"
#include "platform/system_types.h"

// Registers the class that the properties describe, with this procedure unless they name one. Does nothing if
// the program has registered the class already. Ignores a failure, which the creation of a window will
// report.
void RegisterWindowClass(const PropertySet& properties, WNDPROC procedure);

// The previous procedures of subclassed windows are kept by window, not by the object that wraps it: a window
// can be wrapped and subclassed again after its first object is gone, and by then nothing else knows them.

// Puts the replacement in front of the window's procedure, unless it is there already, and returns that
// procedure; null, with the window left as it is, when there is no memory to remember it or no such window.
[[nodiscard]] WNDPROC ReplaceProcedure(HWND window, WNDPROC replacement);

// Call when the window is gone, since its handle may be used again.
void ForgetProcedure(HWND window);
