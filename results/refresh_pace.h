#pragma once

// When a list that is being filled is drawn. The first row comes soon, since somebody is waiting for it; all
// further drawing takes no more than a small share of the time.

#include "platform/system_types.h"

// Times are in milliseconds of GetTickCount64.
class RefreshPace {
  public:
    // The list is empty and will be filled from now on.
    void Begin(ULONGLONG now);

    // Whether what has changed since the last drawing is to be shown now.
    [[nodiscard]] bool IsDue(ULONGLONG now, bool hasRows) const;

    // It has been drawn between these times.
    void Drawn(ULONGLONG start, ULONGLONG end, bool hasRows);

  private:
    bool rowsShown_ = false;
    ULONGLONG firstRowDue_ = 0;
    ULONGLONG nextDue_ = 0;
};
