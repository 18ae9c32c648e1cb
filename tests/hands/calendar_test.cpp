// The calendar that a date picker drops, by keys.

#include <commctrl.h>

#include "tests/hands/hands_test.h"

namespace {

// A day that every month has, in the middle of a year.
constexpr int DateAtDrop = 20020615;
constexpr int DateOfNextMonth = 20020715;

}  // namespace

class CalendarInHands : public HandsTest {
  protected:
    void SetUp() override {
        HandsTest::SetUp();
        Program().ShowPage(DatePage);
        ClickAt(PlaceOf(DatePage, RADIO_BETWEEN));
        WaitUntil("the pickers", [] { return Program().Control(DatePage, PICKER_TO).enabled; });
    }
    [[nodiscard]] static HWND OpenCalendar() {
        for (HWND calendar = FindWindowW(MONTHCAL_CLASSW, nullptr); calendar != nullptr;
             calendar = FindWindowExW(nullptr, calendar, MONTHCAL_CLASSW, nullptr)) {
            if (IsWindowVisible(calendar)) return calendar;
        }
        return nullptr;
    }
    void Drop(int picker) {
        const RECT place = Program().Control(DatePage, picker).rectangle;
        ClickAt({place.right - 8, (place.top + place.bottom) / 2});
        WaitUntil("the calendar", [] { return OpenCalendar() != nullptr; });
        Program().WaitForQueue();
    }
    [[nodiscard]] static bool Closes() {
        return HoldsWithin(StepDeadline, [] { return OpenCalendar() == nullptr; });
    }
    // Marks the same day of the next month.
    static void TurnToNextMonth() {
        RECT place = {};
        GetWindowRect(OpenCalendar(), &place);
        ClickAt({place.right - 16, place.top + 12});
        Program().WaitForQueue();
    }
    [[nodiscard]] static bool HasFocus(int picker) {
        return HoldsWithin(StepDeadline, [&] { return Program().HasFocus(DatePage, picker); });
    }
    [[nodiscard]] static int PickedDate(int picker) {
        const SYSTEMTIME date = Program().Picker(DatePage, picker).time;
        return date.wYear * 10000 + date.wMonth * 100 + date.wDay;
    }
};

TEST_F(CalendarInHands, escape_closes_it_and_leaves_the_date_as_it_was) {
    for (const int picker : {PICKER_FROM, PICKER_TO}) {
        Program().SetDate(DatePage, picker, DateAtDrop);
        Drop(picker);
        TurnToNextMonth();
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(Closes());
        EXPECT_TRUE(HasFocus(picker));
        EXPECT_EQ(PickedDate(picker), DateAtDrop);
    }
}

TEST_F(CalendarInHands, enter_closes_it_and_takes_the_marked_day) {
    for (const int picker : {PICKER_FROM, PICKER_TO}) {
        Program().SetDate(DatePage, picker, DateAtDrop);
        Drop(picker);
        TurnToNextMonth();
        PressKey(VK_RETURN);
        EXPECT_TRUE(Closes());
        EXPECT_TRUE(HasFocus(picker));
        EXPECT_EQ(PickedDate(picker), DateOfNextMonth);
        EXPECT_EQ(Program().SearchesBegun(), 0);
    }
}

TEST_F(CalendarInHands, one_that_a_key_has_closed_drops_again_at_the_next_click) {
    for (const WORD key : std::initializer_list<WORD>{VK_ESCAPE, VK_RETURN, VK_ESCAPE}) {
        Program().SetDate(DatePage, PICKER_FROM, DateAtDrop);
        Drop(PICKER_FROM);
        PressKey(key);
        EXPECT_TRUE(Closes());
        EXPECT_EQ(PickedDate(PICKER_FROM), DateAtDrop);
    }
}
