#include "results/refresh_pace.h"

namespace {

// Long enough for the first rows to fill the list, too short to be noticed.
constexpr ULONGLONG FirstRowDelay = 50;

// A redraw is due no sooner than this, and no sooner than ten times as long as the last one took.
constexpr ULONGLONG RefreshInterval = 250;
constexpr ULONGLONG RefreshCostFactor = 10;

}  // namespace

void RefreshPace::Begin(ULONGLONG now) {
    rowsShown_ = false;
    firstRowDue_ = now + FirstRowDelay;
    nextDue_ = now + RefreshInterval;
}

bool RefreshPace::IsDue(ULONGLONG now, bool hasRows) const {
    return now >= (hasRows && !rowsShown_ ? firstRowDue_ : nextDue_);
}

void RefreshPace::Drawn(ULONGLONG start, ULONGLONG end, bool hasRows) {
    if (hasRows) rowsShown_ = true;
    const ULONGLONG pause = (end - start) * RefreshCostFactor;
    nextDue_ = end + (pause > RefreshInterval ? pause : RefreshInterval);
}
