#pragma once

// Finds the program's windows from inside its process. Null where there is no such window.

#include <windows.h>

namespace probe {

HWND MainWindow();
HWND ListWindow();
HWND TabWindow();
// The window that answers the menu bar's get-menu message, and the menu that it gives.
HWND BarWindow();
HMENU BarMenu();
// The tool bar in the menu bar.
HWND BarToolBar();
// 0 name, 1 date, 2 size; told apart by a control that only they have. MainWindowPage and FindingDialogPage
// answer these windows.
HWND PageWindow(int page);
HWND PageControl(int page, int id);
// A visible dialog of the program's thread with the static that shows the searched folder.
HWND FindingDialog();
// The tree in the folder browser.
HWND BrowserTree();

}  // namespace probe
