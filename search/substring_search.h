#pragma once

// Substring search by the bad-character rule (Horspool's): a name for the text that the user typed, a line of
// a file for the bytes of the content string.

#include <cstdint>

// The shifts of FindWide and FindBytes, in one array: 65,536 entries, one for each UTF-16 unit, and directly
// behind them 256 for bytes.
// QUIRK: shared-shift-table. A byte is taken as a signed number, so that the bytes 0x80 to 0xFF use the last
// 128 entries of the part for units. What an earlier search left there decides which matches are found after
// such a byte.
class ShiftTable {
  public:
    static constexpr int UnitEntries = 65536;
    static constexpr int ByteEntries = 256;
    static constexpr int Entries = UnitEntries + ByteEntries;

    constexpr ShiftTable() = default;
    ShiftTable(const ShiftTable&) = delete;
    ShiftTable& operator=(const ShiftTable&) = delete;

    // Sets all 65,536 entries of units to the shift.
    void FillUnits(std::int32_t shift);
    void SetUnit(wchar_t unit, std::int32_t shift);
    std::int32_t ForUnit(wchar_t unit) const { return entries_[static_cast<std::uint16_t>(unit)]; }

    // Sets the 256 entries behind those of units to the shift. The bytes 0x80 to 0xFF, whose entries lie
    // before, keep theirs.
    void FillBytes(std::int32_t shift);
    void SetByte(char byte, std::int32_t shift) { entries_[ByteIndex(byte)] = shift; }
    std::int32_t ForByte(char byte) const { return entries_[ByteIndex(byte)]; }

    // For tests: the table as it is when the program starts (all 0), and one entry by its place in the array,
    // 0 to Entries - 1.
    void Clear();
    std::int32_t EntryAt(int index) const { return entries_[index]; }

  private:
    static constexpr int ByteIndex(char byte) { return UnitEntries + static_cast<signed char>(byte); }
    static constexpr int FirstSharedUnit = UnitEntries - 128;
    static constexpr int MostNotedUnits = 260;

    std::int32_t entries_[Entries] = {};
    // What FillUnits last wrote, and the units set since: if the same shift is asked for again, only those
    // and the entries shared with bytes have to be written.
    std::int32_t unitFill_ = 0;
    int notedCount_ = 0;
    std::uint16_t notedUnits_[MostNotedUnits] = {};
};

// The one table of the process.
[[nodiscard]] ShiftTable& SharedShiftTable();

// The first occurrence of the pattern in the text, or null. Units are compared exactly, case and all. An
// empty pattern occurs nowhere. Rebuilds the shared table's entries for units, and reads them.
[[nodiscard]] const wchar_t* FindWide(const wchar_t* text, int textLength, const wchar_t* pattern,
                                      int patternLength);

// The first occurrence of the pattern that the shared table's entries lead to, or null. An empty pattern
// occurs nowhere. After a byte 0x80 to 0xFF that is not in the pattern, an entry left by an earlier call of
// this or of FindWide may lead past an occurrence (shared-shift-table).
[[nodiscard]] const char* FindBytes(const char* text, int textLength, const char* pattern, int patternLength);

// Leaves the shared table as every FindBytes of the pattern leaves it, whatever the text.
void PrepareFindBytes(const char* pattern, int patternLength);
