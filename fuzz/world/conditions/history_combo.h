#pragma once

// A combo box without a window, in the place of conditions/history_combo.h. It keeps everything that it is
// given, the latest on top.

#include <cwchar>
#include <span>
#include <string>
#include <vector>

#include "platform/windows_ce.h"

class HistoryCombo {
  public:
    // What the program asks of the box itself is answered here as well.
    [[nodiscard]] HistoryCombo& Box() { return *this; }
    [[nodiscard]] const HistoryCombo& Box() const { return *this; }

    bool AddToHistory(const wchar_t* text) {
        entries.insert(entries.begin(), text);
        return true;
    }
    [[nodiscard]] int Count() const { return static_cast<int>(entries.size()); }
    void Clear() { entries.clear(); }
    void ReadText(int index, std::span<wchar_t> text) const {
        const std::wstring& entry = entries.at(static_cast<std::size_t>(index));
        text[0] = L'\0';
        if (entry.size() < text.size()) std::wcscpy(text.data(), entry.c_str());
    }

    std::vector<std::wstring> entries;
};
