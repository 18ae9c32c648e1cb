#pragma once

// A history combo in a window of its own.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "conditions/history_combo.h"
#include "framework/property_set.h"
#include "tests/support/test_world.h"

using Entries = std::vector<std::wstring>;

class HistoryComboFixture : public testing::Test {
  protected:
    // With the properties that the set holds at the first use.
    HistoryCombo& Combo() {
        if (combo_ == nullptr) {
            const HWND window =
                CreateWindowExW(0, L"COMBOBOX", L"", WS_CHILD | CBS_DROPDOWN | CBS_AUTOHSCROLL, 0, 0, 100,
                                100, host_.Handle(), nullptr, nullptr, nullptr);
            combo_ = std::make_unique<HistoryCombo>(&host_.Object(), window, properties_);
        }
        return *combo_;
    }

    bool Add(const std::wstring& text) { return Combo().AddToHistory(text.c_str()); }
    void AddAll(const Entries& texts) {
        for (const std::wstring& text : texts)
            EXPECT_TRUE(Add(text));
    }

    // From the top.
    Entries List() {
        Entries entries;
        const auto count = static_cast<WPARAM>(SendMessageW(Combo().Handle(), CB_GETCOUNT, 0, 0));
        for (WPARAM i = 0; i < count; ++i) {
            const auto length =
                static_cast<std::size_t>(SendMessageW(Combo().Handle(), CB_GETLBTEXTLEN, i, 0));
            std::wstring text(length, L'\0');
            SendMessageW(Combo().Handle(), CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text.data()));
            entries.push_back(text);
        }
        return entries;
    }
    LRESULT Selected() { return SendMessageW(Combo().Handle(), CB_GETCURSEL, 0, 0); }
    std::wstring FieldText() {
        wchar_t text[512] = L"";
        GetWindowTextW(Combo().Handle(), text, 512);
        return text;
    }

    PropertySet properties_;

  private:
    TestWorld world_;
    HostWindow host_;
    std::unique_ptr<HistoryCombo> combo_;
};
