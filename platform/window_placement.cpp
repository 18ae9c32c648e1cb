#include "platform/window_placement.h"

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

}  // namespace ce
