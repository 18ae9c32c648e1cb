// Where the parts of the main window stand.

#include "tests/app/main_window_test.h"

namespace {

constexpr int TabHeight = 126;
constexpr int BarHeight = 26;

RECT ClientOf(HWND window) {
    RECT client = {};
    GetClientRect(window, &client);
    return client;
}

// In the client area of the parent.
RECT PlaceOf(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void ExpectPlace(const RECT& place, int left, int top, int right, int bottom) {
    EXPECT_EQ(place.left, left);
    EXPECT_EQ(place.top, top);
    EXPECT_EQ(place.right, right);
    EXPECT_EQ(place.bottom, bottom);
}

}  // namespace

class MainWindowLayout : public MainWindowTest {
  protected:
    void SetUp() override { Open(); }
};

TEST_F(MainWindowLayout, the_tab_control_takes_126_pixels_at_the_top) {
    ExpectPlace(PlaceOf(Tab()), 0, 0, ClientOf(Handle()).right, TabHeight);
}

TEST_F(MainWindowLayout, the_list_fills_the_rest_above_the_bar) {
    const RECT client = ClientOf(Handle());
    ExpectPlace(PlaceOf(List()), 0, TabHeight, client.right, client.bottom - BarHeight);
    EXPECT_NE(GetWindowLongW(List(), GWL_STYLE) & WS_TABSTOP, 0);
}

TEST_F(MainWindowLayout, the_bar_stands_at_the_bottom) {
    const RECT client = ClientOf(Handle());
    const RECT bar = PlaceOf(Window().MenuBar()->Handle());
    EXPECT_EQ(bar.bottom, client.bottom);
    EXPECT_EQ(bar.bottom - bar.top, BarHeight);
}

TEST_F(MainWindowLayout, the_three_pages_are_children_of_the_tab_control_and_lie_within_it) {
    const RECT tab = ClientOf(Tab());
    for (int i = 0; i < 3; ++i) {
        ASSERT_NE(Page(i), nullptr);
        EXPECT_EQ(GetParent(Page(i)), Tab());
        const RECT place = PlaceOf(Page(i));
        EXPECT_TRUE(place.left >= 0 && place.top > 0 && place.right <= tab.right &&
                    place.bottom <= tab.bottom);
    }
}

// On the narrowest screen a few pixels may be left: fields are not placed anew for them.
TEST_F(MainWindowLayout, the_fields_of_the_pages_reach_the_right_edge) {
    constexpr LONG Margin = 12;
    const auto expectAtEdge = [this](int page, int id) {
        const LONG edge = ClientOf(Page(page)).right;
        EXPECT_LE(PlaceOf(Item(page, id)).right, edge) << id;
        EXPECT_GT(PlaceOf(Item(page, id)).right, edge - Margin) << id;
    };
    for (const int id : {COMBO_NAME, EDIT_CONTENT, COMBO_LOCATION, BUTTON_BROWSE})
        expectAtEdge(NamePageIndex, id);
    expectAtEdge(SizePageIndex, COMBO_FILE_TYPE);
}

TEST_F(MainWindowLayout, no_control_of_a_page_covers_another_or_hangs_over_its_edge) {
    for (int page = 0; page < 3; ++page) {
        const RECT area = ClientOf(Page(page));
        for (HWND one = GetWindow(Page(page), GW_CHILD); one != nullptr; one = GetWindow(one, GW_HWNDNEXT)) {
            const RECT first = PlaceOf(one);
            EXPECT_TRUE(first.left >= 0 && first.top >= 0 && first.right <= area.right &&
                        first.bottom <= area.bottom)
                << page << ": " << GetDlgCtrlID(one);
            for (HWND other = GetWindow(one, GW_HWNDNEXT); other != nullptr;
                 other = GetWindow(other, GW_HWNDNEXT)) {
                const RECT second = PlaceOf(other);
                RECT common = {};
                IntersectRect(&common, &first, &second);
                // A spin takes its place out of its buddy, of which the frame may reach under it.
                EXPECT_LE(common.right - common.left, GetSystemMetrics(SM_CXEDGE))
                    << page << ": " << GetDlgCtrlID(one) << " and " << GetDlgCtrlID(other);
            }
        }
    }
}

TEST_F(MainWindowLayout, a_widened_field_keeps_text_and_list) {
    EXPECT_EQ(TextOf(NamePageIndex, COMBO_NAME), L"*.log");
    for (const int id : {COMBO_NAME, COMBO_LOCATION}) {
        RECT list = {};
        Send(NamePageIndex, id, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&list));
        const RECT field = PlaceOf(Item(NamePageIndex, id));
        const LRESULT line = Send(NamePageIndex, id, CB_GETITEMHEIGHT);
        EXPECT_EQ(list.right - list.left, field.right - field.left);
        EXPECT_GE(list.bottom - list.top - (field.bottom - field.top), 6 * line);
    }
}

TEST_F(MainWindowLayout, a_resize_moves_neither_tab_control_nor_list) {
    const RECT tab = PlaceOf(Tab());
    const RECT list = PlaceOf(List());
    SetWindowPos(Handle(), nullptr, 0, 0, 200, 260, SWP_NOZORDER);
    PumpQueue();
    ExpectPlace(PlaceOf(Tab()), tab.left, tab.top, tab.right, tab.bottom);
    ExpectPlace(PlaceOf(List()), list.left, list.top, list.right, list.bottom);
}

TEST_F(MainWindowLayout, after_a_resize_the_bar_is_at_the_bottom_again) {
    SetWindowPos(Handle(), nullptr, 0, 0, 200, 260, SWP_NOZORDER);
    PumpQueue();
    EXPECT_EQ(PlaceOf(Window().MenuBar()->Handle()).bottom, ClientOf(Handle()).bottom);
}
