#include "framework/scroll_arithmetic.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using enum ScrollRequest;

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();
constexpr auto EndScroll = static_cast<ScrollRequest>(8);
constexpr auto Unknown = static_cast<ScrollRequest>(0xFFFF);

struct ViewRow {
    ScrollRange range;
    int page;
    int position;
    ScrollRequest request;
    int expected;
};

// From 0 to 99 with a page of 10, the last position is 99 - 0 - 10 + 1 = 90; from 10 to 109 with a page of
// 20 it is 109 - 10 - 20 + 1 = 80; from 0 to 100 without a page it is 101; from 0 to 5 with a page of 10 it
// is -4.
constexpr ViewRow ViewRows[] = {
    {{0, 99}, 10, 5, LineUp, 4},       {{0, 99}, 10, 1, LineUp, 0},       {{0, 99}, 10, 0, LineUp, 0},
    {{10, 109}, 20, 10, LineUp, 9},    {{-50, 50}, 10, -20, LineUp, 0},   {{0, 99}, 10, 0, LineDown, 1},
    {{0, 99}, 10, 89, LineDown, 90},   {{0, 99}, 10, 90, LineDown, 90},   {{0, 99}, 10, 95, LineDown, 90},
    {{10, 109}, 20, 79, LineDown, 80}, {{10, 109}, 20, 80, LineDown, 80}, {{10, 109}, 20, 90, LineDown, 80},
    {{0, 100}, 0, 100, LineDown, 101}, {{0, 100}, 1, 100, LineDown, 100}, {{0, 5}, 10, 0, LineDown, -4},
    {{0, 0}, 0, 0, LineDown, 1},       {{0, 99}, 10, 20, PageUp, 9},      {{0, 99}, 10, 12, PageUp, 1},
    {{0, 99}, 10, 11, PageUp, 0},      {{0, 99}, 10, 10, PageUp, 0},      {{0, 99}, 10, 5, PageUp, 0},
    {{0, 99}, 0, 5, PageUp, 4},        {{10, 109}, 20, 30, PageUp, 9},    {{0, 99}, 10, 0, PageDown, 10},
    {{0, 99}, 10, 80, PageDown, 90},   {{0, 99}, 10, 81, PageDown, 91},   {{0, 99}, 10, 95, PageDown, 105},
    {{0, 99}, 0, 5, PageDown, 5},      {{0, 99}, 10, 50, Top, 0},         {{10, 109}, 20, 50, Top, 0},
    {{0, 99}, 10, 50, Bottom, 90},     {{10, 109}, 20, 50, Bottom, 80},   {{0, 100}, 0, 50, Bottom, 101},
    {{0, 5}, 10, 0, Bottom, -4},       {{0, 99}, 10, 50, EndScroll, 50},  {{0, 99}, 10, 50, Unknown, 50},
};

TEST(ViewScrolling, follows_the_table) {
    for (const ViewRow& row : ViewRows) {
        const ScrollState bar{row.range, row.page, row.position, 77};
        EXPECT_EQ(ScrolledViewPosition(bar, row.request, 33, false), row.expected)
            << "request " << static_cast<int>(row.request) << " at " << row.position << " in "
            << row.range.minimum << ".." << row.range.maximum << ", page " << row.page;
        EXPECT_EQ(ScrolledViewPosition(bar, row.request, 33, true), row.expected)
            << "thumb tracking changes nothing but a drag";
    }
}

TEST(ViewScrolling, page_up_from_5_with_a_page_of_10_goes_to_0_and_from_20_to_9) {
    EXPECT_EQ(ScrolledViewPosition({{0, 99}, 10, 5, 0}, PageUp, 0, false), 0);
    EXPECT_EQ(ScrolledViewPosition({{0, 99}, 10, 20, 0}, PageUp, 0, false), 9);
}

TEST(ViewScrolling, line_down_stops_at_maximum_less_minimum_less_page_plus_1) {
    ScrollState bar{{3, 40}, 7, 0, 0};
    for (int step = 0; step < 100; ++step)
        bar.position = ScrolledViewPosition(bar, LineDown, 0, false);
    EXPECT_EQ(bar.position, 40 - 3 - 7 + 1);
}

TEST(ViewScrolling, a_released_box_is_where_the_message_says) {
    const ScrollState bar{{0, 99}, 10, 50, 77};
    EXPECT_EQ(ScrolledViewPosition(bar, ThumbPosition, 42, false), 42);
    EXPECT_EQ(ScrolledViewPosition(bar, ThumbPosition, 42, true), 42);
    EXPECT_EQ(ScrolledViewPosition(bar, ThumbPosition, 65535, false), 65535);
}

TEST(ViewScrolling, a_dragged_box_counts_only_with_thumb_tracking) {
    const ScrollState bar{{0, 99}, 10, 50, 77};
    EXPECT_EQ(ScrolledViewPosition(bar, ThumbTrack, 42, false), 50);
    EXPECT_EQ(ScrolledViewPosition(bar, ThumbTrack, 42, true), 42);
}

TEST(ViewScrolling, the_largest_figures_overrun_nothing) {
    const ScrollState end{{Least, Most}, Most, Most, 0};
    EXPECT_EQ(ScrolledViewPosition(end, LineDown, 0, false), Most);
    EXPECT_EQ(ScrolledViewPosition(end, PageDown, 0, false), Most);
    EXPECT_EQ(ScrolledViewPosition(end, Bottom, 0, false), Most);
    const ScrollState start{{Least, Most}, Most, Least, 0};
    EXPECT_EQ(ScrolledViewPosition(start, LineUp, 0, false), 0);
    EXPECT_EQ(ScrolledViewPosition(start, PageUp, 0, false), 0);
    const ScrollState reversed{{Most, Least}, Most, 0, 0};
    EXPECT_EQ(ScrolledViewPosition(reversed, Bottom, 0, false), Least);
}

struct ControlRow {
    ScrollRange range;
    int position;
    ScrollRequest request;
    int expected;
};

// With a line of 2 and a page of 10; the last position is the length of the range, 100 and 40.
constexpr ControlRow ControlRows[] = {
    {{0, 100}, 5, LineUp, 3},
    {{0, 100}, 2, LineUp, 0},
    {{0, 100}, 1, LineUp, 0},
    {{0, 100}, 0, LineUp, 0},
    {{0, 100}, 97, LineDown, 99},
    {{0, 100}, 98, LineDown, 100},
    {{0, 100}, 99, LineDown, 100},
    {{0, 100}, 100, LineDown, 100},
    {{20, 60}, 37, LineDown, 39},
    {{20, 60}, 50, LineDown, 40},
    {{0, 100}, 20, PageUp, 8},
    {{0, 100}, 12, PageUp, 0},
    {{0, 100}, 11, PageUp, 0},
    {{0, 100}, 20, PageDown, 32},
    {{0, 100}, 88, PageDown, 100},
    {{0, 100}, 89, PageDown, 100},
    {{20, 60}, 27, PageDown, 39},
    {{20, 60}, 30, PageDown, 40},
    {{0, 100}, 50, ThumbPosition, 77},
    {{0, 100}, 50, ThumbTrack, 77},
    {{0, 100}, 50, Top, 0},
    {{20, 60}, 50, Top, 0},
    {{0, 100}, 50, Bottom, 100},
    {{20, 60}, 50, Bottom, 40},
    {{0, 100}, 50, EndScroll, 50},
    {{0, 100}, 50, Unknown, 50},
};

TEST(ControlScrolling, follows_the_table) {
    for (const ControlRow& row : ControlRows) {
        const ScrollState bar{row.range, 5, row.position, 77};
        EXPECT_EQ(ScrolledControlPosition(bar, row.request, {2, 10}), row.expected)
            << "request " << static_cast<int>(row.request) << " at " << row.position << " in "
            << row.range.minimum << ".." << row.range.maximum;
    }
}

TEST(ControlScrolling, the_largest_figures_overrun_nothing) {
    const ScrollSteps large{Most, Most};
    EXPECT_EQ(ScrolledControlPosition({{Least, Most}, 0, Most, 0}, PageDown, large), Most);
    EXPECT_EQ(ScrolledControlPosition({{Least, Most}, 0, Least, 0}, PageUp, large), 0);
    EXPECT_EQ(ScrolledControlPosition({{Least, Most}, 0, 0, 0}, Bottom, large), Most);
    EXPECT_EQ(ScrolledControlPosition({{Most, Least}, 0, 0, 0}, LineDown, {1, 1}), Least);
}

TEST(ScrollRanges, are_what_the_content_has_beyond_the_area) {
    EXPECT_EQ(HorizontalScrollRange(300, 200).minimum, 0);
    EXPECT_EQ(HorizontalScrollRange(300, 200).maximum, 100);
    EXPECT_EQ(HorizontalScrollRange(201, 200).maximum, 1);
    EXPECT_EQ(VerticalScrollRange(400, 150).minimum, 0);
    EXPECT_EQ(VerticalScrollRange(400, 150).maximum, 250);
}

TEST(ScrollRanges, of_content_that_fits_are_empty_across_and_negative_down) {
    EXPECT_EQ(HorizontalScrollRange(0, 200).maximum, 0);
    EXPECT_EQ(HorizontalScrollRange(200, 200).maximum, 0);
    EXPECT_EQ(VerticalScrollRange(150, 150).maximum, 0);
    EXPECT_EQ(VerticalScrollRange(0, 150).minimum, 0);
    EXPECT_EQ(VerticalScrollRange(0, 150).maximum, -150);
}

TEST(ScrollRanges, of_the_largest_figures_overrun_nothing) {
    EXPECT_EQ(HorizontalScrollRange(Most, Least).maximum, Most);
    EXPECT_EQ(VerticalScrollRange(Least, Most).maximum, Least);
}

}  // namespace
