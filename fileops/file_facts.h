#pragma once

// What is at a path.

#include "platform/system_types.h"

// A link to a folder is not a folder itself: its contents are elsewhere.
enum class PathKind { Nothing, File, Folder, LinkToFolder };

// Decided from the attributes alone; Nothing if they cannot be read.
[[nodiscard]] PathKind KindOf(const wchar_t* path);

[[nodiscard]] bool PathExists(const wchar_t* path);

// A folder or a link to one.
[[nodiscard]] bool IsFolder(const wchar_t* path);

// Whether the path's attributes can be read and hold the bit.
[[nodiscard]] bool HasAttribute(const wchar_t* path, DWORD attribute);

// The directory record of the path itself; returns false if nothing is found.
[[nodiscard]] bool FindFile(const wchar_t* path, WIN32_FIND_DATAW& data);
