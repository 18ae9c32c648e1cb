#pragma once

// A combo box without a window, in the place of conditions/history_combo.h. It keeps everything that it is
// given, the latest on top.

#include <string>
#include <vector>

#include "platform/windows_ce.h"

class HistoryCombo {
  public:
    [[nodiscard]] HWND Handle() const {
        return reinterpret_cast<HWND>(const_cast<std::vector<std::wstring>*>(&entries));
    }
    bool AddToHistory(const wchar_t* text) {
        entries.insert(entries.begin(), text);
        return true;
    }

    std::vector<std::wstring> entries;
};
