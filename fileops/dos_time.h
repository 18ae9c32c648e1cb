#pragma once

// Times in the two-second steps in which the file system of a storage card keeps them.

#include <cstdint>

#include "platform/system_types.h"

struct DosTime {
    std::uint16_t date;
    std::uint16_t time;
};

// The year counts from 1980, in seven bits.
[[nodiscard]] DosTime PackDosTime(const SYSTEMTIME& moment);

// -1 when the first is earlier, 1 when it is later, 0 in the same step. The date decides before the time.
[[nodiscard]] int CompareDosTimes(const DosTime& first, const DosTime& second);
