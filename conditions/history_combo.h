#pragma once

// A combo box that keeps what was entered, the latest on top.

#include "framework/control.h"

class HistoryCombo : public ComboBox {
  public:
    // The maximum, the Tab notification and the refusal of empty texts come from the set.
    HistoryCombo(WindowObject* parent, HWND handle, const PropertySet& properties);

    // Puts the text on top and selects it. The first entry that begins with it, without regard to case, goes;
    // so does the entry beyond the maximum. False when the text is empty and empty texts are refused.
    bool AddToHistory(const wchar_t* text);

  private:
    int maximum_;
    bool refuseEmpty_;
};
