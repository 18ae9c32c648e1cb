#pragma once

// The date and size conditions: what their pages state, and the cheapest test of an entry.

#include <cstdint>

#include "platform/system_types.h"
#include "search/search_conditions.h"

// The two ends of a date condition, both inclusive. The search takes them as local times.
struct DateRange {
    SYSTEMTIME first = {};
    SYSTEMTIME second = {};
};

// Both dates at the first instant of their day: what is modified during the second day is outside.
[[nodiscard]] DateRange BetweenDates(const SYSTEMTIME& first, const SYSTEMTIME& second);

// From the start of the UTC date `days` days back to now. The days are the spin's whole answer, error word
// and all.
[[nodiscard]] DateRange PastDays(const SYSTEMTIME& nowUtc, std::uint32_t days);

enum class SizeAnswer { None, Min, Max };

// What the File Size combo's selected index and the spin's whole answer to UDM_GETPOS (KB, error word and
// all) mean. Writes the bound in bytes; index 0 writes 0, and an index other than 0, 1 and 2 (nothing
// selected) leaves the bound alone.
[[nodiscard]] SizeAnswer SizeBoundOf(int selectedIndex, std::uint32_t position, std::uint32_t& bound);

// Whether the entry passes the date and size conditions that are set. Only the low 32 bits of the size count;
// a bound is strict on both sides, the ends of a date range belong to it.
[[nodiscard]] bool PassesDateAndSize(const SearchConditions& conditions, const WIN32_FIND_DATAW& entry);
