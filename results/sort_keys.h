#pragma once

// How the cells of a column compare: by the text they show, not by the files. So all files that show 1K are
// equal, a folder sorts as size 0, and the year 99 comes after 02.

#include <cstdint>

// QUIRK: sort-reads-127-units. A cell is compared by its first 127 units.
constexpr int SortTextCapacity = 128;

// The bytes that a Size cell stands for ("12K" is 12,288); 0 for a folder's empty cell.
[[nodiscard]] std::int32_t ParseShownSize(const wchar_t* text);

// Negative, zero or positive, in ascending order.
[[nodiscard]] int CompareSizes(std::int32_t first, std::int32_t second);

// Texts compare without regard to letter case: folded once, and then by their units, in ascending order as
// above.
void FoldForComparison(wchar_t* text);
[[nodiscard]] int CompareFoldedTexts(const wchar_t* first, const wchar_t* second);
