#include "framework/bars.h"

#include "framework/application_view.h"
#include "tests/framework/dialog_ids.h"
#include "tests/framework/framework_test.h"
#include "tests/framework/scrolling_test.h"

namespace {

constexpr LONG MenuBarSpace = 26;
constexpr UINT ButtonCommand = 40100;

class BarView : public ApplicationView {
  public:
    explicit BarView(PropertySet properties) : ApplicationView(nullptr, L"Bars", properties, nullptr) {}
};

// As large as the screen, without a frame.
PropertySet BarViewProperties() {
    PropertySet properties;
    properties.Set(property::X, 0);
    properties.Set(property::Y, 0);
    properties.Set(property::Width, static_cast<PropertyValue>(GetSystemMetrics(SM_CXSCREEN)));
    properties.Set(property::Height, static_cast<PropertyValue>(GetSystemMetrics(SM_CYSCREEN)));
    properties.Set(property::Style, WS_POPUP);
    return properties;
}

PropertySet WithRebar() {
    PropertySet properties = BarViewProperties();
    properties.Set(1021, 1);
    return properties;
}

PropertySet WithStatusBar() {
    PropertySet properties = BarViewProperties();
    properties.Set(1022, 1);
    return properties;
}

RECT PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void ExpectPlace(HWND window, LONG left, LONG top, LONG width, LONG height) {
    const RECT place = PlaceOf(window);
    EXPECT_EQ(place.left, left);
    EXPECT_EQ(place.top, top);
    EXPECT_EQ(place.right - place.left, width);
    EXPECT_EQ(place.bottom - place.top, height);
}

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return name;
}

DWORD StyleOf(HWND window) {
    return static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
}

class Bars : public FrameworkTest {
  protected:
    LONG width_ = GetSystemMetrics(SM_CXSCREEN);
    LONG height_ = GetSystemMetrics(SM_CYSCREEN);
};

TEST_F(Bars, are_only_there_when_asked_for) {
    const BarView view(BarViewProperties());
    EXPECT_EQ(view.ViewRebar(), nullptr);
    EXPECT_EQ(view.ViewStatusBar(), nullptr);
    EXPECT_EQ(view.CommandBar(), nullptr);
    EXPECT_EQ(GetWindow(view.Handle(), GW_CHILD), nullptr);
}

TEST_F(Bars, a_command_bar_stands_in_the_rebar_and_takes_buttons) {
    const BarView view(WithRebar());
    ASSERT_NE(view.ViewRebar(), nullptr);
    ASSERT_NE(view.CommandBar(), nullptr);
    const HWND bar = view.CommandBar()->Handle();
    EXPECT_EQ(ClassOf(bar), L"ToolbarWindow32");
    EXPECT_EQ(GetParent(bar), view.ViewRebar()->Handle());
    EXPECT_EQ(GetDlgCtrlID(bar), 12300);
    EXPECT_EQ(StyleOf(bar) & 0x6001945U, 0x6001945U);
    TBBUTTON buttons[] = {{0, ButtonCommand, TBSTATE_ENABLED, BTNS_BUTTON, {}, 0, -1},
                          {1, ButtonCommand + 1, TBSTATE_ENABLED, BTNS_BUTTON, {}, 0, -1}};
    EXPECT_TRUE(SendMessageW(bar, TB_ADDBUTTONSW, 2, reinterpret_cast<LPARAM>(buttons)));
    TBBUTTON second{};
    ASSERT_TRUE(SendMessageW(bar, TB_GETBUTTON, 1, reinterpret_cast<LPARAM>(&second)));
    EXPECT_EQ(second.idCommand, static_cast<int>(ButtonCommand + 1));
}

TEST_F(Bars, a_command_bar_in_a_rebar_goes_before_the_menu_bar) {
    PropertySet properties = WithRebar();
    properties.Set(property::MenuBar, VIEW_MENU_BAR);
    const BarView view(properties);
    ASSERT_NE(view.MenuBar(), nullptr);
    EXPECT_NE(view.CommandBar(), view.MenuBar());
    EXPECT_EQ(ClassOf(view.CommandBar()->Handle()), L"ToolbarWindow32");
}

TEST_F(Bars, a_command_bar_raises_its_buttons_commands_on_the_view) {
    BarView view(WithRebar());
    Listener listener;
    view.OnCommand(ButtonCommand, &listener, &Listener::TakeEvent, 8);
    const HWND bar = view.CommandBar()->Handle();
    TBBUTTON button{0, ButtonCommand, TBSTATE_ENABLED, BTNS_BUTTON, {}, 0, -1};
    SendMessageW(bar, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
    RECT place{};
    ASSERT_TRUE(SendMessageW(bar, TB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&place)));
    const LPARAM middle = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    SendMessageW(bar, WM_LBUTTONUP, 0, middle);
    ASSERT_EQ(listener.events.size(), 1U);
    EXPECT_EQ(listener.events[0].extra, 8U);
    EXPECT_EQ(listener.events[0].record.lParam, reinterpret_cast<LPARAM>(bar));
}

TEST_F(Bars, a_rebar_is_made_as_wide_as_its_owner_at_188) {
    TestWindow owner;
    const BarView makesTheClassKnown(BarViewProperties());
    const Rebar rebar(owner);
    const RECT place = PlaceOf(rebar.Handle());
    EXPECT_EQ(place.left, 0);
    EXPECT_EQ(place.top, 188);
    EXPECT_EQ(place.right, 200);
}

TEST_F(Bars, a_rebar_stands_at_the_bottom_26_pixels_above_the_edge) {
    const BarView view(WithRebar());
    const HWND rebar = view.ViewRebar()->Handle();
    EXPECT_EQ(ClassOf(rebar), L"ReBarWindow32");
    EXPECT_EQ(GetDlgCtrlID(rebar), 12200);
    EXPECT_EQ(StyleOf(rebar) & 0x6000649U, 0x6000649U);
    EXPECT_EQ(PlaceOf(rebar).left, 0);
    EXPECT_EQ(PlaceOf(rebar).right, width_);
    EXPECT_EQ(PlaceOf(rebar).bottom, height_ - MenuBarSpace);
    EXPECT_GE(view.ViewRebar()->BarHeight(), 22);
}

TEST_F(Bars, a_rebar_stands_at_the_top_when_asked) {
    BarView view(WithRebar());
    const RECT before = PlaceOf(view.ViewRebar()->Handle());
    view.ViewRebar()->Place(true);
    ExpectPlace(view.ViewRebar()->Handle(), 0, 0, before.right - before.left, before.bottom - before.top);
    const RECT area = view.LayoutRectangle();
    EXPECT_EQ(area.top, view.ViewRebar()->BarHeight());
    EXPECT_EQ(area.bottom, height_ - MenuBarSpace);
}

TEST_F(Bars, the_command_bar_s_band_is_two_pixels_larger_than_the_bar) {
    const BarView view(WithRebar());
    const HWND rebar = view.ViewRebar()->Handle();
    EXPECT_EQ(SendMessageW(rebar, RB_GETBANDCOUNT, 0, 0), 1);
    REBARBANDINFOW band{};
    band.cbSize = sizeof band;
    band.fMask = RBBIM_ID | RBBIM_CHILDSIZE | RBBIM_CHILD | RBBIM_STYLE;
    ASSERT_TRUE(SendMessageW(rebar, RB_GETBANDINFOW, 0, reinterpret_cast<LPARAM>(&band)));
    EXPECT_EQ(band.cxMinChild, 102U);
    EXPECT_EQ(band.cyMinChild, 24U);
    EXPECT_EQ(band.fStyle & 16U, 16U);
    EXPECT_EQ(band.hwndChild, view.CommandBar()->Handle());
    EXPECT_EQ(band.wID, 0U);
}

TEST_F(Bars, bands_are_counted_from_0_and_the_rebar_is_made_for_the_first) {
    BarView view(BarViewProperties());
    REBARBANDINFOW band{};
    band.cbSize = sizeof band;
    band.fMask = RBBIM_ID | RBBIM_STYLE | RBBIM_CHILDSIZE;
    band.cyMinChild = 20;
    EXPECT_EQ(view.AddBand(band), 0);
    ASSERT_NE(view.ViewRebar(), nullptr);
    EXPECT_EQ(PlaceOf(view.ViewRebar()->Handle()).bottom, height_ - MenuBarSpace);
    EXPECT_EQ(view.AddBand(band), 1);
    REBARBANDINFOW refused = band;
    refused.cbSize = 1;
    EXPECT_EQ(view.AddBand(refused), -1);
    EXPECT_EQ(view.AddBand(band), 2);
    EXPECT_EQ(SendMessageW(view.ViewRebar()->Handle(), RB_GETBANDCOUNT, 0, 0), 3);
}

TEST_F(Bars, a_status_bar_stands_at_248_and_is_240_by_20) {
    const BarView view(WithStatusBar());
    ASSERT_NE(view.ViewStatusBar(), nullptr);
    const HWND bar = view.ViewStatusBar()->Handle();
    EXPECT_EQ(ClassOf(bar), L"msctls_statusbar32");
    EXPECT_EQ(GetParent(bar), view.Handle());
    ExpectPlace(bar, 0, 248, 240, 20);
}

TEST_F(Bars, a_status_bar_stands_at_224_when_there_is_a_rebar) {
    PropertySet properties = WithStatusBar();
    properties.Set(1021, 1);
    const BarView view(properties);
    ExpectPlace(view.ViewStatusBar()->Handle(), 0, 224, 240, 20);
}

TEST_F(Bars, a_status_bar_shows_its_text_in_the_first_part_without_a_border) {
    BarView view(WithStatusBar());
    view.ViewStatusBar()->SetText(L"12 found 件");
    const HWND bar = view.ViewStatusBar()->Handle();
    wchar_t text[32] = L"";
    const LRESULT told = SendMessageW(bar, SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text));
    EXPECT_EQ(std::wstring(text), L"12 found 件");
    EXPECT_EQ(LOWORD(told), 10);
    EXPECT_EQ(HIWORD(told), 0x100);
}

TEST_F(Bars, a_new_size_is_passed_on_to_the_status_bar_unchanged) {
    BarView view(WithStatusBar());
    Listener listener;
    view.ViewStatusBar()->Subclass();
    view.ViewStatusBar()->OnMessage(WM_SIZE, &listener, &Listener::TakeMessage);
    SendMessageW(view.Handle(), WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(201, 99));
    ASSERT_EQ(listener.messages.size(), 1U);
    EXPECT_EQ(listener.messages[0].wParam, static_cast<WPARAM>(SIZE_MAXIMIZED));
    EXPECT_EQ(listener.messages[0].lParam, MAKELPARAM(201, 99));
}

TEST_F(Bars, take_their_heights_from_the_area_for_children) {
    PropertySet properties = WithStatusBar();
    properties.Set(1021, 1);
    const BarView view(properties);
    const LONG rebarHeight = view.ViewRebar()->BarHeight();
    ASSERT_GT(rebarHeight, 0);
    RECT area = view.LayoutRectangle();
    EXPECT_EQ(area.left, 0);
    EXPECT_EQ(area.top, 0);
    EXPECT_EQ(area.right, width_);
    EXPECT_EQ(area.bottom, height_ - 20 - rebarHeight - MenuBarSpace);
    ShowWindow(view.ViewStatusBar()->Handle(), SW_HIDE);
    area = view.LayoutRectangle();
    EXPECT_EQ(area.bottom, height_ - rebarHeight - MenuBarSpace) << "a hidden bar takes no place";
    ShowWindow(view.ViewRebar()->Handle(), SW_HIDE);
    area = view.LayoutRectangle();
    EXPECT_EQ(area.bottom, height_ - MenuBarSpace);
}

TEST_F(Bars, take_their_heights_from_a_view_that_is_not_shown_yet) {
    PropertySet properties = WithStatusBar();
    properties.Set(1021, 1);
    const BarView view(properties);
    const RECT shown = view.LayoutRectangle();
    ShowWindow(view.Handle(), SW_HIDE);
    const RECT hidden = view.LayoutRectangle();
    EXPECT_TRUE(EqualRect(&shown, &hidden));
}

TEST_F(Bars, stay_where_they_are_when_the_content_is_scrolled) {
    PropertySet properties = WithStatusBar();
    properties.Set(1021, 1);
    properties.Set(property::MenuBar, VIEW_MENU_BAR);
    BarView view(properties);
    PropertySet place = ChildProperties(5);
    place.SetText(property::ClassName, L"ScrolledChild");
    place.Set(property::Style, WS_CHILD | WS_VISIBLE);
    const WindowObject child(&view, L"", place);
    view.SetContentSize(0, 1000);
    view.Reclamp();
    const HWND bars[] = {view.MenuBar()->Handle(), view.ViewRebar()->Handle(),
                         view.ViewStatusBar()->Handle()};
    std::vector<RECT> before;
    for (const HWND bar : bars)
        before.push_back(PlaceOf(bar));
    SendScroll(view.Handle(), WM_VSCROLL, SB_THUMBPOSITION, 15);
    EXPECT_EQ(PlaceInParent(child.Handle()).y, 20 - 15);
    for (std::size_t i = 0; i < before.size(); ++i) {
        const RECT after = PlaceOf(bars[i]);
        EXPECT_TRUE(EqualRect(&before[i], &after)) << "bar " << i;
    }
}

}  // namespace
