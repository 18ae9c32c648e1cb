#include "search/size_bound.h"

SizeAnswer SizeBoundOf(int selectedIndex, std::uint32_t position, std::uint32_t& bound) {
    constexpr int KilobyteBits = 10;
    // QUIRK: spin-error-word-counts. The bits above the position are part of the number.
    switch (selectedIndex) {
        case 0:
            bound = 0;
            return SizeAnswer::None;
        case 1:
            bound = position << KilobyteBits;
            return SizeAnswer::Min;
        case 2:
            bound = position << KilobyteBits;
            return SizeAnswer::Max;
        default:
            // QUIRK: typed-size-choice-is-no-bound
            return SizeAnswer::None;
    }
}
