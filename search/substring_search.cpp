#include "search/substring_search.h"

#include <algorithm>

namespace {

constinit ShiftTable sharedTable;

// The shifts of the pattern's units except the last; if a unit occurs twice, the later place counts.
template <class Unit, void (ShiftTable::*set)(Unit, std::int32_t)>
void SetShifts(const Unit* pattern, int patternLength) {
    for (int i = 0; i + 1 < patternLength; ++i)
        (sharedTable.*set)(pattern[i], patternLength - 1 - i);
}

// Compares from the pattern's end. After a mismatch it moves on by the shared table's shift for the differing
// unit, but at least past the place looked at. Null for an empty pattern.
template <class Unit, std::int32_t (ShiftTable::*shiftFor)(Unit) const>
const Unit* FindWithShifts(const Unit* text, int textLength, const Unit* pattern, int patternLength) {
    if (patternLength <= 0) return nullptr;
    int i = patternLength - 1;
    while (i < textLength) {
        int j = patternLength - 1;
        while (text[i] == pattern[j]) {
            if (j == 0) return text + i;
            --i;
            --j;
        }
        const int shift = (sharedTable.*shiftFor)(text[i]);
        const int leastShift = patternLength - j;
        i += shift > leastShift ? shift : leastShift;
    }
    return nullptr;
}

}  // namespace

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

const wchar_t* FindWide(const wchar_t* text, int textLength, const wchar_t* pattern, int patternLength) {
    sharedTable.FillUnits(patternLength);
    SetShifts<wchar_t, &ShiftTable::SetUnit>(pattern, patternLength);
    return FindWithShifts<wchar_t, &ShiftTable::ForUnit>(text, textLength, pattern, patternLength);
}

void PrepareFindBytes(const char* pattern, int patternLength) {
    // QUIRK: shared-shift-table. The entries of the bytes 0x80 to 0xFF are left alone.
    sharedTable.FillBytes(patternLength);
    SetShifts<char, &ShiftTable::SetByte>(pattern, patternLength);
}

const char* FindBytes(const char* text, int textLength, const char* pattern, int patternLength) {
    PrepareFindBytes(pattern, patternLength);
    return FindWithShifts<char, &ShiftTable::ForByte>(text, textLength, pattern, patternLength);
}
