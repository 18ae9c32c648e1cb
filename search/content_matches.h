#pragma once

// The last and dearest test of an entry: whether the file holds the content string.

#include "platform/system_types.h"
#include "search/search_conditions.h"

// To be asked only with ContentString set. False for a folder, and for a file that cannot be opened (locked,
// vanished, no rights); a read error counts as the file's end. Pumps no message.
[[nodiscard]] bool ContentMatches(const SearchConditions& conditions, const wchar_t* fullPath,
                                  const WIN32_FIND_DATAW& entry);
