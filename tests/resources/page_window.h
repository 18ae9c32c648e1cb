#pragma once

// A condition page as a real window in the display area of a tab control, placed as the main window does it.

#include <gtest/gtest.h>
#include <windows.h>

#include <ostream>
#include <string>
#include <vector>

constexpr int PocketScreen = 240;
constexpr int HandheldScreen = 640;

struct PageCase {
    const wchar_t* templateName;
    bool japanese;
    int screenWidth;
};
void PrintTo(const PageCase& page, std::ostream* out);

// The given pages on both screens.
std::vector<PageCase> OnBothScreens(const std::vector<PageCase>& pages);

struct ChildWindow {
    HWND window;
    std::wstring className;
    std::wstring text;  // without the ampersand
    RECT rectangle;     // in the page's client area
};

// A dialog of the program, not yet shown; null when it cannot be made.
HWND MakeDialog(const wchar_t* templateName, HWND parent);

class PageWindow : public testing::TestWithParam<PageCase> {
  protected:
    static void SetUpTestSuite();
    void SetUp() override;
    void TearDown() override;

    // Fails where the text, in the page's font, needs more room.
    void ExpectFits(const std::wstring& text, LONG width, LONG height) const;

    HWND Item(int id) const { return GetDlgItem(page_, id); }

    HWND tabs_ = nullptr;
    HWND page_ = nullptr;
    std::vector<ChildWindow> children_;

  private:
    void AppendTab(const wchar_t* caption);
    void MakePage();
    ChildWindow Describe(HWND child) const;
    SIZE Measure(const std::wstring& text) const;

    HWND frame_ = nullptr;
};
