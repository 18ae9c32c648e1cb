#pragma once

// Where a control lies in its parent, and putting it elsewhere.

#include "platform/system_types.h"

// Between a control and the right edge of its dialog or page, in pixels.
constexpr LONG RightMargin = 3;

// In the parent's client coordinates.
[[nodiscard]] inline RECT PlaceOf(HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

inline void Place(HWND control, const RECT& place) {
    SetWindowPos(control, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}
