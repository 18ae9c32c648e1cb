#pragma once

// The two ends that a date condition yields, both inclusive. The search takes them as local times.

#include <cstdint>

#include "platform/system_types.h"

struct DateRange {
    SYSTEMTIME first = {};
    SYSTEMTIME second = {};
};

// Both dates at the first instant of their day: what is modified during the second day is outside.
[[nodiscard]] DateRange BetweenDates(const SYSTEMTIME& first, const SYSTEMTIME& second);

// From the start of the UTC date `days` days back to now. The days are the spin's whole answer, error word
// and all.
[[nodiscard]] DateRange PastDays(const SYSTEMTIME& nowUtc, std::uint32_t days);
