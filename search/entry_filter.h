#pragma once

// One directory entry against all conditions, the cheapest first.

#include "search/search_walk.h"

// Hands the entry of the folder to the sink when it passes. False when the search is to stop, true otherwise,
// match or not. An entry whose path does not fit is passed over.
[[nodiscard]] bool TestEntry(SearchWalk& walk, const wchar_t* folder, const WIN32_FIND_DATAW& entry);
