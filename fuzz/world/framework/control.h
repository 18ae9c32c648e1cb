#pragma once

// A control without a window, in the place of framework/control.h.

#include <memory>

#include "framework/dialog.h"

inline HWND DialogItem(const WindowObject&, int) {
    return nullptr;
}

class Control : public WindowObject {
  public:
    Control(WindowObject* parent, HWND, const wchar_t*) : WindowObject(parent) {}
};
