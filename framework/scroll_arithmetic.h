#pragma once

// Where a scroll message moves a bar: the arithmetic alone, without a window.

// What a scroll message asks for, by the system's own numbers. Any other number changes nothing.
enum class ScrollRequest { LineUp, LineDown, PageUp, PageDown, ThumbPosition, ThumbTrack, Top, Bottom };

struct ScrollRange {
    int minimum = 0;
    int maximum = 0;
};

// The present state of a bar.
struct ScrollState {
    ScrollRange range;
    int page = 0;
    int position = 0;
    int trackPosition = 0;  // of the box while it is dragged
};

// The size of a line and of a page for a scroll-bar control.
struct ScrollSteps {
    int line = 1;
    int page = 10;
};

// The position that a view gives to its own bar, which then keeps itself within its range. thumb is the
// position in the message; during a drag it counts only with thumb tracking.
[[nodiscard]] int ScrolledViewPosition(const ScrollState& bar, ScrollRequest request, int thumb,
                                       bool thumbTracking);

// The same for a scroll-bar control.
[[nodiscard]] int ScrolledControlPosition(const ScrollState& bar, ScrollRequest request, ScrollSteps steps);

// The ranges for content of this width and height in an area of this size.
[[nodiscard]] ScrollRange HorizontalScrollRange(int contentWidth, int areaWidth);
[[nodiscard]] ScrollRange VerticalScrollRange(int contentHeight, int areaHeight);
