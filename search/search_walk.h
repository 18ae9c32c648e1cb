#pragma once

// The walk over one folder and, with SubFolders set, over everything below it.

#include "search/walk_context.h"

// First the folder's entries, pattern by pattern in the order in which the system lists them, then each
// sub-folder's whole subtree. A folder that cannot be listed and a path that does not fit are skipped
// silently. Stops at the next entry once the user or a quit asks for it; what was found so far stays.
void WalkFolder(SearchWalk& walk, const wchar_t* folder);
