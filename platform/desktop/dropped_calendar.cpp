#include "platform/dropped_calendar.h"

#include <commctrl.h>

#include "platform/desktop/window_placement.h"
#include "platform/screen_area.h"

namespace ce {

namespace {

constexpr LONG LargestLetters = 12;
constexpr LONG SmallestLetters = 7;

SIZE SizeOf(const RECT& place) {
    return {place.right - place.left, place.bottom - place.top};
}

RECT PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

// What one month needs with the letters that the calendar has now.
SIZE NeededBy(HWND calendar) {
    RECT needed{};
    SendMessageW(calendar, MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&needed));
    RECT frame{};
    AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongPtrW(calendar, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongPtrW(calendar, GWL_EXSTYLE)));
    return {SizeOf(needed).cx + SizeOf(frame).cx, SizeOf(needed).cy + SizeOf(frame).cy};
}

bool FitsArea(SIZE size) {
    const SIZE room = SizeOf(ScreenArea());
    return size.cx <= room.cx && size.cy <= room.cy;
}

HFONT FontOfHeight(LONG height) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    LOGFONTW font = metrics.lfMessageFont;
    font.lfHeight = -height;
    return CreateFontIndirectW(&font);
}

}  // namespace

DroppedCalendar::~DroppedCalendar() {
    if (font_ != nullptr) DeleteObject(font_);
}

void DroppedCalendar::ShrinkLetters(HWND picker, HWND calendar) {
    for (LONG height = LargestLetters; height >= SmallestLetters && !FitsArea(NeededBy(calendar)); --height) {
        const HFONT smaller = FontOfHeight(height);
        if (smaller == nullptr) return;
        SendMessageW(picker, DTM_SETMCFONT, reinterpret_cast<WPARAM>(smaller), FALSE);
        if (font_ != nullptr) DeleteObject(font_);
        font_ = smaller;
    }
}

void DroppedCalendar::Fit(HWND picker) {
    const auto calendar = reinterpret_cast<HWND>(SendMessageW(picker, DTM_GETMONTHCAL, 0, 0));
    if (calendar == nullptr) return;
    ShrinkLetters(picker, calendar);
    const SIZE size = NeededBy(calendar);
    const RECT place = DropDownPlacement(PlaceOf(picker), size.cx, size.cy, ScreenArea());
    SetWindowPos(calendar, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace ce
