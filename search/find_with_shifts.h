#pragma once

// The one search of FindWide and FindBytes: compare from the pattern's end, and after a difference move on by
// what the shared table has for the differing unit, but at least past the place looked at.

#include "search/shift_table.h"

// The shifts of the pattern's units, the last aside; where a unit occurs twice, the later place counts.
template <class Unit, void (ShiftTable::*set)(Unit, std::int32_t)>
void SetShifts(const Unit* pattern, int patternLength) {
    for (int i = 0; i + 1 < patternLength; ++i)
        (SharedShiftTable().*set)(pattern[i], patternLength - 1 - i);
}

// Null for an empty pattern.
template <class Unit, std::int32_t (ShiftTable::*shiftFor)(Unit) const>
const Unit* FindWithShifts(const Unit* text, int textLength, const Unit* pattern, int patternLength) {
    if (patternLength <= 0) return nullptr;
    const ShiftTable& shifts = SharedShiftTable();
    int i = patternLength - 1;
    while (i < textLength) {
        int j = patternLength - 1;
        while (text[i] == pattern[j]) {
            if (j == 0) return text + i;
            --i;
            --j;
        }
        const int shift = (shifts.*shiftFor)(text[i]);
        const int leastShift = patternLength - j;
        i += shift > leastShift ? shift : leastShift;
    }
    return nullptr;
}
