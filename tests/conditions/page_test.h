#pragma once

// A condition page from its real template, in a window of its own that stands for the tab control and counts
// the find commands that reach it.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "conditions/condition_page.h"
#include "resources/resource_ids.h"
#include "tests/support/key_presses.h"
#include "tests/support/message_pump.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/test_world.h"

class PageTest : public testing::Test {
  protected:
    PageTest();
    ~PageTest() override;

    static void UseJapanese() { ContextForStartUp().uiLanguage = UiLanguage::Japanese; }

    // Creates the page's window and shows it.
    void Open(ConditionPage& page);

    [[nodiscard]] ContainerWindow* Host() { return &host_.Object(); }
    [[nodiscard]] HWND HostHandle() const { return host_.Handle(); }
    // What the page adds to a query in which every text is "before".
    [[nodiscard]] static SearchQuery QueryOf(const ConditionPage& page);
    // Find commands that have arrived by now.
    [[nodiscard]] int FindCommands();

    [[nodiscard]] HWND Item(int id) const { return GetDlgItem(pageWindow_, id); }
    [[nodiscard]] std::wstring TextOf(int id) const;
    void SetText(int id, const std::wstring& text) const { SetWindowTextW(Item(id), text.c_str()); }
    [[nodiscard]] bool IsEnabled(int id) const { return IsWindowEnabled(Item(id)) != FALSE; }
    LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(Item(id), message, wParam, lParam);
    }
    // A user's click.
    void Click(int id) const { Send(id, BM_CLICK); }
    [[nodiscard]] std::vector<std::wstring> EntriesOf(int comboId) const;
    [[nodiscard]] HWND EditOf(int comboId) const { return GetWindow(Item(comboId), GW_CHILD); }

  private:
    static LRESULT CALLBACK CountFinds(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                       DWORD_PTR test);

    TestWorld world_;
    HostWindow host_;
    HWND pageWindow_ = nullptr;
    int finds_ = 0;
};
