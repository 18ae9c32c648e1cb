#include "tests/places/place.h"

#include <chrono>
#include <cstdio>

namespace {

namespace chrono = std::chrono;

constexpr chrono::sys_days Beginning = chrono::year(1601) / 1 / 1;

Ticks Ahead() {
    return MinutesAhead() * TicksPerMinute;
}

}  // namespace

int MinutesAhead() {
    constexpr int NineHours = 540;
    wchar_t text[16] = L"";
    if (GetEnvironmentVariableW(L"QUORIN_WORLD_ZONE", text, 16) == 0) return NineHours;
    return std::stoi(text);
}

Ticks MomentOf(int year, int month, int day, int hour, int minute, int second) {
    const chrono::sys_days date = chrono::year(year) / month / day;
    return (date - Beginning).count() * TicksPerDay + hour * TicksPerHour + minute * TicksPerMinute +
           second * TicksPerSecond;
}

Ticks LocalMomentOf(int year, int month, int day, int hour, int minute, int second) {
    return MomentOf(year, month, day, hour, minute, second) - Ahead();
}

SYSTEMTIME ClockAt(Ticks moment) {
    SYSTEMTIME clock = {};
    const Ticks local = moment + Ahead();
    if (local < 0) return clock;
    const chrono::sys_days day = Beginning + chrono::days(local / TicksPerDay);
    const chrono::year_month_day date(day);
    clock.wYear = static_cast<WORD>(static_cast<int>(date.year()));
    clock.wMonth = static_cast<WORD>(static_cast<unsigned>(date.month()));
    clock.wDay = static_cast<WORD>(static_cast<unsigned>(date.day()));
    clock.wDayOfWeek = static_cast<WORD>(chrono::weekday(day).c_encoding());
    clock.wHour = static_cast<WORD>(local / TicksPerHour % 24);
    clock.wMinute = static_cast<WORD>(local / TicksPerMinute % 60);
    clock.wSecond = static_cast<WORD>(local / TicksPerSecond % 60);
    clock.wMilliseconds = static_cast<WORD>(local / (TicksPerSecond / 1000) % 1000);
    return clock;
}

std::wstring RowTextAt(Ticks moment) {
    const SYSTEMTIME clock = ClockAt(moment);
    char text[32];
    std::snprintf(text, sizeof(text), "%02d/%02d/%02d %02d:%02d:%02d", clock.wYear % 100, clock.wMonth,
                  clock.wDay, clock.wHour, clock.wMinute, clock.wSecond);
    const std::string narrow = text;
    return std::wstring(narrow.begin(), narrow.end());
}

FILETIME FileTimeAt(Ticks moment) {
    return {static_cast<DWORD>(moment & 0xFFFFFFFF), static_cast<DWORD>(moment >> 32)};
}

Ticks MomentAt(const FILETIME& time) {
    return static_cast<Ticks>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

Ticks Now() {
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    return MomentAt(now);
}

const NamedMoment OddMoments[MomentCount] = {
    {"last second of 1901 on many disks", MomentOf(1901, 12, 13, 20, 45, 52)},
    {"last second of 1969", MomentOf(1969, 12, 31, 23, 59, 59)},
    {"first second of 1970", MomentOf(1970, 1, 1)},
    {"first second of storage cards", MomentOf(1980, 1, 1)},
    {"last second of 1999", MomentOf(1999, 12, 31, 23, 59, 59)},
    {"first second of 2000", MomentOf(2000, 1, 1)},
    {"last second of 28 February 2000", MomentOf(2000, 2, 28, 23, 59, 59)},
    {"29 February 2000", MomentOf(2000, 2, 29)},
    {"last second of 29 February 2000", MomentOf(2000, 2, 29, 23, 59, 59)},
    {"last second of February 2001", MomentOf(2001, 2, 28, 23, 59, 59)},
    {"last second before summer in Berlin", MomentOf(2002, 3, 31, 0, 59, 59)},
    {"first second of summer in Berlin", MomentOf(2002, 3, 31, 1)},
    {"last second before summer in St. John's", MomentOf(2002, 4, 7, 3, 30, 59)},
    {"first second of summer in St. John's", MomentOf(2002, 4, 7, 3, 31)},
    {"31 May", MomentOf(2002, 5, 31)},
    {"last second of 31 May", MomentOf(2002, 5, 31, 23, 59, 59)},
    {"last second of summer in Berlin", MomentOf(2002, 10, 27, 0, 59, 59)},
    {"first second after summer in Berlin", MomentOf(2002, 10, 27, 1)},
    {"29 February 2004", MomentOf(2004, 2, 29, 12)},
    {"last second of 32 bits", MomentOf(2038, 1, 19, 3, 14, 7)},
    {"first second beyond them", MomentOf(2038, 1, 19, 3, 14, 8)},
    {"28 February 2100, no leap year", MomentOf(2100, 2, 28, 23, 59, 59)},
    {"1 March 2100", MomentOf(2100, 3, 1)},
    {"last step of storage cards", MomentOf(2107, 12, 31, 23, 59, 58)},
};
