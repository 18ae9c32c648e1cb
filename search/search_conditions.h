#pragma once

// What entries are tested against. The main window owns the one record; every search fills it anew
// (FillConditions) and only reads it from then on. A value whose bit is clear may be left from an earlier
// search.

#include <cstdint>

#include "platform/system_types.h"

struct SearchConditions {
    // The bits of `flags`.
    static constexpr std::uint16_t TypeFilter = 0x0001;
    static constexpr std::uint16_t DateRange = 0x0002;
    static constexpr std::uint16_t SizeAbove = 0x0004;
    static constexpr std::uint16_t SizeBelow = 0x0008;
    static constexpr std::uint16_t ContentString = 0x0100;
    static constexpr std::uint16_t IgnoreCase = 0x0200;
    static constexpr std::uint16_t SubFolders = 0x1000;

    [[nodiscard]] bool Has(std::uint16_t bit) const { return (flags & bit) != 0; }

    std::uint16_t flags = 0;
    // Ends of the last-write time in UTC, inclusive; valid with DateRange.
    FILETIME fromTime = {};
    FILETIME toTime = {};
    // Bytes; valid with SizeAbove or SizeBelow, which are never set together.
    std::uint32_t sizeBound = 0;
    // Terminated, in the bytes of the device's encoding; in upper case with IgnoreCase; valid with
    // ContentString.
    char contentPattern[520] = {};
};
