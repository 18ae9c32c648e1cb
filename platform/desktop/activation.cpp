#include "platform/activation.h"

namespace {

// Tooltips and lists that drop down are owned pop-ups as well, but have no caption.
bool IsOpenDialog(HWND window) {
    return IsWindowEnabled(window) && (GetWindowLongW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
}

struct DialogSearch {
    HWND rootOwner;
    HWND found = nullptr;
};

BOOL CALLBACK FindOpenDialog(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<DialogSearch*>(parameter);
    if (window == search.rootOwner || GetAncestor(window, GA_ROOTOWNER) != search.rootOwner ||
        !IsOpenDialog(window)) {
        return TRUE;
    }
    search.found = window;
    return FALSE;
}

}  // namespace

// The last active pop-up is the owner itself after an activation from outside, so it is not always the
// answer.
HWND ce::InputWindowOf(HWND window) {
    if (IsWindowEnabled(window)) return window;
    DialogSearch search{GetAncestor(window, GA_ROOTOWNER)};
    const HWND lastActive = GetLastActivePopup(search.rootOwner);
    if (IsOpenDialog(lastActive)) return lastActive;
    EnumThreadWindows(GetWindowThreadProcessId(window, nullptr), FindOpenDialog,
                      reinterpret_cast<LPARAM>(&search));
    return search.found != nullptr ? search.found : window;
}

// Nothing here waits for the other program, which may be in the middle of a long file.
BOOL ce::SetForegroundWindow(HWND window) {
    if (IsIconic(window)) ShowWindowAsync(window, SW_RESTORE);
    const HWND front = InputWindowOf(window);
    SetWindowPos(front, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
    return ::SetForegroundWindow(front);
}

bool ce::PassActivationOn(HWND window) {
    const HWND front = InputWindowOf(window);
    if (front == window) return false;
    SetWindowPos(front, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    SetActiveWindow(front);
    return true;
}

void ce::LeaveInputTo(HWND window, HWND dialog) {
    EnableWindow(window, TRUE);
    SetWindowLongPtrW(dialog, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(window));
}
