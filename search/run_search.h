#pragma once

// One search from start to end.

#include "search/condition_source.h"
#include "search/search_conditions.h"
#include "search/search_receivers.h"

// Fills the conditions from the source, clears the sink and walks the location; returns when the walk has
// ended or was stopped; a stop in the middle of the clearing still empties the sink. Dispatches messages on
// the way, so the caller sees to it that no second search starts meanwhile.
void RunSearch(SearchConditions& conditions, const ConditionSource& source, MatchSink& sink,
               SearchProgress& progress);
