#include "platform/desktop/window_placement.h"

#include <algorithm>

namespace ce {

namespace {

constexpr int HandheldLongSide = 800;
constexpr int HandheldShortSide = 480;
constexpr int PocketWidth = 320;

}  // namespace

bool IsHandheldScreen(int width, int height) {
    return std::max(width, height) <= HandheldLongSide && std::min(width, height) <= HandheldShortSide;
}

bool IsPocketScreen(int width, int height) {
    return width <= PocketWidth && width <= height;
}

RECT UsableArea(int screenWidth, int screenHeight, const RECT& reported) {
    const bool empty = reported.left >= reported.right || reported.top >= reported.bottom;
    const bool inside = reported.left >= 0 && reported.top >= 0 && reported.right <= screenWidth &&
                        reported.bottom <= screenHeight;
    return empty || !inside ? RECT{0, 0, screenWidth, screenHeight} : reported;
}

RECT TopLevelPlacement(bool handheld, const RECT& area, const FrameExtent& frame) {
    if (handheld) return area;
    const auto areaWidth = area.right - area.left;
    const auto areaHeight = area.bottom - area.top;
    const auto width = std::min(areaWidth, decltype(areaWidth){DesktopClientWidth + frame.width});
    const auto height = std::min(areaHeight, decltype(areaHeight){DesktopClientHeight + frame.height});
    const auto left = area.left + (areaWidth - width) / 2;
    const auto top = area.top + (areaHeight - height) / 2;
    return RECT{left, top, left + width, top + height};
}

RECT DropDownPlacement(const RECT& anchor, LONG width, LONG height, const RECT& area) {
    LONG left = anchor.left;
    LONG top = anchor.bottom;
    const bool fitsBelow = anchor.bottom + height <= area.bottom;
    const bool fitsAbove = anchor.top - height >= area.top;
    const bool fitsOnTheRight = anchor.right + width <= area.right;
    if (!fitsBelow && fitsAbove) top = anchor.top - height;
    if (!fitsBelow && !fitsAbove && fitsOnTheRight) left = anchor.right;
    left = std::max(std::min(left, area.right - width), area.left);
    top = std::max(std::min(top, area.bottom - height), area.top);
    return RECT{left, top, left + width, top + height};
}

}  // namespace ce
