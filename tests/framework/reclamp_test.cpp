#include "framework/application_view.h"
#include "tests/framework/scrolling_test.h"

namespace {

constexpr int MenuBarSpace = 26;

int AcrossBar() {
    return GetSystemMetrics(SM_CYHSCROLL);
}

int DownBar() {
    return GetSystemMetrics(SM_CXVSCROLL);
}

bool HasBar(const ScrollingView& view, LONG style) {
    return (GetWindowLongW(view.Handle(), GWL_STYLE) & style) != 0;
}

SIZE ClientSize(const ScrollingView& view) {
    RECT client{};
    GetClientRect(view.Handle(), &client);
    return {client.right, client.bottom};
}

class Reclamping : public FrameworkTest {
  protected:
    ScrolledView view_;
};

TEST_F(Reclamping, without_content_leaves_no_usable_range) {
    SetBar(view_, SB_HORZ, {{0, 99}, 10, 20, 0});
    SetBar(view_, SB_VERT, {{0, 99}, 10, 20, 0});
    ASSERT_LT(ClientSize(view_).cx, 200) << "the bars are there";
    view_.Reclamp();
    EXPECT_EQ(view_.Bar(SB_HORZ).Range().minimum, 0);
    EXPECT_EQ(view_.Bar(SB_HORZ).Range().maximum, 0);
    EXPECT_EQ(view_.Bar(SB_HORZ).Position(), 0);
    EXPECT_LE(view_.Bar(SB_VERT).Range().maximum, 0);
    EXPECT_EQ(view_.Bar(SB_VERT).Position(), 0);
    EXPECT_FALSE(HasBar(view_, WS_HSCROLL));
    EXPECT_FALSE(HasBar(view_, WS_VSCROLL));
    EXPECT_EQ(ClientSize(view_).cx, 200);
    EXPECT_EQ(ClientSize(view_).cy, 150);
}

TEST_F(Reclamping, gives_the_bars_what_the_content_has_beyond_the_area) {
    view_.SetContentSize(300, 400);
    view_.Reclamp();
    EXPECT_TRUE(HasBar(view_, WS_HSCROLL));
    EXPECT_TRUE(HasBar(view_, WS_VSCROLL));
    EXPECT_EQ(ClientSize(view_).cx, 200 - DownBar());
    EXPECT_EQ(ClientSize(view_).cy, 150 - AcrossBar());
    EXPECT_EQ(view_.Bar(SB_HORZ).Range().maximum, 300 - (200 - DownBar()));
    EXPECT_EQ(view_.Bar(SB_VERT).Range().maximum, 400 - (150 - AcrossBar()));
}

// As wide as the view, until the other bar takes a part of it.
TEST_F(Reclamping, counts_with_the_bar_that_it_has_just_brought) {
    view_.SetContentSize(200, 400);
    view_.Reclamp();
    EXPECT_EQ(view_.Bar(SB_HORZ).Range().maximum, DownBar());
    EXPECT_EQ(view_.Bar(SB_VERT).Range().maximum, 400 - (150 - AcrossBar()));
}

TEST_F(Reclamping, counts_without_the_bar_that_it_has_just_taken_away) {
    view_.SetContentSize(200, 400);
    view_.Reclamp();
    view_.SetContentSize(200, 100);
    view_.Reclamp();
    EXPECT_FALSE(HasBar(view_, WS_VSCROLL));
    EXPECT_FALSE(HasBar(view_, WS_HSCROLL));
    EXPECT_EQ(view_.Bar(SB_HORZ).Range().maximum, 0);
}

// Each bar takes just the place for which the other is needed.
TEST_F(Reclamping, leaves_two_bars_that_need_each_other) {
    view_.SetContentSize(300, 400);
    view_.Reclamp();
    view_.SetContentSize(200, 150);
    view_.Reclamp();
    EXPECT_EQ(view_.Bar(SB_HORZ).Range().maximum, DownBar());
    EXPECT_EQ(view_.Bar(SB_VERT).Range().maximum, AcrossBar());
}

TEST_F(Reclamping, keeps_a_position_that_the_new_range_still_has) {
    view_.SetContentSize(0, 400);
    view_.Reclamp();
    view_.Bar(SB_VERT).SetPosition(200);
    view_.SetContentSize(0, 380);
    view_.Reclamp();
    EXPECT_EQ(view_.Bar(SB_VERT).Range().maximum, 380 - 150);
    EXPECT_EQ(view_.Bar(SB_VERT).Position(), 200);
    view_.SetContentSize(0, 250);
    view_.Reclamp();
    EXPECT_EQ(view_.Bar(SB_VERT).Position(), 100) << "the nearest that it has";
}

class SizedView : public ApplicationView {
  public:
    explicit SizedView(PropertySet properties) : ApplicationView(nullptr, L"Sized", properties, nullptr) {}
};

PropertySet SizedProperties() {
    PropertySet properties;
    properties.Set(property::X, 0);
    properties.Set(property::Y, 0);
    properties.Set(property::Width, 200);
    properties.Set(property::Height, 180);
    properties.Set(property::Style, WS_POPUP);
    return properties;
}

TEST_F(Reclamping, follows_a_new_size_of_a_top_level_view) {
    SizedView sized(SizedProperties());
    sized.SetContentSize(300, 400);
    sized.Move(0, 0, 190, 170);
    EXPECT_EQ(sized.Bar(SB_HORZ).Range().maximum, 300 - (190 - DownBar()));
    EXPECT_EQ(sized.Bar(SB_VERT).Range().maximum, 400 - (170 - AcrossBar() - MenuBarSpace));
    sized.Move(0, 0, 180, 160);
    EXPECT_EQ(sized.Bar(SB_HORZ).Range().maximum, 300 - (180 - DownBar()));
    EXPECT_EQ(sized.Bar(SB_VERT).Range().maximum, 400 - (160 - AcrossBar() - MenuBarSpace));
}

TEST_F(Reclamping, brings_no_bar_to_a_top_level_view_without_content) {
    SizedView sized(SizedProperties());
    sized.Move(0, 0, 190, 170);
    EXPECT_FALSE(HasBar(sized, WS_HSCROLL));
    EXPECT_FALSE(HasBar(sized, WS_VSCROLL));
    EXPECT_EQ(sized.Bar(SB_HORZ).Range().maximum, 0);
    EXPECT_EQ(ClientSize(sized).cx, 190);
    EXPECT_EQ(ClientSize(sized).cy, 170);
}

TEST_F(Reclamping, brings_no_bar_to_a_top_level_view_that_is_lower_than_its_menu_bar) {
    SizedView sized(SizedProperties());
    sized.Move(0, 0, 190, MenuBarSpace - 1);
    EXPECT_FALSE(HasBar(sized, WS_VSCROLL));
    EXPECT_EQ(sized.LayoutRectangle().bottom, 0);
}

}  // namespace
