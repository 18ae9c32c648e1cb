#pragma once

// The cursor that asks for patience, for as long as the object lives.

#include "platform/windows_ce.h"

inline void BeginWaitCursor() {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    ShowCursor(TRUE);
}

inline void EndWaitCursor() {
    ShowCursor(FALSE);
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

class WaitCursor {
  public:
    WaitCursor() { BeginWaitCursor(); }
    ~WaitCursor() { EndWaitCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};
