#pragma once

// One search from start to end.

#include "search/search_conditions.h"
#include "search/search_query.h"
#include "search/search_receivers.h"

// Fills the conditions from the query, clears the sink and walks the location. Returns when the walk has
// ended or was stopped; a stop in the middle of the clearing still empties the sink. Dispatches messages
// meanwhile, so the caller has to see to it that no second search starts.
void RunSearch(SearchConditions& conditions, const SearchQuery& query, MatchSink& sink,
               SearchProgress& progress);
