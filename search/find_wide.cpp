#include "search/find_wide.h"

#include "search/find_with_shifts.h"

const wchar_t* FindWide(const wchar_t* text, int textLength, const wchar_t* pattern, int patternLength) {
    SharedShiftTable().FillUnits(patternLength);
    SetShifts<wchar_t, &ShiftTable::SetUnit>(pattern, patternLength);
    return FindWithShifts<wchar_t, &ShiftTable::ForUnit>(text, textLength, pattern, patternLength);
}
