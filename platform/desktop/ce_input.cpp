#include "platform/ce_input.h"

#include "platform/desktop/system_handles.h"

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

// Not every system marks the first repeat as one: a press that follows another so soon, with no release
// between, is a repeat too. Later the release has been lost to another program.
constexpr DWORD LongestDelay = 2000;

constexpr LPARAM ScanCode = 0xFF0000;

struct WatchedKey {
    WPARAM key;
    // Null when the repeats have lost their window.
    HWND pressedIn;
    bool isDown;
    DWORD time;
};
WatchedKey watchedKeys[] = {{VK_RETURN, nullptr, false, 0},
                            {VK_SPACE, nullptr, false, 0},
                            {VK_ESCAPE, nullptr, false, 0},
                            {VK_F4, nullptr, false, 0}};

// What a program posts has no key of a keyboard behind it.
WatchedKey* KeyBehind(const MSG& message) {
    if ((message.lParam & ScanCode) == 0) return nullptr;
    for (WatchedKey& watched : watchedKeys) {
        if (watched.key == message.wParam) return &watched;
    }
    return nullptr;
}

bool IsRepeat(const MSG& message, const WatchedKey& watched) {
    return (HIWORD(message.lParam) & KF_REPEAT) != 0 ||
           (watched.isDown && message.time - watched.time < LongestDelay);
}

// Whether the press is to be dropped.
bool IsStrayPress(const MSG& message) {
    WatchedKey* const watched = KeyBehind(message);
    if (watched == nullptr) return false;
    if (!IsRepeat(message, *watched)) watched->pressedIn = message.hwnd;
    watched->isDown = true;
    watched->time = message.time;
    if (watched->pressedIn == message.hwnd) return false;
    // The key stays lost when the focus comes back before it is released.
    watched->pressedIn = nullptr;
    return true;
}

void NoteRelease(const MSG& message) {
    if (WatchedKey* const watched = KeyBehind(message)) watched->isDown = false;
}

void WatchMessage(MSG& message) {
    switch (message.message) {
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (IsStrayPress(message)) message.message = WM_NULL;
            break;
        case WM_KEYUP:
        case WM_SYSKEYUP:
            NoteRelease(message);
            break;
        default:
            break;
    }
}

LRESULT CALLBACK WatchKeys(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && wParam == PM_REMOVE) WatchMessage(*reinterpret_cast<MSG*>(lParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
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

ce::HeldKeys::HeldKeys()
    : hook_(SetWindowsHookExW(WH_GETMESSAGE, WatchKeys, nullptr, GetCurrentThreadId())) {}

ce::HeldKeys::~HeldKeys() {
    const UniqueHook hook(hook_);
}
