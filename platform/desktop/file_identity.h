#pragma once

// Which file, and which entry of a folder, a path opens, and whether by way of a link.

#include "platform/system_types.h"

// As ce::IsSameFile, for paths in the literal form, of any length. The next three functions take such paths
// too; the links below are asked for by the program's own paths.
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

// Whether the folder at the path, known to be no ordinary one, is a link to a folder that stands elsewhere. A
// folder that cannot be opened counts as a link: there is nothing to be found in it.
[[nodiscard]] bool LeadsElsewhere(const wchar_t* path);

// Whether the path is a link that the system follows even when asked for the link itself, as Wine does: what
// is done to the link would be done to the folder or file that it leads to.
[[nodiscard]] bool IsOutOfReach(const wchar_t* path);

// Whether the path ends in a link to a file, so that what is written to the path would be written to that
// file.
[[nodiscard]] bool LeadsToAnotherFile(const wchar_t* path);
