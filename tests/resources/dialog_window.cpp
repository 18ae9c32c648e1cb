#include "tests/resources/dialog_window.h"

#include <commctrl.h>

#include "platform/ce_shell.h"
#include "tests/resources/page_window.h"
#include "tests/resources/program_module.h"

namespace {

constexpr LONG BarHeight = 26;
// Places and sizes in dialog units are rounded one by one.
constexpr LONG Rounding = 1;

constexpr SIZE Sizes[] = {{240, 320}, {640, 240}, {320, 240}, {240, 240}, {480, 640}, {800, 600}};

template <Screen screen>
int Metrics(int index) {
    if (index == SM_CXSCREEN) return SizeOfScreen(screen).cx;
    if (index == SM_CYSCREEN) return SizeOfScreen(screen).cy;
    return GetSystemMetrics(index);
}

bool IsIcon(HWND control) {
    return (GetWindowLongPtrW(control, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
}

bool IsGroupBox(const DialogControl& control) {
    return control.className == L"Button" &&
           (GetWindowLongPtrW(control.window, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

bool IsText(const DialogControl& control) {
    return control.className == L"Static" && !IsIcon(control.window);
}

}  // namespace

SIZE SizeOfScreen(Screen screen) {
    return Sizes[static_cast<std::size_t>(screen)];
}

int (*MetricsOf(Screen screen))(int index) {
    constexpr int (*metrics[])(int) = {Metrics<Screen::Pocket>, Metrics<Screen::Handheld>,
                                       Metrics<Screen::Low>,    Metrics<Screen::Square>,
                                       Metrics<Screen::Tall>,   Metrics<Screen::Desktop>};
    return metrics[static_cast<std::size_t>(screen)];
}

SIZE TextRoom(HWND control, const std::wstring& text, LONG width) {
    const HDC context = GetDC(control);
    const HGDIOBJ before =
        SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    RECT area = {0, 0, width, 0};
    const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
    const UINT lines = style & SS_ELLIPSISMASK ? DT_SINGLELINE : DT_WORDBREAK | DT_EDITCONTROL;
    DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &area, DT_CALCRECT | DT_NOPREFIX | lines);
    SelectObject(context, before);
    ReleaseDC(control, context);
    return {area.right, area.bottom};
}

DialogWindow::DialogWindow(const wchar_t* templateName, Screen screen, UiLanguage language)
    : contextBefore_(Context()) {
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES};
    InitCommonControlsEx(&classes);
    screenSize_.emplace(ce::systemCalls.getSystemMetrics, MetricsOf(screen));
    ContextForStartUp().instance = ProgramModule();
    ContextForStartUp().uiLanguage = language;
    dialog_ = MakeDialog(templateName, nullptr);
    EXPECT_NE(dialog_, nullptr);
}

DialogWindow::~DialogWindow() {
    if (dialog_ != nullptr) DestroyWindow(dialog_);
    ContextForStartUp() = contextBefore_;
}

std::wstring DialogWindow::TextOf(int id) const {
    wchar_t text[1024] = {};
    GetDlgItemTextW(dialog_, id, text, 1024);
    return text;
}

void DialogWindow::SetUpByShell() {
    const ce::DialogInitInfo info = {1, dialog_, ce::DialogDoneButton | ce::DialogSizeFullScreen};
    ASSERT_TRUE(ce::SHInitDialog(&info));
    ce::MenuBarInfo bar = {};
    bar.cbSize = sizeof(bar);
    bar.hwndParent = dialog_;
    bar.nToolBarId = 28701;
    bar.hInstRes = ProgramModule();
    ASSERT_TRUE(ce::SHCreateMenuBar(&bar));
}

LONG DialogWindow::RoomAboveBar() const {
    RECT client = {};
    GetClientRect(dialog_, &client);
    return client.bottom - BarHeight;
}

std::vector<DialogControl> DialogWindow::Controls() const {
    std::vector<DialogControl> controls;
    for (HWND child = GetWindow(dialog_, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        RECT place = {};
        GetWindowRect(child, &place);
        MapWindowPoints(nullptr, dialog_, reinterpret_cast<POINT*>(&place), 2);
        // The menu bar itself.
        if (place.top >= RoomAboveBar()) continue;
        wchar_t name[64] = {};
        GetClassNameW(child, name, 64);
        wchar_t text[1024] = {};
        GetWindowTextW(child, text, 1024);
        DialogControl control = {child, GetDlgCtrlID(child), name, text, place};
        if (control.className == L"Button") std::erase(control.text, L'&');
        controls.push_back(control);
    }
    EXPECT_FALSE(controls.empty());
    return controls;
}

RECT DialogWindow::VisiblePart(const DialogControl& control) const {
    if (!IsText(control)) return control.place;
    const SIZE room = TextRoom(control.window, control.text, control.place.right - control.place.left);
    return {control.place.left, control.place.top, control.place.left + room.cx, control.place.top + room.cy};
}

void DialogWindow::ExpectOnScreen() const {
    RECT window = {};
    GetWindowRect(dialog_, &window);
    EXPECT_LE(window.right - window.left, ce::GetSystemMetrics(SM_CXSCREEN));
    EXPECT_LE(window.bottom - window.top, ce::GetSystemMetrics(SM_CYSCREEN));
}

void DialogWindow::ExpectControlsInside() const {
    RECT client = {};
    GetClientRect(dialog_, &client);
    for (const DialogControl& control : Controls()) {
        SCOPED_TRACE(testing::PrintToString(control.className + L" " + control.text));
        const RECT part = VisiblePart(control);
        EXPECT_GE(part.left, 0);
        EXPECT_GE(part.top, 0);
        EXPECT_LE(part.right, client.right);
        EXPECT_LE(part.bottom, RoomAboveBar());
    }
}

void DialogWindow::ExpectTextsWhole() const {
    constexpr LONG BoxAndGap = 13 + 4;
    constexpr LONG ButtonBorders = 2 * 4;
    int texts = 0;
    for (const DialogControl& control : Controls()) {
        if (control.text.empty() || (!IsText(control) && control.className != L"Button")) continue;
        ++texts;
        SCOPED_TRACE(testing::PrintToString(control.text));
        LONG width = control.place.right - control.place.left;
        const LONG height = control.place.bottom - control.place.top;
        if (IsText(control)) {
            const SIZE room = TextRoom(control.window, control.text, width);
            EXPECT_LE(room.cx, width);
            EXPECT_LE(room.cy, height);
            continue;
        }
        const LONG_PTR kind = GetWindowLongPtrW(control.window, GWL_STYLE) & BS_TYPEMASK;
        width -= kind == BS_AUTOCHECKBOX || kind == BS_GROUPBOX ? BoxAndGap : ButtonBorders;
        const SIZE room = TextRoom(control.window, control.text, 10000);
        EXPECT_LE(room.cx, width);
        EXPECT_LE(room.cy, height);
    }
    EXPECT_GE(texts, 1);
}

void DialogWindow::ExpectNothingCovered() const {
    const std::vector<DialogControl> controls = Controls();
    for (std::size_t first = 0; first < controls.size(); ++first)
        for (std::size_t second = first + 1; second < controls.size(); ++second) {
            if (IsGroupBox(controls[first]) || IsGroupBox(controls[second])) continue;
            SCOPED_TRACE(testing::PrintToString(controls[first].className + L" " + controls[first].text) +
                         " and " +
                         testing::PrintToString(controls[second].className + L" " + controls[second].text));
            const RECT one = VisiblePart(controls[first]);
            const RECT other = VisiblePart(controls[second]);
            RECT common = {};
            IntersectRect(&common, &one, &other);
            EXPECT_TRUE(common.right - common.left <= Rounding || common.bottom - common.top <= Rounding);
        }
}
