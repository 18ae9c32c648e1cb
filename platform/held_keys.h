#pragma once

// A key that is held down acts in the window that it was pressed in and in no other: its repeats would
// otherwise answer a question that opens meanwhile, or close the window behind a dialog that has closed. The
// desktop sends them to whatever window has the focus.

#include "platform/system_types.h"

namespace ce {

// Watches the messages that this thread takes, for as long as it exists. Enter, Space, Esc
// and F4 are watched. Without a hook the repeats go where the system sends them.
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
