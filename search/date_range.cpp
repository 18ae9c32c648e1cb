#include "search/date_range.h"

#include "search/calendar.h"

namespace {

void ClearTimeOfDay(SYSTEMTIME& time) {
    time.wHour = 0;
    time.wMinute = 0;
    time.wSecond = 0;
    time.wMilliseconds = 0;
}

}  // namespace

DateRange BetweenDates(const SYSTEMTIME& first, const SYSTEMTIME& second) {
    DateRange range{first, second};
    ClearTimeOfDay(range.first);
    // QUIRK: second-day-is-outside
    ClearTimeOfDay(range.second);
    return range;
}

DateRange PastDays(const SYSTEMTIME& nowUtc, std::uint32_t days) {
    // QUIRK: spin-error-word-counts. It may lead out of the calendar's numbers; the subtraction then wraps.
    const auto today = static_cast<std::uint32_t>(DaysFromDate(nowUtc));
    DateRange range{nowUtc, nowUtc};
    DateFromDays(static_cast<std::int32_t>(today - days), range.first);
    ClearTimeOfDay(range.first);
    return range;
}
