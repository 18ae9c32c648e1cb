#pragma once

// The message boxes in which the whole program reports errors and asks for confirmation. Each returns what
// MessageBoxW returned. A formatted text longer than 1,023 units is cut.

#include "platform/system_types.h"

// "Error" with the stop icon and OK.
int ShowError(HWND owner, const wchar_t* format, ...);

// "Confirmation" with the exclamation icon, OK and Cancel: IDOK or IDCANCEL.
int AskConfirmation(HWND owner, const wchar_t* format, ...);

// "Fatal" with the stop icon, for a window that could not be created. The program goes on. A text longer than
// 519 units is cut.
int ShowFatal(HWND owner, const wchar_t* format, ...);
