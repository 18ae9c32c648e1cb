#pragma once

// The walk as the rule words it, with a listing for every pattern and one more for the sub-folders.

#include "search/search_walk.h"

void PlainWalkFolder(SearchWalk& walk, const wchar_t* folder);
