#include "made_up_clock.h"

#include <chrono>

namespace {

constexpr std::int64_t TicksPerMinute = 600'000'000;

BOOL ToUtc(const FILETIME* local, FILETIME* utc) {
    if (TheZone().fails) return FALSE;
    // Wraps, as the system's own does with times that are none.
    const auto ahead = static_cast<std::uint64_t>(TheZone().minutesAhead * TicksPerMinute);
    *utc = TimeOfTicks(static_cast<std::int64_t>(static_cast<std::uint64_t>(TicksOf(*local)) - ahead));
    return TRUE;
}

}  // namespace

MadeUpZone& TheZone() {
    static MadeUpZone zone;
    return zone;
}

ce::SystemCalls ce::systemCalls = {nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &ToUtc, nullptr};

// The day of the week is not looked at.
BOOL SystemTimeToFileTime(const SYSTEMTIME* moment, FILETIME* time) {
    namespace chrono = std::chrono;
    const chrono::year_month_day date(chrono::year(moment->wYear), chrono::month(moment->wMonth),
                                      chrono::day(moment->wDay));
    const bool isTime =
        moment->wHour < 24 && moment->wMinute < 60 && moment->wSecond < 60 && moment->wMilliseconds < 1000;
    if (!date.ok() || moment->wYear < 1601 || moment->wYear > 30827 || !isTime) return FALSE;
    const std::int64_t days = (chrono::sys_days(date) - chrono::sys_days(chrono::year(1601) / 1 / 1)).count();
    const std::int64_t seconds = (days * 24 + moment->wHour) * 3600 + moment->wMinute * 60 + moment->wSecond;
    *time = TimeOfTicks((seconds * 1000 + moment->wMilliseconds) * 10'000);
    return TRUE;
}
