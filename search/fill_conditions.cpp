#include "search/fill_conditions.h"

#include "base/program_context.h"
#include "platform/windows_ce.h"
#include "search/double_byte_text.h"
#include "search/text_conversion.h"

namespace {

// QUIRK: utc-read-as-local. Both ends of a range are taken as local times, also those that "Past" counts from
// the UTC clock.
void StoreAsUtc(const SYSTEMTIME& local, FILETIME& utc) {
    FILETIME localTime = {};
    SystemTimeToFileTime(&local, &localTime);
    ce::LocalFileTimeToFileTime(&localTime, &utc);
}

void FillContentPattern(const ConditionSource& source, SearchConditions& conditions) {
    wchar_t content[ContentTextSize] = {};
    source.ContentText(content);
    // QUIRK: blanks-are-content
    if (content[0] == L'\0') return;
    conditions.flags |= SearchConditions::ContentString;
    const ToMultiByteRoutine chosen = Context().toMultiByte;
    const ToMultiByteRoutine toMultiByte = chosen != nullptr ? chosen : DefaultToMultiByte;
    toMultiByte(content, conditions.contentPattern, static_cast<int>(sizeof(conditions.contentPattern)));
}

void FillDateRange(const ConditionSource& source, SearchConditions& conditions) {
    DateRange range;
    if (!source.DateRangeChosen(range)) return;
    conditions.flags |= SearchConditions::DateRange;
    StoreAsUtc(range.first, conditions.fromTime);
    StoreAsUtc(range.second, conditions.toTime);
}

void FillSizeBound(const ConditionSource& source, SearchConditions& conditions) {
    switch (source.SizeBound(conditions.sizeBound)) {
        case SizeAnswer::Min:
            conditions.flags |= SearchConditions::SizeAbove;
            break;
        case SizeAnswer::Max:
            conditions.flags |= SearchConditions::SizeBelow;
            break;
        case SizeAnswer::None:
            break;
    }
}

}  // namespace

void FillConditions(const ConditionSource& source, SearchConditions& conditions, SearchTexts& texts) {
    conditions.flags = 0;
    // QUIRK: location-is-not-checked
    source.LocationText(texts.location);
    if (texts.location[0] == L'\0') {
        texts.location[0] = L'\\';
        texts.location[1] = L'\0';
    }
    source.NameText(texts.name);
    FillContentPattern(source, conditions);
    // QUIRK: greyed-case-item-counts-as-checked. The state word is tested whole.
    if (source.CaseOptionState() == 0) conditions.flags |= SearchConditions::IgnoreCase;
    if (source.SubFoldersChecked()) conditions.flags |= SearchConditions::SubFolders;
    FillDateRange(source, conditions);
    if (source.TypeIndex() != 0) conditions.flags |= SearchConditions::TypeFilter;
    source.TypeExtensions(texts.extensions);
    FillSizeBound(source, conditions);
    // An older pattern is folded again when there is no new one; nothing reads it.
    if (conditions.Has(SearchConditions::IgnoreCase)) {
        UpperCaseBytes(conditions.contentPattern, Context().codeConversionAvailable);
    }
}
