#pragma once

// The first step of a search: the pages' answers become the record of conditions and three working texts.

#include "platform/system_types.h"
#include "search/condition_source.h"
#include "search/search_conditions.h"

// Live for one search, beside the conditions.
struct SearchTexts {
    // Where the walk starts; "\" when the user gave nothing.
    wchar_t location[MAX_PATH] = {};
    wchar_t name[MAX_PATH] = {};
    wchar_t extensions[MAX_PATH] = {};
};

// Asks the source everything once. Reports no error: a text that is too long is cut, a date that cannot be
// converted is not noticed.
void FillConditions(const ConditionSource& source, SearchConditions& conditions, SearchTexts& texts);
