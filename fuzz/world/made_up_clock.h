#pragma once

// The zone of the made-up system, and its calendar.

#include "platform/windows_ce.h"

struct MadeUpZone {
    int minutesAhead = 0;
    // A system that cannot tell.
    bool fails = false;
};

[[nodiscard]] MadeUpZone& TheZone();

// Ticks of 100 nanoseconds since 1601.
[[nodiscard]] inline std::int64_t TicksOf(const FILETIME& time) {
    return static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
}
[[nodiscard]] inline FILETIME TimeOfTicks(std::int64_t ticks) {
    const auto bits = static_cast<std::uint64_t>(ticks);
    return {static_cast<DWORD>(bits), static_cast<DWORD>(bits >> 32)};
}
