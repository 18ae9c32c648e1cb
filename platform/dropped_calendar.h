#pragma once

// The calendar that a date picker drops. The handheld keeps it on its screen; the desktop's hangs it below
// the picker, in letters that make it wider than 240 pixels.

#include "platform/system_types.h"

namespace ce {

// Owned by the window that has the pickers; outlives them.
class DroppedCalendar {
  public:
    DroppedCalendar() = default;
    ~DroppedCalendar();
    DroppedCalendar(const DroppedCalendar&) = delete;
    DroppedCalendar& operator=(const DroppedCalendar&) = delete;

    // To be called when the picker says that its calendar is open (DTN_DROPDOWN): gives it letters with which
    // it is no wider and no higher than the work area, and puts it there beside the picker.
    void Fit(HWND picker);

  private:
    void ShrinkLetters(HWND picker, HWND calendar);

    HFONT font_ = nullptr;
};

}  // namespace ce
