#pragma once

// The calendar that a date picker drops. The handheld keeps it on its screen; the desktop's hangs it below
// the picker, in letters that make it wider than 240 pixels. Wine's takes the keyboard and knows no key.

#include "platform/handles.h"

namespace ce {

// Owned by the window that has the pickers; outlives them.
class DroppedCalendar {
  public:
    DroppedCalendar() = default;
    ~DroppedCalendar();
    DroppedCalendar(const DroppedCalendar&) = delete;
    DroppedCalendar& operator=(const DroppedCalendar&) = delete;

    // To be called when the picker says that its calendar is open (DTN_DROPDOWN): gives it letters with which
    // it is no wider and no higher than the work area, and puts it there beside the picker. Enter in it takes
    // the day that is marked, Esc gives the picker the date back that it has now; the focus returns to the
    // picker with both.
    void Fit(HWND droppingPicker);

  private:
    static LRESULT CALLBACK TakeKeys(HWND calendar, UINT message, WPARAM wParam, LPARAM lParam);

    void ShrinkLetters(HWND calendar);
    void WatchKeys(HWND calendar);
    // False for a key that means nothing here.
    bool OnKey(HWND calendar, WPARAM key) const;
    void TakeMarkedDay(HWND calendar) const;
    void GiveUp(HWND calendar) const;

    UniqueFont font_;
    // Of the last drop.
    HWND picker_ = nullptr;
    SYSTEMTIME dateBefore_{};
    DWORD validity_ = 0;
};

}  // namespace ce
