// The texts of the properties sheet: away from their labels, up to the page's edge, and those for which there
// is no room whole in a tooltip.

#include <algorithm>

#include "resources/resource_ids.h"
#include "tests/results/properties_test.h"

namespace {

constexpr int Values[] = {STATIC_TYPE, STATIC_LOCATION, STATIC_SIZE, STATIC_MODIFIED};

LONG WidthOf(HWND control) {
    wchar_t text[MAX_PATH] = L"";
    const int length = GetWindowTextW(control, text, MAX_PATH);
    const HDC surface = GetDC(control);
    const HGDIOBJ before =
        SelectObject(surface, reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
    SIZE size = {};
    GetTextExtentPoint32W(surface, text, length, &size);
    SelectObject(surface, before);
    ReleaseDC(control, surface);
    return size.cx;
}

LONG HeightInLines(HWND control, LONG width) {
    wchar_t text[MAX_PATH] = L"";
    const int length = GetWindowTextW(control, text, MAX_PATH);
    const HDC surface = GetDC(control);
    const HGDIOBJ before =
        SelectObject(surface, reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
    RECT area = {0, 0, width, 0};
    DrawTextW(surface, text, length, &area, DT_CALCRECT | DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX);
    SelectObject(surface, before);
    ReleaseDC(control, surface);
    return area.bottom;
}

HWND LabelOf(const OpenSheet& sheet, int id) {
    return GetWindow(GetDlgItem(sheet.Page(), id), GW_HWNDPREV);
}

RECT PageArea(const OpenSheet& sheet) {
    RECT area = {};
    GetClientRect(sheet.Page(), &area);
    return area;
}

void ExpectInsidePage(const OpenSheet& sheet) {
    const RECT page = PageArea(sheet);
    for (HWND control = GetWindow(sheet.Page(), GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        if (!IsWindowVisible(control)) continue;
        const RECT place = sheet.Place(GetDlgCtrlID(control));
        EXPECT_LE(place.right, page.right) << GetDlgCtrlID(control);
        EXPECT_LE(place.bottom, page.bottom) << GetDlgCtrlID(control);
    }
}

void ExpectNothingCovered(const OpenSheet& sheet) {
    for (HWND one = GetWindow(sheet.Page(), GW_CHILD); one != nullptr; one = GetWindow(one, GW_HWNDNEXT))
        for (HWND other = GetWindow(one, GW_HWNDNEXT); other != nullptr;
             other = GetWindow(other, GW_HWNDNEXT)) {
            const RECT first = sheet.Place(GetDlgCtrlID(one));
            const RECT second = sheet.Place(GetDlgCtrlID(other));
            RECT common = {};
            IntersectRect(&common, &first, &second);
            // Places and sizes in dialog units are rounded one by one.
            EXPECT_TRUE(common.right - common.left <= 1 || common.bottom - common.top <= 1)
                << GetDlgCtrlID(one) << " and " << GetDlgCtrlID(other);
        }
}

struct Tip {
    HWND page;
    UINT_PTR id;
    std::wstring text;
};

BOOL CALLBACK ReadTip(HWND window, LPARAM found) {
    wchar_t name[40] = L"";
    GetClassNameW(window, name, 40);
    if (std::wstring(name) != TOOLTIPS_CLASSW) return TRUE;
    auto& tip = *reinterpret_cast<Tip*>(found);
    wchar_t text[2 * MAX_PATH] = L"";
    TOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.hwnd = tip.page;
    tool.uId = tip.id;
    tool.lpszText = text;
    SendMessageW(window, TTM_GETTEXTW, 2 * MAX_PATH, reinterpret_cast<LPARAM>(&tool));
    if (text[0] != L'\0') tip.text = text;
    return TRUE;
}

// What the tooltip of the control says, its line ends left out; empty without one.
std::wstring TipOf(const OpenSheet& sheet, int id) {
    Tip tip = {sheet.Page(), static_cast<UINT_PTR>(id), {}};
    EnumThreadWindows(GetCurrentThreadId(), ReadTip, reinterpret_cast<LPARAM>(&tip));
    std::erase_if(tip.text, [](wchar_t letter) { return letter == L'\r' || letter == L'\n'; });
    return tip.text;
}

class SheetTexts : public PropertiesTest {
  protected:
    void InBothLanguages(const std::wstring& path, const Doing& doing) {
        for (const UiLanguage language : {UiLanguage::English, UiLanguage::Japanese}) {
            ContextForStartUp().uiLanguage = language;
            ShowSheet(path, IDCANCEL, doing);
        }
    }
};

TEST_F(SheetTexts, stand_in_a_column_that_no_label_touches) {
    constexpr LONG SmallestGap = 4;
    InBothLanguages(L"C:\\windows\\win.ini", [](const OpenSheet& sheet) {
        for (const int id : Values) {
            const HWND label = LabelOf(sheet, id);
            const LONG end = sheet.Place(GetDlgCtrlID(label)).left + WidthOf(label);
            EXPECT_GE(sheet.Place(id).left, end + SmallestGap) << id;
            EXPECT_EQ(sheet.Place(id).left, sheet.Place(STATIC_TYPE).left) << id;
        }
    });
}

TEST_F(SheetTexts, reach_the_edge_of_the_page) {
    constexpr LONG Margin = 8;
    InBothLanguages(tree_.AddFile(L"a.txt", "text"), [](const OpenSheet& sheet) {
        const LONG edge = PageArea(sheet).right;
        for (const int id :
             {STATIC_DISPLAY_NAME, STATIC_TYPE, STATIC_LOCATION, STATIC_SIZE, STATIC_MODIFIED}) {
            EXPECT_GT(sheet.Place(id).right, edge - Margin) << id;
            EXPECT_LE(sheet.Place(id).right, edge) << id;
        }
    });
}

TEST_F(SheetTexts, that_are_long_names_take_the_lines_that_the_page_has_left) {
    const bool isHigh = GetSystemMetrics(SM_CYSCREEN) >= 320;
    InBothLanguages(tree_.AddFile(std::wstring(60, L'長') + L".txt"), [&](const OpenSheet& sheet) {
        ExpectInsidePage(sheet);
        ExpectNothingCovered(sheet);
        const RECT place = sheet.Place(STATIC_DISPLAY_NAME);
        const LONG needed =
            HeightInLines(GetDlgItem(sheet.Page(), STATIC_DISPLAY_NAME), place.right - place.left);
        EXPECT_EQ(needed <= place.bottom - place.top, isHigh);
    });
}

TEST_F(SheetTexts, that_are_cut_are_whole_in_a_tooltip) {
    const std::wstring folder = L"a folder with a name of some length";
    const std::wstring path = tree_.AddFile(folder + L"\\" + std::wstring(150, L'W') + L".txt");
    SHFILEINFOW info = {};
    SHGetFileInfoW(path.c_str(), 0, &info, sizeof info, SHGFI_DISPLAYNAME);
    InBothLanguages(path, [&](const OpenSheet& sheet) {
        ExpectInsidePage(sheet);
        ExpectNothingCovered(sheet);
        EXPECT_EQ(TipOf(sheet, STATIC_DISPLAY_NAME), info.szDisplayName);
        EXPECT_EQ(TipOf(sheet, STATIC_LOCATION), tree_.Path(folder));
        EXPECT_EQ(sheet.Text(STATIC_DISPLAY_NAME), info.szDisplayName);
    });
}

TEST_F(SheetTexts, that_are_whole_have_no_tooltip) {
    InBothLanguages(tree_.AddFile(L"a.txt", "text"), [](const OpenSheet& sheet) {
        for (const int id : {STATIC_DISPLAY_NAME, STATIC_TYPE, STATIC_SIZE, STATIC_MODIFIED})
            EXPECT_EQ(TipOf(sheet, id), L"") << id;
    });
}

TEST_F(SheetTexts, of_a_shortcut_reach_the_edge_as_well) {
    const std::wstring path = tree_.AddFile(L"a.lnk", "13#\"C:\\windows\"");
    InBothLanguages(path, [](const OpenSheet& sheet) {
        sheet.TurnTo(1);
        ExpectInsidePage(sheet);
        const LONG edge = PageArea(sheet).right;
        for (const int id : {STATIC_TARGET_TYPE, EDIT_TARGET}) {
            EXPECT_GT(sheet.Place(id).right, edge - 10) << id;
            EXPECT_LE(sheet.Place(id).right, edge) << id;
        }
        const HWND label = LabelOf(sheet, STATIC_TARGET_TYPE);
        RECT place = {};
        GetWindowRect(label, &place);
        MapWindowPoints(nullptr, sheet.Page(), reinterpret_cast<POINT*>(&place), 2);
        EXPECT_GE(sheet.Place(STATIC_TARGET_TYPE).left, place.left + WidthOf(label) + 4);
    });
}

}  // namespace
