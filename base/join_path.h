#pragma once

// A folder and a name become one path.

#include "platform/system_types.h"

// Writes the folder, a "\" unless the folder is empty or ends in one or the name starts with a drive ("C:"),
// and the name. False, with an empty destination, when that does not fit in MAX_PATH units with the
// terminator. The folder may be the destination itself; the name may not lie in the destination.
[[nodiscard]] bool JoinPath(wchar_t (&destination)[MAX_PATH], const wchar_t* folder, const wchar_t* name);
