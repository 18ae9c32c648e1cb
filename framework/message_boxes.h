#pragma once

// The boxes through which the whole program reports errors and asks for confirmation. A formatted text longer
// than 1,023 units is cut.

#include "platform/system_types.h"

// "Error" with the stop icon and OK. Returns what MessageBoxW returned.
int ShowError(HWND owner, const wchar_t* format, ...);

// "Confirmation" with the exclamation icon, OK and Cancel: IDOK or IDCANCEL.
int AskConfirmation(HWND owner, const wchar_t* format, ...);
