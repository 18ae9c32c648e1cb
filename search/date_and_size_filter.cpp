#include "search/date_and_size_filter.h"

bool PassesDateAndSize(const SearchConditions& conditions, const WIN32_FIND_DATAW& entry) {
    if (conditions.Has(SearchConditions::DateRange)) {
        if (CompareFileTime(&entry.ftLastWriteTime, &conditions.fromTime) < 0) return false;
        if (CompareFileTime(&entry.ftLastWriteTime, &conditions.toTime) > 0) return false;
    }
    // QUIRK: sizes-have-32-bits
    const std::uint32_t size = entry.nFileSizeLow;
    // QUIRK: bounds-are-strict
    if (conditions.Has(SearchConditions::SizeAbove) && size <= conditions.sizeBound) return false;
    if (conditions.Has(SearchConditions::SizeBelow) && size >= conditions.sizeBound) return false;
    return true;
}
