#include "app/page_navigation.h"

namespace {

bool IsShiftDown() {
    return GetKeyState(VK_SHIFT) < 0;
}

bool WantsMessage(HWND control, MSG& message) {
    const LRESULT code =
        SendMessageW(control, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
    return (code & (DLGC_WANTMESSAGE | DLGC_WANTTAB)) != 0;
}

bool IsPushButton(HWND control) {
    return (SendMessageW(control, WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

// The child of the page that holds the focus: for a combo box the box itself, not the edit inside it.
HWND PageControlOf(HWND page, HWND focus) {
    while (focus != nullptr && GetParent(focus) != page)
        focus = GetParent(focus);
    return focus;
}

// A text field reached by Tab gets its text selected, as in any dialog. A control that could not be created
// is skipped: the focus stays where it is.
void FocusControl(HWND control) {
    if (control == nullptr) return;
    SetFocus(control);
    if ((SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0)
        SendMessageW(control, EM_SETSEL, 0, -1);
}

void LeavePage(const NavigationStops& stops, HWND control, bool backwards) {
    const HWND next = GetNextDlgTabItem(stops.page, control, backwards);
    const HWND end = backwards ? LastTabStop(stops.page) : FirstTabStop(stops.page);
    if (next == nullptr || next == end) {
        FocusControl(backwards ? stops.tabControl : stops.list);
    } else {
        FocusControl(next);
    }
}

bool OnTab(MSG& message, const NavigationStops& stops) {
    const bool backwards = IsShiftDown();
    if (message.hwnd == stops.list) {
        FocusControl(backwards ? LastTabStop(stops.page) : stops.tabControl);
        return true;
    }
    if (!IsChild(stops.page, message.hwnd) || WantsMessage(message.hwnd, message)) return false;
    LeavePage(stops, PageControlOf(stops.page, message.hwnd), backwards);
    return true;
}

// A label's mnemonic works from the tab control and the list as well: the page is asked as if the key were
// its own.
bool OnMnemonic(const MSG& message, const NavigationStops& stops) {
    if (stops.page == nullptr || (message.hwnd != stops.tabControl && message.hwnd != stops.list))
        return false;
    // Alt+Enter and Alt+Space are no mnemonics.
    if (message.wParam <= L' ') return false;
    MSG asked = message;
    asked.hwnd = stops.page;
    return IsDialogMessageW(stops.page, &asked) != 0;
}

}  // namespace

HWND FirstTabStop(HWND page) {
    return GetNextDlgTabItem(page, nullptr, FALSE);
}

HWND LastTabStop(HWND page) {
    return GetNextDlgTabItem(page, FirstTabStop(page), TRUE);
}

bool NavigateByKey(MSG& message, const NavigationStops& stops) {
    const bool isKey = message.message == WM_KEYDOWN;
    if (isKey && message.wParam == VK_TAB) return OnTab(message, stops);
    if (message.message == WM_SYSCHAR && OnMnemonic(message, stops)) return true;
    if (stops.page == nullptr || !IsChild(stops.page, message.hwnd)) return false;
    if (isKey && message.wParam == VK_RETURN) {
        if (!IsPushButton(message.hwnd)) return false;
        SendMessageW(message.hwnd, BM_CLICK, 0, 0);
        return true;
    }
    // The page would take Esc and Ctrl+Break for a dialog's Cancel. Esc goes to the control, since it closes
    // an open drop-down list. Ctrl+Break goes nowhere: a field would take it for Ctrl+C.
    if (isKey && message.wParam == VK_ESCAPE) return false;
    if (isKey && message.wParam == VK_CANCEL) return true;
    return IsDialogMessageW(stops.page, &message) != 0;
}
