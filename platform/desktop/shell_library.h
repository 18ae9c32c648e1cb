#pragma once

// The two calls of the shell's library. It and what it brings along take five milliseconds to load, and no
// start needs them: it is loaded at the first call. A call fails where it cannot be loaded, and the next one
// tries again.

#include "platform/system_types.h"

#include <shellapi.h>

// SHGetFileInfoW; 0 as well without the library.
DWORD_PTR ShellFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags);

// ShellExecuteExW; FALSE as well without the library.
BOOL ShellExecution(SHELLEXECUTEINFOW* info);
