#include "tests/resources/page_window.h"

#include <commctrl.h>

#include "tests/resources/program_module.h"

namespace {

constexpr int TabControlHeight = 126;

// What the desktop puts around a window on both sides together; a device's window has nothing there.
constexpr int FrameWidth = 6;

INT_PTR CALLBACK DialogProcedure(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

}  // namespace

void PrintTo(const PageCase& page, std::ostream* out) {
    for (const wchar_t* letter = page.templateName; *letter != 0; ++letter)
        *out << static_cast<char>(*letter);
    *out << "_on_" << page.screenWidth;
}

std::vector<PageCase> OnBothScreens(const std::vector<PageCase>& pages) {
    std::vector<PageCase> cases;
    for (const int width : {PocketScreen, HandheldScreen})
        for (PageCase page : pages) {
            page.screenWidth = width;
            cases.push_back(page);
        }
    return cases;
}

HWND MakeDialog(const wchar_t* templateName, HWND parent) {
    const HRSRC found = FindResourceW(ProgramModule(), templateName, RT_DIALOG);
    if (found == nullptr) return nullptr;
    const HGLOBAL loaded = LoadResource(ProgramModule(), found);
    return CreateDialogIndirectParamW(GetModuleHandleW(nullptr),
                                      static_cast<const DLGTEMPLATE*>(LockResource(loaded)), parent,
                                      DialogProcedure, 0);
}

void PageWindow::SetUpTestSuite() {
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES | ICC_DATE_CLASSES};
    InitCommonControlsEx(&classes);
}

void PageWindow::SetUp() {
    frame_ = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, GetParam().screenWidth, 294, nullptr, nullptr,
                             nullptr, nullptr);
    ASSERT_NE(frame_, nullptr);
    tabs_ = CreateWindowExW(0, WC_TABCONTROLW, L"", WS_CHILD | WS_VISIBLE, 0, 0,
                            GetParam().screenWidth - FrameWidth, TabControlHeight, frame_, nullptr, nullptr,
                            nullptr);
    ASSERT_NE(tabs_, nullptr);
    const bool japanese = GetParam().japanese;
    AppendTab(japanese ? L"名前と場所" : L"Name");
    AppendTab(japanese ? L"日付" : L"Date");
    AppendTab(japanese ? L"その他" : L"Etc");
    MakePage();
}

void PageWindow::TearDown() {
    if (frame_ != nullptr) DestroyWindow(frame_);
}

void PageWindow::AppendTab(const wchar_t* caption) {
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<wchar_t*>(caption);
    SendMessageW(tabs_, TCM_INSERTITEMW, static_cast<WPARAM>(TabCtrl_GetItemCount(tabs_)),
                 reinterpret_cast<LPARAM>(&item));
}

void PageWindow::MakePage() {
    RECT display = {};
    GetClientRect(tabs_, &display);
    SendMessageW(tabs_, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&display));
    page_ = MakeDialog(GetParam().templateName, tabs_);
    ASSERT_NE(page_, nullptr);
    MoveWindow(page_, display.left, display.top, display.right - display.left, display.bottom - display.top,
               FALSE);
    for (HWND child = GetWindow(page_, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        children_.push_back(Describe(child));
    ASSERT_FALSE(children_.empty());
}

ChildWindow PageWindow::Describe(HWND child) const {
    wchar_t name[64] = {};
    GetClassNameW(child, name, 64);
    wchar_t text[MAX_PATH] = {};
    GetWindowTextW(child, text, MAX_PATH);
    ChildWindow described = {child, name, text, {}};
    std::erase(described.text, L'&');
    GetWindowRect(child, &described.rectangle);
    MapWindowPoints(nullptr, page_, reinterpret_cast<POINT*>(&described.rectangle), 2);
    return described;
}

SIZE PageWindow::Measure(const std::wstring& text) const {
    const HDC context = GetDC(page_);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(page_, WM_GETFONT, 0, 0));
    const HGDIOBJ before = SelectObject(context, font);
    SIZE size = {};
    GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(context, before);
    ReleaseDC(page_, context);
    return size;
}

void PageWindow::ExpectFits(const std::wstring& text, LONG width, LONG height) const {
    const SIZE needed = Measure(text);
    EXPECT_LE(needed.cx, width) << testing::PrintToString(text);
    EXPECT_LE(needed.cy, height) << testing::PrintToString(text);
}
