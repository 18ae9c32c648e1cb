#include "search/calendar.h"

namespace {

// By month, 1 to 12. The entries 0 and 13 give no days to a step beyond the year.
constexpr int CommonMonths[14] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31, 0};
constexpr int LeapMonths[14] = {0, 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31, 0};

constexpr int LastJulianYear = 1582;
// 4 October 1582; the ten days after it were dropped.
constexpr int LastJulianDay = 577737;
constexpr int DroppedDays = 10;

const int (&MonthsOf(int year))[14] {
    return IsLeapYear(year) ? LeapMonths : CommonMonths;
}

}  // namespace

bool IsLeapYear(int year) {
    if (year % 4 != 0) return false;
    if (year < LastJulianYear) return true;
    return year % 100 != 0 || year % 400 == 0;
}

bool IsValidDate(const SYSTEMTIME& date) {
    if (date.wMonth < 1 || date.wMonth > 12) return false;
    if (date.wYear < 1) return false;
    // QUIRK: leap-year-takes-any-day. 31 February 2000 is valid.
    if (IsLeapYear(date.wYear)) return true;
    return date.wDay >= 1 && date.wDay <= CommonMonths[date.wMonth];
}

std::int32_t DaysFromDate(const SYSTEMTIME& date) {
    if (!IsValidDate(date)) return -1;
    const int before = date.wYear - 1;
    std::int32_t days = 365 * before + before / 4;
    if (before > LastJulianYear) days += -before / 100 + before / 400 + 12;
    const auto& months = MonthsOf(date.wYear);
    for (int month = 1; month < date.wMonth; ++month)
        days += months[month];
    days += date.wDay;
    return days > LastJulianDay ? days - DroppedDays : days;
}

bool DateFromDays(std::int32_t days, SYSTEMTIME& date) {
    // Wide enough for every day number, also where the ten dropped days come on top.
    const std::int64_t counted = days > LastJulianDay ? std::int64_t{days} + DroppedDays : days;
    auto year = static_cast<int>(counted / 365);
    auto left = static_cast<int>(counted % 365) - year / 4;
    if (year >= 1700) left += year / 100 - year / 400 - 12;
    while (left <= 0) {
        left += IsLeapYear(year) ? 366 : 365;
        --year;
    }
    ++year;

    const auto& months = MonthsOf(year);
    int month = 1;
    while (month < 12 && left > months[month])
        left -= months[month++];

    date.wYear = static_cast<WORD>(year);
    date.wMonth = static_cast<WORD>(month);
    date.wDay = static_cast<WORD>(left);
    return IsValidDate(date);
}
