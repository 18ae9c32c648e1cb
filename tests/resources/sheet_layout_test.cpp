// The system's property sheet cut to a handheld's screen, and the program's pages in it, on both screens in
// both languages.

#include <gtest/gtest.h>
#include <windows.h>

#include <optional>
#include <string>

#include <commctrl.h>
#include <prsht.h>

#include "platform/ce_shell.h"
#include "platform/ce_windows.h"
#include "tests/resources/dialog_window.h"
#include "tests/resources/page_window.h"
#include "tests/resources/program_module.h"

namespace {

INT_PTR CALLBACK PageProcedure(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

HPROPSHEETPAGE MakePage(const wchar_t* templateName) {
    PROPSHEETPAGEW page = {};
    page.dwSize = sizeof(page);
    page.dwFlags = PSP_USETITLE | PSP_DLGINDIRECT;
    page.hInstance = GetModuleHandleW(nullptr);
    const HRSRC found = FindResourceW(ProgramModule(), templateName, RT_DIALOG);
    page.pResource = static_cast<const DLGTEMPLATE*>(LockResource(LoadResource(ProgramModule(), found)));
    page.pszTitle = L"General";
    page.pfnDlgProc = PageProcedure;
    return CreatePropertySheetPageW(&page);
}

int CALLBACK CutOnInitialisation(HWND sheet, UINT message, LPARAM) {
    if (message == PSCB_INITIALIZED) ce::FitSheetToScreen(sheet);
    return 0;
}

SIZE SizeOf(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return {place.right - place.left, place.bottom - place.top};
}

struct SheetCase {
    const wchar_t* english;
    const wchar_t* japanese;
    bool inJapanese;
    Screen screen;
};

void PrintTo(const SheetCase& sheet, std::ostream* out) {
    *out << (std::wstring(sheet.english).find(L"General") != std::wstring::npos ? "general_" : "shortcut_")
         << (sheet.inJapanese ? "japanese_on_" : "english_on_")
         << (sheet.screen == Screen::Pocket ? 240 : 640);
}

class SheetLayout : public testing::TestWithParam<SheetCase> {
  protected:
    void SetUp() override {
        const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES};
        InitCommonControlsEx(&classes);
        screenSize_.emplace(ce::systemCalls.getSystemMetrics, MetricsOf(GetParam().screen));
        HPROPSHEETPAGE pages[] = {MakePage(GetParam().inJapanese ? GetParam().japanese : GetParam().english)};
        PROPSHEETHEADERW header = {};
        header.dwSize = sizeof(header);
        header.dwFlags = PSH_MODELESS | PSH_NOAPPLYNOW | PSH_NOCONTEXTHELP | PSH_USECALLBACK;
        header.hInstance = GetModuleHandleW(nullptr);
        header.pszCaption = L"";
        header.nPages = 1;
        header.phpage = pages;
        header.pfnCallback = CutOnInitialisation;
        sheet_ = reinterpret_cast<HWND>(PropertySheetW(&header));
        ASSERT_NE(sheet_, nullptr);
        page_ = reinterpret_cast<HWND>(SendMessageW(sheet_, PSM_GETCURRENTPAGEHWND, 0, 0));
        ASSERT_NE(page_, nullptr);
        room_ = SizeOf(page_);
    }
    void TearDown() override {
        if (sheet_ != nullptr) DestroyWindow(sheet_);
    }

    [[nodiscard]] RECT PlaceOf(HWND child) const {
        RECT place = {};
        GetWindowRect(child, &place);
        MapWindowPoints(nullptr, page_, reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    void ExpectFits(int id, const wchar_t* text) const {
        const HWND control = GetDlgItem(page_, id);
        ASSERT_NE(control, nullptr);
        const RECT place = PlaceOf(control);
        const SIZE needed = TextRoom(control, text, place.right - place.left);
        // The last letter may lean over by a pixel.
        EXPECT_LT(needed.cx, place.right - place.left) << testing::PrintToString(std::wstring(text));
        EXPECT_LE(needed.cy, place.bottom - place.top) << testing::PrintToString(std::wstring(text));
    }

    std::optional<Replaced<int (*)(int)>> screenSize_;
    HWND sheet_ = nullptr;
    HWND page_ = nullptr;
    SIZE room_ = {};
};

TEST_P(SheetLayout, the_sheet_fits_the_screen_with_its_page_and_both_buttons) {
    EXPECT_LE(SizeOf(sheet_).cx, GetParam().screen == Screen::Pocket ? 240 : 640);
    EXPECT_LE(SizeOf(sheet_).cy, GetParam().screen == Screen::Pocket ? 320 : 240);
    RECT client = {};
    GetClientRect(sheet_, &client);
    RECT pagePlace = {};
    GetWindowRect(page_, &pagePlace);
    MapWindowPoints(nullptr, sheet_, reinterpret_cast<POINT*>(&pagePlace), 2);
    EXPECT_LE(pagePlace.right, client.right);
    for (const int id : {IDOK, IDCANCEL}) {
        RECT button = {};
        GetWindowRect(GetDlgItem(sheet_, id), &button);
        MapWindowPoints(nullptr, sheet_, reinterpret_cast<POINT*>(&button), 2);
        EXPECT_GE(button.left, 0);
        EXPECT_LE(button.right, client.right);
        EXPECT_LE(button.bottom, client.bottom);
        EXPECT_GE(button.top, pagePlace.bottom);
    }
}

TEST_P(SheetLayout, the_sheet_covers_the_screen_of_a_pocket_pc_alone) {
    RECT place = {};
    GetWindowRect(sheet_, &place);
    const RECT screen = ce::ScreenArea();
    EXPECT_EQ(EqualRect(&place, &screen) != FALSE, GetParam().screen == Screen::Pocket);
}

TEST_P(SheetLayout, every_control_is_inside_the_page) {
    for (HWND child = GetWindow(page_, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        SCOPED_TRACE(GetDlgCtrlID(child));
        const RECT place = PlaceOf(child);
        EXPECT_GE(place.left, 0);
        EXPECT_GE(place.top, 0);
        EXPECT_LE(place.right, room_.cx);
        EXPECT_LE(place.bottom, room_.cy);
    }
}

TEST_P(SheetLayout, no_control_covers_another) {
    for (HWND one = GetWindow(page_, GW_CHILD); one != nullptr; one = GetWindow(one, GW_HWNDNEXT))
        for (HWND other = GetWindow(one, GW_HWNDNEXT); other != nullptr;
             other = GetWindow(other, GW_HWNDNEXT)) {
            const RECT first = PlaceOf(one);
            const RECT second = PlaceOf(other);
            RECT common = {};
            IntersectRect(&common, &first, &second);
            // Places and sizes in dialog units are rounded one by one.
            EXPECT_TRUE(common.right - common.left <= 1 || common.bottom - common.top <= 1)
                << GetDlgCtrlID(one) << " and " << GetDlgCtrlID(other);
        }
}

TEST_P(SheetLayout, every_label_is_shown_whole) {
    constexpr LONG BoxAndGap = 13 + 4;
    int labels = 0;
    for (HWND child = GetWindow(page_, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        wchar_t buffer[100] = {};
        GetWindowTextW(child, buffer, 100);
        std::wstring text(buffer);
        std::erase(text, L'&');
        if (text.empty()) continue;
        ++labels;
        wchar_t name[20] = {};
        GetClassNameW(child, name, 20);
        const RECT place = PlaceOf(child);
        const LONG width = place.right - place.left - (std::wstring(name) == L"Button" ? BoxAndGap : 0);
        const SIZE needed = TextRoom(child, text, 10000);
        EXPECT_LE(needed.cx, width) << testing::PrintToString(text);
        EXPECT_LE(needed.cy, place.bottom - place.top) << testing::PrintToString(text);
    }
    EXPECT_GE(labels, 4);
}

TEST_P(SheetLayout, the_usual_values_are_shown_whole) {
    const bool general = std::wstring(GetParam().english).find(L"General") != std::wstring::npos;
    ExpectFits(11901, L"Quarterly sales report of the northern branch");
    ExpectFits(11902, GetParam().inJapanese ? L"Microsoft Word 文書" : L"Text Document");
    if (general) ExpectFits(11903, L"\\My Documents\\Business");
    ExpectFits(general ? 11904 : 11905, L"99999KB (102399999 bytes)");
    ExpectFits(general ? 11905 : 11906, L"12/28/2008 12:59:59 PM");
    ExpectFits(general ? 11905 : 11906, L"2008/12/28 23:59:59");
}

constexpr const wchar_t* GeneralEnglish = L"EFilePropGeneralPage_E";
constexpr const wchar_t* GeneralJapanese = L"EFilePropGeneralPage_J";
constexpr const wchar_t* ShortcutEnglish = L"EFilePropShortcutPage_E";
constexpr const wchar_t* ShortcutJapanese = L"EFilePropShortcutPage_J";

INSTANTIATE_TEST_SUITE_P(
    Screens, SheetLayout,
    testing::Values(SheetCase{GeneralEnglish, GeneralJapanese, false, Screen::Pocket},
                    SheetCase{GeneralEnglish, GeneralJapanese, true, Screen::Pocket},
                    SheetCase{ShortcutEnglish, ShortcutJapanese, false, Screen::Pocket},
                    SheetCase{ShortcutEnglish, ShortcutJapanese, true, Screen::Pocket},
                    SheetCase{GeneralEnglish, GeneralJapanese, false, Screen::Handheld},
                    SheetCase{GeneralEnglish, GeneralJapanese, true, Screen::Handheld},
                    SheetCase{ShortcutEnglish, ShortcutJapanese, false, Screen::Handheld},
                    SheetCase{ShortcutEnglish, ShortcutJapanese, true, Screen::Handheld}),
    testing::PrintToStringParamName());

}  // namespace
