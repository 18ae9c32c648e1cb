#include "tests/framework/scrolling_test.h"

namespace {

class ScrollingViews : public FrameworkTest {
  protected:
    Listener listener_;
};

void ExpectBar(const ScrollingView& view, int bar, int minimum, int maximum, int position) {
    const ScrollState state = view.Bar(bar).State();
    EXPECT_EQ(state.range.minimum, minimum);
    EXPECT_EQ(state.range.maximum, maximum);
    EXPECT_EQ(state.position, position);
}

TEST_F(ScrollingViews, have_a_line_of_16_and_a_second_step_of_2_by_default) {
    const ScrolledView view;
    EXPECT_EQ(view.LineStep(), 16);
    EXPECT_EQ(view.SecondStep(), 2);
}

TEST_F(ScrollingViews, take_their_steps_from_the_set) {
    PropertySet properties = PopupProperties();
    properties.Set(1093, 5);
    properties.Set(1067, 7);
    const ScrolledView view(properties);
    EXPECT_EQ(view.LineStep(), 5);
    EXPECT_EQ(view.SecondStep(), 7);
}

TEST_F(ScrollingViews, take_ranges_and_positions_from_the_set) {
    PropertySet properties = PopupProperties();
    properties.Set(1049, 80);
    properties.Set(1050, 10);
    properties.Set(1051, 30);
    properties.Set(1129, 70);
    properties.Set(1130, 20);
    properties.Set(1131, 40);
    const ScrolledView view(properties);
    ExpectBar(view, SB_HORZ, 10, 80, 30);
    ExpectBar(view, SB_VERT, 20, 70, 40);
}

TEST_F(ScrollingViews, keep_the_other_end_of_a_range_of_which_one_is_set) {
    PropertySet maxima = PopupProperties();
    maxima.Set(property::Style, WS_HSCROLL | WS_VSCROLL);
    const ScrolledView plain(maxima);
    const ScrollRange before = plain.Bar(SB_HORZ).Range();
    maxima.Set(1049, 250);
    maxima.Set(1129, 260);
    const ScrolledView wide(maxima);
    ExpectBar(wide, SB_HORZ, before.minimum, 250, 0);
    ExpectBar(wide, SB_VERT, before.minimum, 260, 0);
    PropertySet minima = PopupProperties();
    minima.Set(property::Style, WS_HSCROLL | WS_VSCROLL);
    minima.Set(1050, static_cast<PropertyValue>(-25));
    minima.Set(1130, static_cast<PropertyValue>(-26));
    const ScrolledView low(minima);
    ExpectBar(low, SB_HORZ, -25, before.maximum, 0);
    ExpectBar(low, SB_VERT, -26, before.maximum, 0);
}

TEST_F(ScrollingViews, give_their_class_the_icon_of_the_set) {
    PropertySet properties = PopupProperties();
    properties.SetText(property::ClassName, L"ViewWithIcon");
    const HICON icon = LoadIconW(nullptr, IDI_APPLICATION);
    properties.Set(1136, reinterpret_cast<PropertyValue>(icon));
    const ScrolledView view(properties);
    EXPECT_EQ(reinterpret_cast<HICON>(GetClassLongPtrW(view.Handle(), GCLP_HICON)), icon);
}

TEST_F(ScrollingViews, read_and_write_one_bar_without_touching_the_other) {
    const ScrolledView view;
    SetBar(view, SB_HORZ, {{0, 99}, 10, 50, 0});
    SetBar(view, SB_VERT, {{0, 199}, 20, 60, 0});
    EXPECT_EQ(view.Bar(SB_HORZ).Page(), 10);
    EXPECT_EQ(view.Bar(SB_VERT).Page(), 20);
    view.Bar(SB_VERT).SetPosition(61, false);
    view.Bar(SB_VERT).SetRange({5, 150});
    EXPECT_EQ(view.Bar(SB_VERT).Position(), 61);
    EXPECT_EQ(view.Bar(SB_VERT).Page(), 20);
    ExpectBar(view, SB_HORZ, 0, 99, 50);
    ExpectBar(view, SB_VERT, 5, 150, 61);
}

struct ScrollRow {
    const char* what;
    ScrollState before;
    int request;
    int thumb;
    int position;
    int distance;
};

// The position that the bar ends at, and the old position less that. A bar from 0 to 99 with a page of 10 can
// stand at 0 to 90, one from 10 to 109 with a page of 20 at 10 to 90, one from 0 to 100 without a page at 0
// to 100.
constexpr ScrollRow ScrollRows[] = {
    {"line up", {{0, 99}, 10, 5, 0}, SB_LINEUP, 0, 4, 1},
    {"line up at the start", {{0, 99}, 10, 0, 0}, SB_LINEUP, 0, 0, 0},
    {"line up at a start above 0", {{10, 109}, 20, 10, 0}, SB_LINEUP, 0, 10, 0},
    {"line down", {{0, 99}, 10, 5, 0}, SB_LINEDOWN, 0, 6, -1},
    {"line down at the end", {{0, 99}, 10, 90, 0}, SB_LINEDOWN, 0, 90, 0},
    {"line down behind the last line", {{10, 109}, 20, 90, 0}, SB_LINEDOWN, 0, 80, 10},
    {"line down at the end without a page", {{0, 100}, 0, 100, 0}, SB_LINEDOWN, 0, 100, 0},
    {"page up", {{0, 99}, 10, 20, 0}, SB_PAGEUP, 0, 9, 11},
    {"page up near the start", {{0, 99}, 10, 5, 0}, SB_PAGEUP, 0, 0, 5},
    {"page down", {{0, 99}, 10, 20, 0}, SB_PAGEDOWN, 0, 30, -10},
    {"page down near the end", {{0, 99}, 10, 85, 0}, SB_PAGEDOWN, 0, 90, -5},
    {"released box", {{0, 99}, 10, 20, 0}, SB_THUMBPOSITION, 42, 42, -22},
    {"dragged box", {{0, 99}, 10, 20, 0}, SB_THUMBTRACK, 42, 20, 0},
    {"top", {{0, 99}, 10, 20, 0}, SB_TOP, 0, 0, 20},
    {"top of a range above 0", {{10, 109}, 20, 50, 0}, SB_TOP, 0, 10, 40},
    {"bottom", {{0, 99}, 10, 20, 0}, SB_BOTTOM, 0, 90, -70},
    {"bottom of a range above 0", {{10, 109}, 20, 50, 0}, SB_BOTTOM, 0, 80, -30},
    {"end of scrolling", {{0, 99}, 10, 20, 0}, SB_ENDSCROLL, 42, 20, 0},
    {"an unknown request", {{0, 99}, 10, 20, 0}, 99, 42, 20, 0},
};

void ExpectScrolled(UINT message, int bar, EventCode code) {
    for (const ScrollRow& row : ScrollRows) {
        ScrolledView view;
        Listener listener;
        SetBar(view, bar, row.before);
        view.OnEvent(code, reinterpret_cast<EventSource>(view.Handle()), &listener, &Listener::TakeEvent, 6);
        listener.answer = 12;
        EXPECT_EQ(SendScroll(view.Handle(), message, row.request, row.thumb), 12) << row.what;
        EXPECT_EQ(view.Bar(bar).Position(), row.position) << row.what;
        ASSERT_EQ(listener.events.size(), 1U) << row.what;
        EXPECT_EQ(listener.events[0].argument, row.distance) << row.what;
        EXPECT_EQ(listener.events[0].extra, 6U);
        EXPECT_EQ(listener.events[0].record.message, message);
        EXPECT_EQ(listener.events[0].record.wParam, static_cast<WPARAM>(MAKELONG(row.request, row.thumb)));
        EXPECT_TRUE(view.moves.empty()) << "another handler hides the view's own";
    }
}

TEST_F(ScrollingViews, raise_the_vertical_event_with_the_distance_for_each_request) {
    ExpectScrolled(WM_VSCROLL, SB_VERT, event::VerticalScroll);
}

TEST_F(ScrollingViews, raise_the_horizontal_event_with_the_distance_for_each_request) {
    ExpectScrolled(WM_HSCROLL, SB_HORZ, event::HorizontalScroll);
}

TEST_F(ScrollingViews, answer_the_distance_when_they_are_asked_to_scroll) {
    ScrolledView view;
    SetBar(view, SB_VERT, {{0, 99}, 10, 20, 0});
    EXPECT_EQ(view.Scroll(SB_VERT, {WM_VSCROLL, SB_PAGEUP, 0, 0, 0}), 11);
    EXPECT_EQ(view.Bar(SB_VERT).Position(), 9);
    EXPECT_TRUE(view.moves.empty()) << "only the message moves the content";
}

TEST_F(ScrollingViews, take_their_own_handle_in_a_scroll_message_for_their_own_bar) {
    ScrolledView view;
    SetBar(view, SB_VERT, {{0, 99}, 10, 20, 0});
    SendScroll(view.Handle(), WM_VSCROLL, SB_LINEDOWN, 0, view.Handle());
    EXPECT_EQ(view.Bar(SB_VERT).Position(), 21);
    ASSERT_EQ(view.moves.size(), 1U);
    EXPECT_EQ(view.moves[0].y, -1);
}

class ViewsWithContent : public FrameworkTest {
  protected:
    ViewsWithContent() {
        SetBar(view_, SB_HORZ, {{0, 99}, 10, 20, 0});
        SetBar(view_, SB_VERT, {{0, 299}, 50, 100, 0});
        for (int i = 0; i < 2; ++i) {
            PropertySet place = ChildProperties(i);
            place.SetText(property::ClassName, L"ScrolledChild");
            place.Set(property::Style, WS_CHILD | WS_VISIBLE);
            if (i == 1) place.Set(property::Y, 400);
            children_[i] = std::make_unique<WindowObject>(&view_, L"", place);
        }
        UpdateWindow(view_.Handle());
    }

    void ExpectChildrenAt(LONG x, LONG y) {
        const POINT shown = PlaceInParent(children_[0]->Handle());
        const POINT below = PlaceInParent(children_[1]->Handle());
        EXPECT_EQ(shown.x, x);
        EXPECT_EQ(shown.y, y);
        EXPECT_EQ(below.x, x);
        EXPECT_EQ(below.y, y + 380) << "children out of sight are scrolled as well";
    }

    ScrolledView view_;
    std::unique_ptr<WindowObject> children_[2];
};

TEST_F(ViewsWithContent, move_it_with_its_children_by_one_pixel_a_line) {
    ExpectChildrenAt(10, 20);
    SendScroll(view_.Handle(), WM_VSCROLL, SB_LINEDOWN);
    ExpectChildrenAt(10, 19);
    SendScroll(view_.Handle(), WM_VSCROLL, SB_LINEUP);
    SendScroll(view_.Handle(), WM_VSCROLL, SB_LINEUP);
    ExpectChildrenAt(10, 21);
    SendScroll(view_.Handle(), WM_HSCROLL, SB_LINERIGHT);
    ExpectChildrenAt(9, 21);
    ASSERT_EQ(view_.moves.size(), 4U);
    EXPECT_EQ(view_.moves[3].x, -1);
    EXPECT_EQ(view_.moves[3].y, 0);
}

TEST_F(ViewsWithContent, move_it_by_pages_and_to_the_ends) {
    SendScroll(view_.Handle(), WM_VSCROLL, SB_PAGEUP);
    ExpectChildrenAt(10, 20 + 51);
    SendScroll(view_.Handle(), WM_VSCROLL, SB_TOP);
    ExpectChildrenAt(10, 20 + 100);
    SendScroll(view_.Handle(), WM_HSCROLL, SB_PAGERIGHT);
    ExpectChildrenAt(10 - 10, 120);
}

TEST_F(ViewsWithContent, do_not_move_it_past_the_end_however_often_they_are_asked) {
    for (int step = 0; step < 20; ++step)
        SendScroll(view_.Handle(), WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(view_.Bar(SB_VERT).Position(), 250);
    ExpectChildrenAt(10, 20 - 150);
    SendScroll(view_.Handle(), WM_VSCROLL, SB_LINEDOWN);
    ExpectChildrenAt(10, 20 - 150);
}

TEST_F(ViewsWithContent, erase_and_paint_what_comes_into_sight_at_once) {
    Listener erasures;
    Listener paintings;
    view_.OnMessage(WM_ERASEBKGND, &erasures, &Listener::TakeMessage);
    view_.OnMessage(WM_PAINT, &paintings, &Listener::TakeMessage);
    SendScroll(view_.Handle(), WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_GE(paintings.messages.size(), 1U);
    RECT client{};
    GetClientRect(view_.Handle(), &client);
    RECT open{};
    ASSERT_TRUE(GetUpdateRect(view_.Handle(), &open, FALSE)) << "the listener paints nothing";
    EXPECT_EQ(open.bottom, client.bottom);
    EXPECT_EQ(open.top, client.bottom - 50);
    PAINTSTRUCT paint{};
    BeginPaint(view_.Handle(), &paint);
    EndPaint(view_.Handle(), &paint);
    EXPECT_GE(erasures.messages.size(), 1U);
}

TEST_F(ViewsWithContent, leave_it_while_the_box_is_dragged_until_the_box_is_released) {
    DragVerticalBox(view_, 15, [this] {
        EXPECT_EQ(view_.Bar(SB_VERT).Position(), 100);
        ExpectChildrenAt(10, 20);
    });
    const int position = view_.Bar(SB_VERT).Position();
    EXPECT_GT(position, 100);
    ExpectChildrenAt(10, 20 - (position - 100));
}

TEST_F(ViewsWithContent, move_it_with_the_dragged_box_when_thumb_tracking_is_on) {
    view_.SetThumbTracking(true);
    DragVerticalBox(view_, 15, [this] {
        const int position = view_.Bar(SB_VERT).Position();
        EXPECT_GT(position, 100);
        ExpectChildrenAt(10, 20 - (position - 100));
    });
    ExpectChildrenAt(10, 20 - (view_.Bar(SB_VERT).Position() - 100));
}

TEST_F(ScrollingViews, track_the_box_when_the_set_says_so) {
    PropertySet properties = PopupProperties();
    properties.Set(1030, 1);
    ScrolledView view(properties);
    SetBar(view, SB_VERT, {{0, 99}, 10, 20, 0});
    SendScroll(view.Handle(), WM_VSCROLL, SB_THUMBTRACK, 42);
    EXPECT_EQ(view.Bar(SB_VERT).Position(), 42);
    ASSERT_EQ(view.moves.size(), 1U);
    EXPECT_EQ(view.moves[0].y, -22);
}

// Derived views take the messages over.
class ViewOfItsOwnMind : public ScrolledView {
  public:
    int horizontal = 0;
    int vertical = 0;

  protected:
    LRESULT OnWmHScroll(MessageRecord&) override { return ++horizontal; }
    LRESULT OnWmVScroll(MessageRecord&) override { return ++vertical; }
};

TEST_F(ScrollingViews, can_be_derived_from_to_take_the_messages_over) {
    ViewOfItsOwnMind view;
    SetBar(view, SB_VERT, {{0, 99}, 10, 20, 0});
    EXPECT_EQ(SendScroll(view.Handle(), WM_VSCROLL, SB_LINEDOWN), 1);
    EXPECT_EQ(SendScroll(view.Handle(), WM_HSCROLL, SB_LINEDOWN), 1);
    EXPECT_EQ(view.vertical, 1);
    EXPECT_EQ(view.horizontal, 1);
    EXPECT_EQ(view.Bar(SB_VERT).Position(), 20);
}

}  // namespace
