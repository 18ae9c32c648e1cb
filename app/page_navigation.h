#pragma once

// The keyboard's way through the main window: tab control, controls of the shown page, result list, and
// round again with Tab, the other way with Shift+Tab; mnemonics and arrows within the page.

#include "platform/windows_ce.h"

struct NavigationStops {
    HWND tabControl;
    HWND page;  // the shown one
    HWND list;
};

// Handles a message of the loop if it is one of these keys; returns whether it did. A field that wants Tab or
// Enter for itself gets it.
[[nodiscard]] bool NavigateByKey(MSG& message, const NavigationStops& stops);

// The page's first and last control that Tab stops at, or null.
[[nodiscard]] HWND FirstTabStop(HWND page);
[[nodiscard]] HWND LastTabStop(HWND page);
