#pragma once

// A folder that may have to be made, with the folders that lead to it.

#include "platform/system_types.h"

// Makes what is missing of the path. A folder that cannot be made is reported in one box, owned by the
// window, and the answer is false; so it is, without a word, where a file stands in the way and for a path
// without a separator.
[[nodiscard]] bool CreateFolderPath(HWND owner, const wchar_t* path);
