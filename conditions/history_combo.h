#pragma once

// A combo box that keeps what was entered, the latest on top.

#include "framework/combo_box.h"

class HistoryCombo : public ComboBoxControl {
  public:
    // The maximum, the Tab notification and the refusal of empty texts come from the set.
    HistoryCombo(WindowObject* parent, HWND handle, const PropertySet& properties);

    // Puts the text on top and selects it. The first entry that begins with it, ignoring case, is removed,
    // and so is the entry beyond the maximum. Returns false if the text is empty and empty texts are refused.
    bool AddToHistory(const wchar_t* text);

  private:
    int maximum_;
    bool refuseEmpty_;
};
