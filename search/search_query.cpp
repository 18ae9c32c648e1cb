#include "search/search_query.h"

#include "base/program_context.h"
#include "platform/windows_ce.h"
#include "search/double_byte_text.h"
#include "search/text_conversion.h"

namespace {

// QUIRK: utc-read-as-local. Both ends of a range are taken as local times, even those that "Past" counts from
// the UTC clock.
void StoreAsUtc(const SYSTEMTIME& local, FILETIME& utc) {
    FILETIME localTime = {};
    SystemTimeToFileTime(&local, &localTime);
    ce::LocalFileTimeToFileTime(&localTime, &utc);
}

void FillContentPattern(const wchar_t* content, SearchConditions& conditions) {
    // QUIRK: blanks-are-content
    if (content[0] == L'\0') return;
    conditions.flags |= SearchConditions::ContentString;
    const ToMultiByteRoutine chosen = Context().toMultiByte;
    const ToMultiByteRoutine toMultiByte = chosen != nullptr ? chosen : DefaultToMultiByte;
    toMultiByte(content, conditions.contentPattern, static_cast<int>(sizeof(conditions.contentPattern)));
}

void FillDateRange(const std::optional<DateRange>& range, SearchConditions& conditions) {
    if (!range) return;
    conditions.flags |= SearchConditions::DateRange;
    StoreAsUtc(range->from, conditions.fromTime);
    StoreAsUtc(range->to, conditions.toTime);
}

void FillSizeBound(const SizeBound& bound, SearchConditions& conditions) {
    if (bound.limit == SizeLimit::Above) conditions.flags |= SearchConditions::SizeAbove;
    if (bound.limit == SizeLimit::Below) conditions.flags |= SearchConditions::SizeBelow;
    if (bound.bytes) conditions.sizeBound = *bound.bytes;
}

}  // namespace

void FillConditions(const SearchQuery& query, SearchConditions& conditions) {
    conditions.flags = 0;
    FillContentPattern(query.content, conditions);
    if (query.ignoreCase) conditions.flags |= SearchConditions::IgnoreCase;
    if (query.subFolders) conditions.flags |= SearchConditions::SubFolders;
    FillDateRange(query.dateRange, conditions);
    if (query.typeFilter) conditions.flags |= SearchConditions::TypeFilter;
    FillSizeBound(query.sizeBound, conditions);
    // Without a new pattern the old one is folded once more; nothing reads it.
    if (query.ignoreCase) UpperCaseBytes(conditions.contentPattern, Context().codeConversionAvailable);
}
