#pragma once

// The date and size conditions: what their pages state, and the cheapest test of an entry.

#include <cstdint>
#include <optional>

#include "platform/system_types.h"
#include "search/search_conditions.h"

// The two ends of a date condition, both inclusive. The search takes them as local times.
struct DateRange {
    SYSTEMTIME from = {};
    SYSTEMTIME to = {};
};

// Both dates at the first instant of their day: a file modified later on the second day is outside.
[[nodiscard]] DateRange BetweenDates(const SYSTEMTIME& from, const SYSTEMTIME& to);

// From the start of the UTC date `days` days back to now. The days are the spin's whole answer, error word
// and all.
[[nodiscard]] DateRange PastDays(const SYSTEMTIME& nowUtc, std::uint32_t days);

enum class SizeLimit { None, Above, Below };

struct SizeBound {
    SizeLimit limit = SizeLimit::None;
    // Empty if the conditions keep the bound that they have.
    std::optional<std::uint32_t> bytes;
};

// What the File Size combo's selected index ("", "Min", "Max") and the spin's whole answer to UDM_GETPOS (KB,
// error word and all) mean. Index 0 is a bound of 0 bytes without a limit; any other index than 0, 1 and 2
// (nothing selected) is no bound at all.
[[nodiscard]] SizeBound SizeBoundOf(int selectedIndex, std::uint32_t position);

// Whether the entry passes the date and size conditions that are set. Only the low 32 bits of the size count;
// a bound is strict on both sides, the ends of a date range belong to it.
[[nodiscard]] bool PassesDateAndSize(const SearchConditions& conditions, const WIN32_FIND_DATAW& entry);
