#include "search/find_bytes.h"

#include "search/shift_table.h"

const char* FindBytes(const char* text, int textLength, const char* pattern, int patternLength) {
    ShiftTable& shifts = SharedShiftTable();
    // Deliberately leaves the entries of the bytes 0x80 to 0xFF as they are.
    shifts.FillBytes(patternLength);
    for (int i = 0; i + 1 < patternLength; ++i)
        shifts.SetByte(pattern[i], patternLength - 1 - i);
    if (patternLength <= 0) return nullptr;

    int i = patternLength - 1;
    while (i < textLength) {
        int j = patternLength - 1;
        while (text[i] == pattern[j]) {
            if (j == 0) return text + i;
            --i;
            --j;
        }
        const int shift = shifts.ForByte(text[i]);
        const int leastShift = patternLength - j;
        i += shift > leastShift ? shift : leastShift;
    }
    return nullptr;
}
