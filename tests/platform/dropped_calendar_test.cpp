// The calendar of a date picker on screens of all sizes, dropped by a click as the control sees it.

#include <gtest/gtest.h>

#include <vector>

#include "platform/windows_ce.h"
#include "tests/support/replaced_calls.h"

namespace {

SIZE screen = {};

int MetricsOfScreen(int index) {
    if (index == SM_CXSCREEN) return screen.cx;
    if (index == SM_CYSCREEN) return screen.cy;
    return GetSystemMetrics(index);
}

struct Opening {
    ce::DroppedCalendar* calendar;
    RECT place;
    HWND month = nullptr;
    std::vector<UINT> told;  // by the picker after the drop
};
Opening* opening = nullptr;

LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    if (message == WM_NOTIFY && opening != nullptr) {
        if (header->code == static_cast<UINT>(DTN_DROPDOWN)) {
            opening->calendar->Fit(header->hwndFrom);
            opening->month = reinterpret_cast<HWND>(SendMessageW(header->hwndFrom, DTM_GETMONTHCAL, 0, 0));
            GetWindowRect(opening->month, &opening->place);
        } else if (header->code == static_cast<UINT>(DTN_CLOSEUP) ||
                   header->code == static_cast<UINT>(DTN_DATETIMECHANGE)) {
            opening->told.push_back(header->code);
        }
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

class DroppedCalendar : public testing::Test {
  protected:
    DroppedCalendar() : size_(ce::systemCalls.getSystemMetrics, MetricsOfScreen) {
        const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_DATE_CLASSES};
        InitCommonControlsEx(&classes);
        parent_ = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 640, 480, nullptr, nullptr,
                                  nullptr, nullptr);
        SetWindowLongPtrW(parent_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ParentProcedure));
    }
    ~DroppedCalendar() override { DestroyWindow(parent_); }

    // Where the calendar lies that a picker at this place drops.
    RECT PlaceOfCalendar(int left, int top) {
        const HWND picker = CreatePicker(left, top);
        ce::DroppedCalendar calendar;
        Opening dropped = {&calendar, {}, nullptr, {}};
        opening = &dropped;
        Drop(picker);
        opening = nullptr;
        DestroyWindow(picker);
        return dropped.place;
    }
    HWND CreatePicker(int left, int top) {
        return CreateWindowExW(0, DATETIMEPICK_CLASSW, L"", WS_CHILD | WS_VISIBLE, left, top, 110, 20,
                               parent_, nullptr, nullptr, nullptr);
    }
    static void Drop(HWND picker) {
        SendMessageW(picker, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(102, 10));
        SendMessageW(picker, WM_LBUTTONUP, 0, MAKELPARAM(102, 10));
    }
    static WORD DayOf(HWND picker) {
        SYSTEMTIME date = {};
        SendMessageW(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&date));
        return date.wDay;
    }
    static void SetDay(HWND window, UINT message, WORD day) {
        const SYSTEMTIME date = {2002, 6, 0, day, 0, 0, 0, 0};
        SendMessageW(window, message, 0, reinterpret_cast<LPARAM>(&date));
    }

  private:
    Replaced<int (*)(int)> size_;
    HWND parent_;
};

}  // namespace

TEST_F(DroppedCalendar, lies_inside_every_screen_wherever_its_picker_is) {
    for (const SIZE each : {SIZE{240, 320}, {640, 240}, {320, 240}, {240, 240}, {480, 640}, {800, 600}}) {
        screen = each;
        for (const POINT picker : {POINT{0, 0}, {90, 88}, {90, 110}, {each.cx - 110, each.cy - 20}}) {
            const RECT place = PlaceOfCalendar(picker.x, picker.y);
            SCOPED_TRACE(testing::Message()
                         << each.cx << " x " << each.cy << ", picker at " << picker.x << ", " << picker.y);
            EXPECT_FALSE(IsRectEmpty(&place));
            EXPECT_GE(place.left, 0);
            EXPECT_GE(place.top, 0);
            EXPECT_LE(place.right, each.cx);
            EXPECT_LE(place.bottom, each.cy);
        }
    }
}

TEST_F(DroppedCalendar, leaves_its_picker_free_where_there_is_room) {
    screen = {480, 640};
    EXPECT_GE(PlaceOfCalendar(90, 100).top, 120);
    EXPECT_LE(PlaceOfCalendar(90, 500).bottom, 500);
    screen = {640, 240};
    EXPECT_GE(PlaceOfCalendar(90, 100).left, 200);
}

// Also where the picker shows each marked day at once, as Windows does.
TEST_F(DroppedCalendar, gives_the_picker_its_date_back_at_escape) {
    screen = {480, 640};
    const HWND picker = CreatePicker(90, 100);
    ce::DroppedCalendar calendar;
    Opening dropped = {&calendar, {}, nullptr, {}};
    opening = &dropped;
    for (int time = 0; time < 2; ++time) {
        dropped.told.clear();
        SetDay(picker, DTM_SETSYSTEMTIME, 15);
        Drop(picker);
        SetDay(picker, DTM_SETSYSTEMTIME, 20);
        SendMessageW(dropped.month, WM_KEYDOWN, VK_ESCAPE, 0);
        EXPECT_FALSE(IsWindowVisible(dropped.month));
        EXPECT_EQ(DayOf(picker), 15);
        EXPECT_EQ(dropped.told, std::vector<UINT>{static_cast<UINT>(DTN_CLOSEUP)});
        EXPECT_EQ(GetFocus(), picker);
    }
    opening = nullptr;
    DestroyWindow(picker);
}

TEST_F(DroppedCalendar, gives_the_picker_the_marked_day_at_enter) {
    screen = {480, 640};
    const HWND picker = CreatePicker(90, 100);
    ce::DroppedCalendar calendar;
    Opening dropped = {&calendar, {}, nullptr, {}};
    opening = &dropped;
    SetDay(picker, DTM_SETSYSTEMTIME, 15);
    Drop(picker);
    SetDay(dropped.month, MCM_SETCURSEL, 20);
    SendMessageW(dropped.month, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_FALSE(IsWindowVisible(dropped.month));
    EXPECT_EQ(DayOf(picker), 20);
    EXPECT_EQ(dropped.told,
              (std::vector<UINT>{static_cast<UINT>(DTN_DATETIMECHANGE), static_cast<UINT>(DTN_CLOSEUP)}));
    EXPECT_EQ(GetFocus(), picker);
    opening = nullptr;
    DestroyWindow(picker);
}
