#include "search/find_bytes.h"

#include "search/find_with_shifts.h"

void PrepareFindBytes(const char* pattern, int patternLength) {
    // QUIRK: shared-shift-table. The entries of the bytes 0x80 to 0xFF are left alone.
    SharedShiftTable().FillBytes(patternLength);
    SetShifts<char, &ShiftTable::SetByte>(pattern, patternLength);
}

const char* FindBytes(const char* text, int textLength, const char* pattern, int patternLength) {
    PrepareFindBytes(pattern, patternLength);
    return FindWithShifts<char, &ShiftTable::ForByte>(text, textLength, pattern, patternLength);
}
