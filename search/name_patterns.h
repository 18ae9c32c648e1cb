#pragma once

// From the name and the type that the user gave to what the walk enumerates and which names it lets pass.

#include "base/object_list.h"
#include "search/search_conditions.h"

// Appends the enumeration patterns, as StringObjects, in the order in which they are tried, and returns the
// text that a name must contain: empty when there is no such test, else nameText itself. With the type filter
// set the name is ignored and each extension of the text gives a pattern, the last one first; the text is cut
// in place on the way, and one without "." gives no pattern. A pattern that cannot be allocated is appended
// as a null item.
[[nodiscard]] const wchar_t* BuildNamePatterns(const SearchConditions& conditions, const wchar_t* nameText,
                                               wchar_t* extensions, ObjectList& patterns);
