#pragma once

// What stands at a path.

// A link to a folder only leads to one that stands elsewhere.
enum class PathKind { Nothing, File, Folder, LinkToFolder };

// By one look at the attributes; Nothing when they cannot be read.
[[nodiscard]] PathKind KindOf(const wchar_t* path);

[[nodiscard]] bool PathExists(const wchar_t* path);

// A folder or a link to one.
[[nodiscard]] bool IsFolder(const wchar_t* path);
