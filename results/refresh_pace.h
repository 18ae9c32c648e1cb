#pragma once

// When a list that is being filled is drawn. The first row comes soon, since somebody is waiting for it; all
// further drawing takes no more than a small share of the time.

#include "platform/system_types.h"

// Times are in milliseconds of ce::GetTickCount64.
class RefreshPace {
  public:
    // Call when filling begins, with the list empty.
    void Begin(ULONGLONG now);

    // Whether it is time to draw what has changed since the last drawing.
    [[nodiscard]] bool IsDue(ULONGLONG now, bool hasRows) const;

    // Call after each drawing, with the times at which it began and ended.
    void Drawn(ULONGLONG start, ULONGLONG end, bool hasRows);

  private:
    bool rowsShown_ = false;
    ULONGLONG firstRowDue_ = 0;
    ULONGLONG nextDue_ = 0;
};
