#include "platform/dropped_calendar.h"

#include <commctrl.h>

#include "platform/ce_windows.h"
#include "platform/desktop/system_handles.h"
#include "platform/desktop/window_placement.h"

namespace ce {

namespace {

constexpr LONG LargestLetters = 12;
constexpr LONG SmallestLetters = 7;

// Of the class that all calendars have.
WNDPROC calendarProcedure = nullptr;
// Only one calendar can be open.
const DroppedCalendar* lastDropped = nullptr;

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

LOGFONTW FontOfHeight(LONG height) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    LOGFONTW font = metrics.lfMessageFont;
    font.lfHeight = -height;
    return font;
}

// As the picker and the calendar send it themselves.
void Notify(HWND receiver, HWND sender, NMHDR& header, UINT code) {
    header.hwndFrom = sender;
    header.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(sender));
    header.code = code;
    SendMessageW(receiver, WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}

}  // namespace

DroppedCalendar::~DroppedCalendar() {
    if (lastDropped == this) lastDropped = nullptr;
}

void DroppedCalendar::ShrinkLetters(HWND calendar) {
    for (LONG height = LargestLetters; height >= SmallestLetters && !FitsArea(NeededBy(calendar)); --height) {
        if (!ReplaceFont(picker_, DTM_SETMCFONT, FontOfHeight(height), font_)) return;
    }
}

void DroppedCalendar::Fit(HWND droppingPicker) {
    const auto calendar = reinterpret_cast<HWND>(SendMessageW(droppingPicker, DTM_GETMONTHCAL, 0, 0));
    if (calendar == nullptr) return;
    picker_ = droppingPicker;
    ShrinkLetters(calendar);
    const SIZE size = NeededBy(calendar);
    const RECT place = DropDownPlacement(PlaceOf(picker_), size.cx, size.cy, ScreenArea());
    SetWindowPos(calendar, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    WatchKeys(calendar);
}

// For as long as the calendar exists: the picker keeps it from drop to drop.
void DroppedCalendar::WatchKeys(HWND calendar) {
    lastDropped = this;
    const LRESULT answer =
        SendMessageW(picker_, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&dateBefore_));
    validity_ = static_cast<DWORD>(answer);
    if (GetWindowLongPtrW(calendar, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&TakeKeys)) return;
    const auto procedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(calendar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&TakeKeys)));
    // It is the same for all calendars: one that cannot be watched leaves it to the others.
    if (procedure != nullptr) calendarProcedure = procedure;
}

LRESULT CALLBACK DroppedCalendar::TakeKeys(HWND calendar, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_KEYDOWN && lastDropped != nullptr && lastDropped->OnKey(calendar, wParam)) return 0;
    return CallWindowProcW(calendarProcedure, calendar, message, wParam, lParam);
}

bool DroppedCalendar::OnKey(HWND calendar, WPARAM key) const {
    switch (key) {
        case VK_RETURN:
            TakeMarkedDay(calendar);
            break;
        case VK_ESCAPE:
            GiveUp(calendar);
            break;
        default:
            return false;
    }
    SetFocus(picker_);
    return true;
}

// What the calendar says of a click on a day. The picker takes the day, closes the calendar and tells its
// parent of both.
void DroppedCalendar::TakeMarkedDay(HWND calendar) const {
    NMSELCHANGE selection{};
    SendMessageW(calendar, MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&selection.stSelStart));
    Notify(picker_, calendar, selection.nmhdr, static_cast<UINT>(MCN_SELECT));
}

// Wine does not know the message that closes a calendar.
void DroppedCalendar::GiveUp(HWND calendar) const {
    SendMessageW(picker_, DTM_SETSYSTEMTIME, validity_, reinterpret_cast<LPARAM>(&dateBefore_));
    SendMessageW(picker_, DTM_CLOSEMONTHCAL, 0, 0);
    if (!IsWindowVisible(calendar)) return;
    ShowWindow(calendar, SW_HIDE);
    NMHDR closed{};
    Notify(GetParent(picker_), picker_, closed, static_cast<UINT>(DTN_CLOSEUP));
}

}  // namespace ce
