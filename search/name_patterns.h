#pragma once

// From the name and the type of the query to what the walk enumerates and which names it lets pass.

#include "base/object_list.h"
#include "search/search_query.h"

// Appends the enumeration patterns, as StringObjects, in the order in which they are tried, and returns the
// text that a name must contain: empty if there is no such test, else the query's name itself. With the type
// filter the name is ignored and each extension gives a pattern, the last one first; extensions without "."
// give none. A pattern that cannot be allocated is appended as a null item.
[[nodiscard]] const wchar_t* BuildNamePatterns(const SearchQuery& query, ObjectList& patterns);
