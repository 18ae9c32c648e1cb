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
