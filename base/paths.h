#pragma once

// Paths joined from a folder and a name, and taken apart again.

#include "platform/system_types.h"

// Writes the folder, a "\" unless the folder is empty or ends in one or the name starts with a drive ("C:"),
// and the name. False, with an empty destination, when that does not fit in MAX_PATH units with the
// terminator. The folder may be the destination itself; the name may not lie in the destination.
[[nodiscard]] bool JoinPath(wchar_t (&destination)[MAX_PATH], const wchar_t* folder, const wchar_t* name);

// What SplitPath returns.
struct PathParts {
    wchar_t folder[MAX_PATH];
    wchar_t name[MAX_PATH];
};

// One pair of enclosing double quotes is removed first. The later of the last "\" and the last "/" separates;
// without one the folder is empty; as the first unit it is the folder itself. A part that does not fit is
// cut.
[[nodiscard]] PathParts SplitPath(const wchar_t* path);
