#include "framework/scroll_arithmetic.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

// Wide enough for any sum of a bar's numbers.
using Wide = std::int64_t;

int Narrowed(Wide position) {
    return static_cast<int>(
        std::clamp<Wide>(position, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

Wide LengthOf(const ScrollRange& range) {
    return Wide{range.maximum} - range.minimum;
}

}  // namespace

int ScrolledViewPosition(const ScrollState& bar, ScrollRequest request, int thumb, bool thumbTracking) {
    const Wide position = bar.position;
    const Wide last = LengthOf(bar.range) - bar.page + 1;
    switch (request) {
        // QUIRK: scroll-line-is-one-pixel
        case ScrollRequest::LineUp:
            return Narrowed(std::max<Wide>(position - 1, 0));
        case ScrollRequest::LineDown:
            return Narrowed(std::min(position + 1, last));
        case ScrollRequest::PageUp:
            // QUIRK: page-up-goes-one-further
            return Narrowed(std::max<Wide>(position - bar.page - 1, 0));
        case ScrollRequest::PageDown:
            // QUIRK: page-down-is-not-clamped. The bar keeps itself within its range.
            return Narrowed(position + bar.page);
        case ScrollRequest::ThumbPosition:
            return thumb;
        case ScrollRequest::ThumbTrack:
            return thumbTracking ? thumb : bar.position;
        case ScrollRequest::Top:
            return 0;
        case ScrollRequest::Bottom:
            return Narrowed(last);
    }
    return bar.position;
}

int ScrolledControlPosition(const ScrollState& bar, ScrollRequest request, ScrollSteps steps) {
    const Wide position = bar.position;
    const Wide line = steps.line;
    const Wide pageAndLine = line + steps.page;
    const Wide last = LengthOf(bar.range);
    switch (request) {
        case ScrollRequest::LineUp:
            return Narrowed(std::max<Wide>(position - line, 0));
        case ScrollRequest::LineDown:
            return Narrowed(std::min(position + line, last));
        // QUIRK: control-pages-go-a-line-further
        case ScrollRequest::PageUp:
            return Narrowed(std::max<Wide>(position - pageAndLine, 0));
        case ScrollRequest::PageDown:
            return Narrowed(std::min(position + pageAndLine, last));
        case ScrollRequest::ThumbPosition:
        case ScrollRequest::ThumbTrack:
            return bar.trackPosition;
        case ScrollRequest::Top:
            return 0;
        case ScrollRequest::Bottom:
            return Narrowed(last);
    }
    return bar.position;
}

ScrollRange HorizontalScrollRange(int contentWidth, int areaWidth) {
    return {0, Narrowed(std::max<Wide>(Wide{contentWidth} - areaWidth, 0))};
}

// QUIRK: vertical-range-below-0. The horizontal one is not: a bar takes such a range as an empty one.
ScrollRange VerticalScrollRange(int contentHeight, int areaHeight) {
    return {0, Narrowed(Wide{contentHeight} - areaHeight)};
}
