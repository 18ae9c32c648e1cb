#pragma once

// A path taken apart at its last separator.

#include "platform/system_types.h"

struct PathParts {
    wchar_t folder[MAX_PATH];
    wchar_t name[MAX_PATH];
};

// One pair of enclosing double quotes is removed first. The later of the last "\" and the last "/" separates;
// without one the folder is empty; as the first unit it is the folder itself. A part that does not fit is
// cut.
[[nodiscard]] PathParts SplitPath(const wchar_t* path);
