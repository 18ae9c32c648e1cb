#pragma once

// Where a scroll bar goes when it is asked to: the arithmetic alone, without a window.

// What a scroll message asks for, by the system's own numbers. Any other number changes nothing.
enum class ScrollRequest { LineUp, LineDown, PageUp, PageDown, ThumbPosition, ThumbTrack, Top, Bottom };

struct ScrollRange {
    int minimum = 0;
    int maximum = 0;
};

// A bar as it stands.
struct ScrollState {
    ScrollRange range;
    int page = 0;
    int position = 0;
    int trackPosition = 0;  // of the box while it is dragged
};

// What one line and one page are for a scroll-bar control.
struct ScrollSteps {
    int line = 1;
    int page = 10;
};

// The position that a view asks its own bar to take. The bar then keeps within its range by itself. thumb is
// the position that the message brings; it counts during a drag only with thumb tracking.
[[nodiscard]] int ScrolledViewPosition(const ScrollState& bar, ScrollRequest request, int thumb,
                                       bool thumbTracking);

// The same for a scroll-bar control.
[[nodiscard]] int ScrolledControlPosition(const ScrollState& bar, ScrollRequest request, ScrollSteps steps);

// The ranges of a view whose content is so wide and high, seen through an area of this size.
[[nodiscard]] ScrollRange HorizontalScrollRange(int contentWidth, int areaWidth);
[[nodiscard]] ScrollRange VerticalScrollRange(int contentHeight, int areaHeight);
