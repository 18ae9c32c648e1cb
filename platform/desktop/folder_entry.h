#pragma once

// Which file, and which entry of a folder, a path opens. All paths are in the literal form.

#include "platform/system_types.h"

// As IsSameFile, for paths in the literal form, of any length.
[[nodiscard]] bool OpensSameFile(const wchar_t* first, const wchar_t* second);

// The name under which its folder lists what the path leads to; false where it lists nothing.
[[nodiscard]] bool ListedName(const wchar_t* path, wchar_t (&name)[MAX_PATH]);

// Whether both paths lead to one file or folder and to one entry of one folder: not so for a link and what it
// leads to, nor for two hard links.
[[nodiscard]] bool IsSameEntry(const wchar_t* first, const wchar_t* second);

using MoveCall = BOOL(WINAPI*)(const wchar_t* from, const wchar_t* to);

// Gives an entry another spelling of its name, both paths being the same entry. Systems that find the entry
// by its new name as well say that all is done and change nothing, so it goes by way of a third name. FALSE,
// with the entry under its old name, when it cannot. `move` is the system's MoveFileW.
[[nodiscard]] BOOL RespellEntry(const wchar_t* from, const wchar_t* to, MoveCall move);
