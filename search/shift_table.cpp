#include "search/shift_table.h"

#include <algorithm>

namespace {
constinit ShiftTable sharedTable;
}

ShiftTable& SharedShiftTable() {
    return sharedTable;
}

void ShiftTable::FillUnits(std::int32_t shift) {
    if (shift == unitFill && notedCount <= MostNotedUnits) {
        for (int i = 0; i < notedCount; ++i)
            entries[notedUnits[i]] = shift;
        std::fill_n(entries + FirstSharedUnit, UnitEntries - FirstSharedUnit, shift);
    } else {
        std::fill_n(entries, UnitEntries, shift);
        unitFill = shift;
    }
    notedCount = 0;
}

void ShiftTable::SetUnit(wchar_t unit, std::int32_t shift) {
    const auto index = static_cast<std::uint16_t>(unit);
    entries[index] = shift;
    // One more than can be noted stands for "too many", and the next fill writes everything.
    if (notedCount < MostNotedUnits) notedUnits[notedCount] = index;
    if (notedCount <= MostNotedUnits) ++notedCount;
}

void ShiftTable::FillBytes(std::int32_t shift) {
    std::fill_n(entries + UnitEntries, ByteEntries, shift);
}

void ShiftTable::Clear() {
    std::fill_n(entries, Entries, 0);
    unitFill = 0;
    notedCount = 0;
}
