#pragma once

// A window that the framework knows nothing of, with a procedure of its own.

#include "platform/windows_ce.h"

// What the foreign procedure answers with the sum of its parameters.
constexpr UINT SumMessage = WM_APP + 1;

class ForeignWindow {
  public:
    ForeignWindow();
    ~ForeignWindow();
    ForeignWindow(const ForeignWindow&) = delete;
    ForeignWindow& operator=(const ForeignWindow&) = delete;

    HWND window = nullptr;
};
