#include "search/date_and_size.h"

#include "search/calendar.h"

namespace {

void ClearTimeOfDay(SYSTEMTIME& time) {
    time.wHour = 0;
    time.wMinute = 0;
    time.wSecond = 0;
    time.wMilliseconds = 0;
}

}  // namespace

DateRange BetweenDates(const SYSTEMTIME& from, const SYSTEMTIME& to) {
    DateRange range{from, to};
    ClearTimeOfDay(range.from);
    // QUIRK: second-day-is-outside
    ClearTimeOfDay(range.to);
    return range;
}

DateRange PastDays(const SYSTEMTIME& nowUtc, std::uint32_t days) {
    // QUIRK: spin-error-word-counts. It may lead out of the calendar's numbers; the subtraction then wraps.
    const auto today = static_cast<std::uint32_t>(DaysFromDate(nowUtc));
    DateRange range{nowUtc, nowUtc};
    DateFromDays(static_cast<std::int32_t>(today - days), range.from);
    ClearTimeOfDay(range.from);
    return range;
}

SizeBound SizeBoundOf(int selectedIndex, std::uint32_t position) {
    constexpr int KilobyteBits = 10;
    // QUIRK: spin-error-word-counts. The bits above the position are part of the number.
    switch (selectedIndex) {
        case 0:
            return {SizeLimit::None, 0};
        case 1:
            return {SizeLimit::Above, position << KilobyteBits};
        case 2:
            return {SizeLimit::Below, position << KilobyteBits};
        default:
            // QUIRK: typed-size-choice-is-no-bound
            return {};
    }
}

bool PassesDateAndSize(const SearchConditions& conditions, const WIN32_FIND_DATAW& entry) {
    if (conditions.Has(SearchConditions::DateRange)) {
        if (CompareFileTime(&entry.ftLastWriteTime, &conditions.fromTime) < 0) return false;
        if (CompareFileTime(&entry.ftLastWriteTime, &conditions.toTime) > 0) return false;
    }
    // QUIRK: sizes-have-32-bits
    const std::uint32_t size = entry.nFileSizeLow;
    // QUIRK: bounds-are-strict
    if (conditions.Has(SearchConditions::SizeAbove) && size <= conditions.sizeBound) return false;
    if (conditions.Has(SearchConditions::SizeBelow) && size >= conditions.sizeBound) return false;
    return true;
}
