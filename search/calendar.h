#pragma once

// The program's own calendar. Day 1 is 1 January of the year 1; the Julian calendar runs to 4 October 1582
// (day 577,737) and the Gregorian from 15 October 1582 (day 577,738), the ten days between have no number.

#include <cstdint>

#include "platform/system_types.h"

[[nodiscard]] bool IsLeapYear(int year);

// Looks at year, month and day. In a leap year any day passes.
[[nodiscard]] bool IsValidDate(const SYSTEMTIME& date);

// The day's number, or -1 for an invalid date.
[[nodiscard]] std::int32_t DaysFromDate(const SYSTEMTIME& date);

// Writes year, month and day, leaves the other fields alone, and returns IsValidDate of the outcome.
bool DateFromDays(std::int32_t days, SYSTEMTIME& date);
