#include "tests/support/key_presses.h"

#include "tests/support/message_pump.h"

namespace {

constexpr BYTE Down = 0x80;
constexpr LPARAM OnceDown = 1;
constexpr LPARAM OnceUp = 1 | static_cast<LPARAM>(0xC0000000);

LPARAM WithScanCode(int key, LPARAM flags) {
    return flags | static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC)) << 16;
}

}  // namespace

HeldKeys::HeldKeys(std::initializer_list<int> keys) {
    GetKeyboardState(before_);
    BYTE held[256];
    CopyMemory(held, before_, sizeof held);
    for (const int key : keys)
        held[key] |= Down;
    SetKeyboardState(held);
}

HeldKeys::~HeldKeys() {
    SetKeyboardState(before_);
}

MSG KeyDownMessage(HWND window, int key) {
    return {window, WM_KEYDOWN, static_cast<WPARAM>(key), WithScanCode(key, OnceDown), 0, {0, 0}};
}

void PressKeyOn(HWND window, int key, std::initializer_list<int> modifiers) {
    const HeldKeys held(modifiers);
    PostMessageW(window, WM_KEYDOWN, static_cast<WPARAM>(key), WithScanCode(key, OnceDown));
    PumpQueue();
    const HWND upTo = IsWindow(window) ? window : GetActiveWindow();
    PostMessageW(upTo, WM_KEYUP, static_cast<WPARAM>(key), WithScanCode(key, OnceUp));
    PumpQueue();
}
