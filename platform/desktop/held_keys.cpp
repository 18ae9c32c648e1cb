#include "platform/held_keys.h"

#include "platform/desktop/system_handles.h"

namespace ce {

namespace {

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

HeldKeys::HeldKeys() : hook_(SetWindowsHookExW(WH_GETMESSAGE, WatchKeys, nullptr, GetCurrentThreadId())) {}

HeldKeys::~HeldKeys() {
    const UniqueHook hook(hook_);
}

}  // namespace ce
