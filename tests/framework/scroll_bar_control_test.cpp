#include "tests/framework/scrolling_test.h"

namespace {

constexpr int BarId = 61;

PropertySet BarControlProperties() {
    PropertySet properties = ChildProperties(BarId);
    properties.Set(property::Style, SBS_VERT);
    properties.Set(property::Width, 16);
    properties.Set(property::Height, 100);
    return properties;
}

void SetControl(HWND control, int maximum, int position) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    info.nMax = maximum;
    info.nPos = position;
    SetScrollInfo(control, SB_CTL, &info, TRUE);
}

class ScrollBarControls : public FrameworkTest {
  protected:
    ScrollBarControls() { SetBar(view_, SB_VERT, {{0, 99}, 10, 20, 0}); }

    ScrolledView view_;
    Listener listener_;
};

TEST_F(ScrollBarControls, without_an_object_raise_the_event_with_distance_0_and_stay) {
    const HWND control = ::CreateWindowExW(0, L"ScrollBar", L"", WS_CHILD | WS_VISIBLE | SBS_VERT, 10, 20, 16,
                                           100, view_.Handle(), reinterpret_cast<HMENU>(UINT_PTR{BarId}),
                                           Context().instance, nullptr);
    SetControl(control, 100, 50);
    view_.OnEvent(event::VerticalScroll, reinterpret_cast<EventSource>(control), &listener_,
                  &Listener::TakeEvent);
    SendScroll(view_.Handle(), WM_VSCROLL, SB_LINEDOWN, 0, control);
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].argument, 0);
    EXPECT_EQ(GetScrollPos(control, SB_CTL), 50);
    EXPECT_EQ(view_.Bar(SB_VERT).Position(), 20);
    EXPECT_TRUE(view_.moves.empty());
}

TEST_F(ScrollBarControls, go_by_steps_of_their_own_and_leave_the_view_where_it_is) {
    PropertySet properties = BarControlProperties();
    ScrollBarControl control(&view_, properties);
    control.SetSteps({2, 10});
    SetControl(control.Handle(), 100, 50);
    control.OnNotification(event::VerticalScroll, &listener_, &Listener::TakeEvent);
    struct {
        int request;
        int position;
        int distance;
    } const steps[] = {{SB_LINEUP, 48, 2},     {SB_LINEDOWN, 50, -2}, {SB_PAGEUP, 38, 12},
                       {SB_PAGEDOWN, 50, -12}, {SB_TOP, 0, 50},       {SB_LINEUP, 0, 0},
                       {SB_BOTTOM, 100, -100}, {SB_PAGEDOWN, 100, 0}, {SB_ENDSCROLL, 100, 0}};
    for (const auto& step : steps) {
        SendScroll(view_.Handle(), WM_VSCROLL, step.request, 0, control.Handle());
        EXPECT_EQ(control.Bar().Position(), step.position) << step.request;
        ASSERT_FALSE(listener_.events.empty());
        EXPECT_EQ(listener_.events.back().argument, step.distance) << step.request;
        EXPECT_EQ(listener_.events.back().record.lParam, reinterpret_cast<LPARAM>(control.Handle()));
    }
    EXPECT_EQ(listener_.events.size(), std::size(steps));
    EXPECT_EQ(view_.Bar(SB_VERT).Position(), 20);
    EXPECT_TRUE(view_.moves.empty());
}

// Nothing drags the box, so the position that is tracked is the one that it has, whatever the message says.
TEST_F(ScrollBarControls, take_the_position_of_the_box_from_themselves_and_not_from_the_message) {
    PropertySet properties = BarControlProperties();
    ScrollBarControl control(&view_, properties);
    SetControl(control.Handle(), 100, 50);
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    ASSERT_TRUE(GetScrollInfo(control.Handle(), SB_CTL, &info));
    control.OnNotification(event::VerticalScroll, &listener_, &Listener::TakeEvent);
    for (const int request : {SB_THUMBPOSITION, SB_THUMBTRACK}) {
        SendScroll(view_.Handle(), WM_VSCROLL, request, 33, control.Handle());
        EXPECT_EQ(control.Bar().Position(), info.nTrackPos);
        ASSERT_FALSE(listener_.events.empty());
        EXPECT_EQ(listener_.events.back().argument, 50 - info.nTrackPos);
        SetControl(control.Handle(), 100, 50);
    }
    EXPECT_NE(info.nTrackPos, 33);
}

TEST_F(ScrollBarControls, raise_the_horizontal_event_when_they_lie_across) {
    PropertySet properties = BarControlProperties();
    properties.Set(property::Width, 100);
    properties.Set(property::Height, 16);
    ScrollBarControl control(&view_, properties);
    control.SetSteps({3, 10});
    SetControl(control.Handle(), 100, 50);
    control.OnNotification(event::HorizontalScroll, &listener_, &Listener::TakeEvent);
    SendScroll(view_.Handle(), WM_HSCROLL, SB_LINERIGHT, 0, control.Handle());
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].argument, -3);
    EXPECT_EQ(control.Bar().Position(), 53);
}

TEST_F(ScrollBarControls, that_exist_already_are_wrapped) {
    const HWND existing = ::CreateWindowExW(0, L"ScrollBar", L"", WS_CHILD | WS_VISIBLE | SBS_VERT, 10, 20,
                                            16, 100, view_.Handle(), reinterpret_cast<HMENU>(UINT_PTR{BarId}),
                                            Context().instance, nullptr);
    ScrollBarControl control(&view_, existing);
    control.SetSteps({4, 10});
    SetControl(existing, 100, 50);
    SendScroll(view_.Handle(), WM_VSCROLL, SB_LINEUP, 0, existing);
    EXPECT_EQ(control.Bar().Position(), 46);
}

TEST_F(ScrollBarControls, follow_the_mouse_that_drags_their_box) {
    PropertySet properties = BarControlProperties();
    ScrollBarControl control(&view_, properties);
    SetControl(control.Handle(), 100, 50);
    control.OnNotification(event::VerticalScroll, &listener_, &Listener::TakeEvent);
    SCROLLBARINFO info{};
    info.cbSize = sizeof info;
    ASSERT_TRUE(GetScrollBarInfo(control.Handle(), OBJID_CLIENT, &info));
    const int middle = (info.xyThumbTop + info.xyThumbBottom) / 2;
    const LPARAM moved = MAKELPARAM(8, middle + 12);
    PostMessageW(control.Handle(), WM_MOUSEMOVE, MK_LBUTTON, moved);
    PostMessageW(control.Handle(), WM_LBUTTONUP, 0, moved);
    SendMessageW(control.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, middle));
    EXPECT_GT(control.Bar().Position(), 50);
    std::intptr_t travelled = 0;
    for (const NotedEvent& noted : listener_.events)
        travelled += noted.argument;
    EXPECT_EQ(travelled, 50 - control.Bar().Position());
}

TEST_F(ScrollBarControls, of_another_class_with_an_object_raise_the_event_with_distance_0) {
    PropertySet properties = ChildProperties(BarId);
    Control track(&view_, L"msctls_trackbar32", properties);
    track.OnNotification(event::HorizontalScroll, &listener_, &Listener::TakeEvent);
    SendScroll(view_.Handle(), WM_HSCROLL, SB_LINERIGHT, 0, track.Handle());
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].argument, 0);
}

}  // namespace
