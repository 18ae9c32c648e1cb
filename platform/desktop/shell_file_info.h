#pragma once

// The shell's answers about a file, for the very file at the path.

#include "platform/system_types.h"

#include <shellapi.h>

// As ce::SHGetFileInfo. A file that the shell has no path for is answered by its extension alone, with its
// own name; 0 where there is no such file.
DWORD_PTR GetShellFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags);
