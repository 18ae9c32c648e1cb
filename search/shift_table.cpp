#include "search/shift_table.h"

#include <algorithm>

namespace {
constinit ShiftTable sharedTable;
}

ShiftTable& SharedShiftTable() {
    return sharedTable;
}

void ShiftTable::FillUnits(std::int32_t shift) {
    if (shift == unitFill_ && notedCount_ <= MostNotedUnits) {
        for (int i = 0; i < notedCount_; ++i)
            entries_[notedUnits_[i]] = shift;
        std::fill_n(entries_ + FirstSharedUnit, UnitEntries - FirstSharedUnit, shift);
    } else {
        std::fill_n(entries_, UnitEntries, shift);
        unitFill_ = shift;
    }
    notedCount_ = 0;
}

void ShiftTable::SetUnit(wchar_t unit, std::int32_t shift) {
    const auto index = static_cast<std::uint16_t>(unit);
    entries_[index] = shift;
    // One more than can be noted stands for "too many", and the next fill writes everything.
    if (notedCount_ < MostNotedUnits) notedUnits_[notedCount_] = index;
    if (notedCount_ <= MostNotedUnits) ++notedCount_;
}

void ShiftTable::FillBytes(std::int32_t shift) {
    std::fill_n(entries_ + UnitEntries, ByteEntries, shift);
}

void ShiftTable::Clear() {
    std::fill_n(entries_, Entries, 0);
    unitFill_ = 0;
    notedCount_ = 0;
}
