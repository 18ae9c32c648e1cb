#include "search/find_wide.h"

#include "search/shift_table.h"

const wchar_t* FindWide(const wchar_t* text, int textLength, const wchar_t* pattern, int patternLength) {
    ShiftTable& shifts = SharedShiftTable();
    shifts.FillUnits(patternLength);
    for (int i = 0; i + 1 < patternLength; ++i)
        shifts.SetUnit(pattern[i], patternLength - 1 - i);
    if (patternLength <= 0) return nullptr;

    int i = patternLength - 1;
    while (i < textLength) {
        int j = patternLength - 1;
        while (text[i] == pattern[j]) {
            if (j == 0) return text + i;
            --i;
            --j;
        }
        const int shift = shifts.ForUnit(text[i]);
        const int leastShift = patternLength - j;
        i += shift > leastShift ? shift : leastShift;
    }
    return nullptr;
}
