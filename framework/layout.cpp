#include "framework/layout.h"

#include <algorithm>

namespace {

constexpr LONG SmallScreenWidth = 240;

// The parent's rectangle as far as the soft input panel leaves it free.
RECT FreeAreaOf(const RECT& parent, LONG screenWidth, LONG screenHeight) {
    RECT area = parent;
    // QUIRK: input-panel-space-stays-free
    if (screenWidth <= SmallScreenWidth) area.bottom = std::min(area.bottom, screenHeight - InputPanelSpace);
    return area;
}

}  // namespace

POINT CentredPosition(LONG dialogWidth, LONG dialogHeight, const RECT* parent, LONG screenWidth,
                      LONG screenHeight) {
    const RECT area = parent != nullptr ? FreeAreaOf(*parent, screenWidth, screenHeight)
                                        : RECT{0, 0, screenWidth, screenHeight};
    LONG x = area.left + (area.right - area.left - dialogWidth) / 2;
    LONG y = area.top + (area.bottom - area.top - dialogHeight) / 2;
    x = std::max(std::min(x, screenWidth - dialogWidth), LONG{0});
    y = std::max(std::min(y, screenHeight - dialogHeight), LONG{0});
    return {x, y};
}

RECT PlaceOf(HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void Place(HWND control, const RECT& place) {
    SetWindowPos(control, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}
