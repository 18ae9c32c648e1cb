#pragma once

// The cheapest tests of an entry: its last-write time and its size.

#include "platform/system_types.h"
#include "search/search_conditions.h"

// Whether the entry passes the date and size conditions that are set. Only the low 32 bits of the size count;
// a bound is strict on both sides, the ends of a date range belong to it.
[[nodiscard]] bool PassesDateAndSize(const SearchConditions& conditions, const WIN32_FIND_DATAW& entry);
