#pragma once

// Where a test runs, and what the clock shows there: counted out plainly, with nothing of the system or the
// program.

#include <windows.h>

#include <cstdint>
#include <string>

// A moment in the system's ticks of 100 nanoseconds since 1601, by UTC.
using Ticks = std::int64_t;
constexpr Ticks TicksPerSecond = 10'000'000;
constexpr Ticks TicksPerMinute = 60 * TicksPerSecond;
constexpr Ticks TicksPerHour = 60 * TicksPerMinute;
constexpr Ticks TicksPerDay = 24 * TicksPerHour;

// How far the zone is ahead of UTC at present, as the environment says by QUORIN_WORLD_ZONE, in minutes; nine
// hours where it says nothing. The system uses the present difference for every time, of summer or winter.
[[nodiscard]] int MinutesAhead();

// The moment whose fields by UTC are these.
[[nodiscard]] Ticks MomentOf(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
// The moment at which the clocks here show these.
[[nodiscard]] Ticks LocalMomentOf(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
// What the clocks here show at the moment; none of its fields is set for one before 1601.
[[nodiscard]] SYSTEMTIME ClockAt(Ticks moment);
// The date and time of a row: "02/07/15 09:05:30".
[[nodiscard]] std::wstring RowTextAt(Ticks moment);

[[nodiscard]] FILETIME FileTimeAt(Ticks moment);
[[nodiscard]] Ticks MomentAt(const FILETIME& time);
[[nodiscard]] Ticks Now();

// Around what is odd in calendars: ends of years, of centuries and of February, 31 May, the nights in which
// summer time begins and ends in several zones, the first and the last years that storage cards and seconds
// counted in 32 bits know. All of them may be the time of a file on a disk.
struct NamedMoment {
    const char* name;
    Ticks moment;
};
constexpr int MomentCount = 24;
extern const NamedMoment OddMoments[MomentCount];
