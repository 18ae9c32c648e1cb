#include "tests/support/probe/program_windows.h"

#include <commctrl.h>

#include "resources/resource_ids.h"
#include "tests/support/probe/probe_protocol.h"

namespace probe {
namespace {

constexpr wchar_t MainClassName[] = L"QuorinSearch";
constexpr UINT MenuBarGetMenu = WM_USER + 402;

bool HasClass(HWND window, const wchar_t* className) {
    wchar_t name[128] = L"";
    GetClassNameW(window, name, 128);
    return lstrcmpiW(name, className) == 0;
}

BOOL CALLBACK TakeMainWindow(HWND window, LPARAM result) {
    if (!HasClass(window, MainClassName)) return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

BOOL CALLBACK TakeFindingDialog(HWND window, LPARAM result) {
    if (!HasClass(window, L"#32770") || GetDlgItem(window, STATIC_FOLDER) == nullptr) return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

BOOL CALLBACK TakeBrowser(HWND window, LPARAM result) {
    if (!HasClass(window, L"#32770") || GetDlgItem(window, TREE_FOLDERS) == nullptr) return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

HWND ThreadWindow(WNDENUMPROC take) {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), take, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND ChildOfClass(HWND parent, const wchar_t* className) {
    return parent == nullptr ? nullptr : FindWindowExW(parent, nullptr, className, nullptr);
}

BOOL CALLBACK TakePageWithControl(HWND window, LPARAM result) {
    auto* search = reinterpret_cast<HWND*>(result);
    const int id = static_cast<int>(reinterpret_cast<INT_PTR>(*search));
    if (!HasClass(window, L"#32770") || GetDlgItem(window, id) == nullptr) return TRUE;
    *search = window;
    return FALSE;
}

// The child dialog that has this control; the id stands in the result until the dialog is found.
HWND PageWithControl(int id) {
    HWND search = reinterpret_cast<HWND>(static_cast<INT_PTR>(id));
    const HWND untouched = search;
    EnumChildWindows(MainWindow(), TakePageWithControl, reinterpret_cast<LPARAM>(&search));
    return search == untouched ? nullptr : search;
}

}  // namespace

HWND MainWindow() {
    return ThreadWindow(TakeMainWindow);
}

HWND ListWindow() {
    return ChildOfClass(MainWindow(), WC_LISTVIEWW);
}

HWND TabWindow() {
    return ChildOfClass(MainWindow(), WC_TABCONTROLW);
}

HWND BarWindow() {
    const HWND main = MainWindow();
    if (main == nullptr) return nullptr;
    for (HWND child = GetWindow(main, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        const auto menu = reinterpret_cast<HMENU>(SendMessageW(child, MenuBarGetMenu, 0, 0));
        if (menu != nullptr && IsMenu(menu)) return child;
    }
    return nullptr;
}

HMENU BarMenu() {
    const HWND bar = BarWindow();
    return bar == nullptr ? nullptr : reinterpret_cast<HMENU>(SendMessageW(bar, MenuBarGetMenu, 0, 0));
}

HWND BarToolBar() {
    return ChildOfClass(BarWindow(), TOOLBARCLASSNAMEW);
}

HWND PageWindow(int page) {
    switch (page) {
        case MainWindowPage:
            return MainWindow();
        case FindingDialogPage:
            return FindingDialog();
        case 0:
            return PageWithControl(CHECK_SUBFOLDERS);
        case 1:
            return PageWithControl(RADIO_ALL_FILES);
        case 2:
            return PageWithControl(SPIN_KILOBYTES);
        default:
            return nullptr;
    }
}

HWND PageControl(int page, int id) {
    const HWND window = PageWindow(page);
    return window == nullptr ? nullptr : GetDlgItem(window, id);
}

HWND FindingDialog() {
    return ThreadWindow(TakeFindingDialog);
}

HWND BrowserTree() {
    const HWND browser = ThreadWindow(TakeBrowser);
    return browser == nullptr ? nullptr : GetDlgItem(browser, TREE_FOLDERS);
}

}  // namespace probe
