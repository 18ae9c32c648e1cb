#pragma once

// Files as the desktop's shell knows them: paths for the shell, and for the programs that it starts: they
// leave out dots and blanks at the end of a name, take some names for devices, and know no path of MAX_PATH
// units and more. What they are told has to lead to the very file that the program means.

#include "platform/system_types.h"

#include <shellapi.h>

// Whether the shell takes the path for just what it says. So it does with an address ("http://...") and with
// a path on another machine, which are not looked at.
[[nodiscard]] bool ShellTakesPath(const wchar_t* path);

// Writes a path with a drive by which the shell finds the file: the path itself, or else the short names that
// the file system keeps beside the long ones. False where there are none that lead to this file.
[[nodiscard]] bool FindShellPath(const wchar_t* path, wchar_t (&found)[MAX_PATH]);

// As ce::SHGetFileInfo, for the very file at the path. A file that the shell has no path for is answered by
// its extension alone, with its own name; 0 where there is no such file.
DWORD_PTR GetShellFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags);

// The two calls of the shell's library. It and what it brings along take five milliseconds to load, and no
// start needs them: it is loaded at the first call. A call fails where it cannot be loaded, and the next one
// tries again.

// SHGetFileInfoW; 0 as well without the library.
DWORD_PTR ShellFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags);

// ShellExecuteExW; FALSE as well without the library.
BOOL ShellExecution(SHELLEXECUTEINFOW* info);
