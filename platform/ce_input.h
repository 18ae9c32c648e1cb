#pragma once

// Which window of a program takes the input, and bringing it to the front; and keys that are held down while
// it changes. The handheld's system looks for the open dialog by itself; the desktop activates a disabled
// window as readily as any other.

#include "platform/system_types.h"

namespace ce {

// The window itself, or the dialog or message box that disabled it; the window again if there is none.
[[nodiscard]] HWND InputWindowOf(HWND window);

// Brings the window to the front, of whatever program it is: restored where it is minimised, and with the
// input given to what InputWindowOf says.
BOOL SetForegroundWindow(HWND window);

// For a window of this thread that has just been activated: a disabled one passes the activation on to the
// window that takes its input. False if it keeps it.
bool PassActivationOn(HWND window);

// For a dialog of this thread that is about to end: the window takes the input afterwards, and not the
// dialog's owner, which the desktop enables and activates then, and whose raising nobody could undo before
// the thread takes messages again.
void LeaveInputTo(HWND window, HWND dialog);

// A key that is held down acts in the window that it was pressed in and in no other: its repeats would
// otherwise answer a question that opens meanwhile, or close the window behind a dialog that has closed. The
// desktop sends them to whatever window has the focus.
//
// Watches the messages that this thread takes, for as long as it exists. Enter, Space, Esc and F4 are
// watched. Without a hook the repeats go where the system sends them.
class HeldKeys {
  public:
    HeldKeys();
    ~HeldKeys();
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

  private:
    HHOOK hook_;
};

}  // namespace ce
