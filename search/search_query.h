#pragma once

// What the user asks for: the condition pages and the Option menu fill a new query for each search, and
// FillConditions turns it into the conditions that entries are tested against.

#include <optional>

#include "platform/system_types.h"
#include "search/date_and_size.h"
#include "search/search_conditions.h"

// Room for the content string: at most 260 units of it count.
constexpr int ContentTextSize = 261;

// Each text is terminated, and cut if it does not fit.
struct SearchQuery {
    // The folder that the walk starts in; empty for the root.
    wchar_t location[MAX_PATH] = {};
    bool subFolders = false;
    wchar_t name[MAX_PATH] = {};
    // Whether the extensions (".htm.html") decide instead of the name.
    bool typeFilter = false;
    wchar_t extensions[MAX_PATH] = {};
    wchar_t content[ContentTextSize] = {};
    // For the content only; names follow their own rule.
    bool ignoreCase = false;
    // Empty if any date will do.
    std::optional<DateRange> dateRange;
    SizeBound sizeBound;
};

// Sets the conditions' flags anew, and the values whose bit it sets; other values may keep what an earlier
// search left in them. Reports no error: content bytes that do not fit are cut, a date that cannot be
// converted is ignored.
void FillConditions(const SearchQuery& query, SearchConditions& conditions);
