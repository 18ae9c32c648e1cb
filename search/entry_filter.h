#pragma once

// The entry filter: one directory entry against all conditions, the cheapest first.

#include "search/walk_context.h"

// Hands an entry of the folder to the sink if it passes all conditions. Returns Stop, without a test, if the
// walk has to stop; otherwise GoOn, match or not. An entry whose path does not fit is skipped.
[[nodiscard]] WalkStep TestEntry(SearchWalk& walk, const wchar_t* folder, const WIN32_FIND_DATAW& entry);
