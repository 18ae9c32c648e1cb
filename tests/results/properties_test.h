#pragma once

// The properties sheet of one file, shown, looked at, changed and ended as a user does it.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "results/file_properties_sheet.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/temp_tree.h"
#include "tests/support/test_world.h"

// The sheet while it is open. A page is made when it is first turned to; the first one stands at once.
class OpenSheet {
  public:
    explicit OpenSheet(HWND sheetWindow) : sheet_(sheetWindow) {}

    [[nodiscard]] HWND Window() const { return sheet_; }
    [[nodiscard]] std::wstring Caption() const;
    [[nodiscard]] std::vector<std::wstring> Tabs() const;
    void TurnTo(int page) const;
    // Of the page that is shown.
    [[nodiscard]] HWND Page() const;
    [[nodiscard]] std::wstring Text(int id) const;
    [[nodiscard]] bool IsShown(int id) const;
    [[nodiscard]] bool HasIcon() const;
    // Whether the control's text fits into one line of it.
    [[nodiscard]] bool ShowsWhole(int id) const;
    [[nodiscard]] RECT Place(int id) const;
    [[nodiscard]] bool IsChecked(int id) const;
    void Click(int id) const;
    void SetText(int id, const std::wstring& text) const;

  private:
    HWND sheet_;
};

class PropertiesTest : public testing::Test {
  protected:
    using Doing = std::function<void(const OpenSheet&)>;

    // Shows the sheet for the path, does something with it and ends it with the button. Whether a page has
    // changed something.
    bool ShowSheet(const std::wstring& path, int button, const Doing& doing = {});

    static void UseJapanese() { ContextForStartUp().uiLanguage = UiLanguage::Japanese; }
    // 2002-07-15 00:05:30 UTC, which is 09:05:30 here.
    static void SetWritten(const std::wstring& path);
    // That time in the system's own short forms.
    static std::wstring ShortForms();
    static std::string BytesOf(const std::wstring& path);

    TestWorld world_;
    HostWindow host_;
    TempTree tree_;

  private:
    static BOOL NineHoursLater(const FILETIME* utc, FILETIME* local);

    Replaced<decltype(ce::systemCalls.fileTimeToLocalFileTime)> zone_{ce::systemCalls.fileTimeToLocalFileTime,
                                                                      &NineHoursLater};
};
