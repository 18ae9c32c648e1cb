#pragma once

// Where windows go on screens of different sizes: the arithmetic alone, in pixels. A handheld's screen is
// filled; a desktop's screen gets a window of handheld proportions.

#include "platform/system_types.h"

namespace ce {

// How much wider and higher a window is than its client area.
struct FrameExtent {
    int width;
    int height;
};

[[nodiscard]] inline SIZE SizeOf(const RECT& place) {
    return {place.right - place.left, place.bottom - place.top};
}

// Client area of the program's window on a screen that is larger than a handheld's.
constexpr int DesktopClientWidth = 360;
constexpr int DesktopClientHeight = 480;

// Up to 800 x 480, either way round.
[[nodiscard]] bool IsHandheldScreen(int width, int height);

// An upright or square screen at most 320 wide: the one on which a dialog covers everything.
[[nodiscard]] bool IsPocketScreen(int width, int height);

// The work area as the system reports it, or the whole screen when the report is empty or reaches beyond the
// screen (it then tells of another one).
[[nodiscard]] RECT UsableArea(int screenWidth, int screenHeight, const RECT& reported);

// The rectangle of a top-level window that leaves its place to the system: the whole area on a handheld, else
// the desktop client area with its frame, centred in the area and cut to it.
[[nodiscard]] RECT TopLevelPlacement(bool handheld, const RECT& area, const FrameExtent& frame);

// The rectangle of something of this size that opens from the anchor: below it, with the left edges in line,
// else above it, else to its right, else over it; always inside the area, at whose upper left corner anything
// larger begins.
[[nodiscard]] RECT DropDownPlacement(const RECT& anchor, LONG width, LONG height, const RECT& area);

}  // namespace ce
