#pragma once

// Key strokes as messages to one window of the calling thread, with the modifiers that the thread then reads
// as held down. They need no focus and no foreground, which a test cannot count on.

#include <windows.h>

#include <initializer_list>

// Modifiers are VK_SHIFT, VK_CONTROL and VK_MENU.
class HeldKeys {
  public:
    explicit HeldKeys(std::initializer_list<int> keys);
    ~HeldKeys();
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

  private:
    BYTE before_[256] = {};
};

// The message of a key going down.
[[nodiscard]] MSG KeyDownMessage(HWND window, int key);

// Posts the key's way down, and its way up to what is there then, and dispatches the queue after each.
void PressKeyOn(HWND window, int key, std::initializer_list<int> modifiers = {});
