#pragma once

// What the operations and the questions need to know of files.

#include "platform/system_types.h"

constexpr int FileDetailsCapacity = 600;

// What stands at a path. A link to a folder is none itself: what it holds stands elsewhere.
enum class PathKind { Nothing, File, Folder, LinkToFolder };

// By one look at the attributes; Nothing when they cannot be read.
[[nodiscard]] PathKind KindOf(const wchar_t* path);

[[nodiscard]] bool PathExists(const wchar_t* path);

// A folder or a link to one.
[[nodiscard]] bool IsFolder(const wchar_t* path);

// Whether the text ends in ".exe" or ".com", in any case, and has something before that.
[[nodiscard]] bool IsProgramFile(const wchar_t* text);

// Whether the path's attributes can be read and hold the bit.
[[nodiscard]] bool HasAttribute(const wchar_t* path, DWORD attribute);

// The directory record of the path itself; false when nothing is found.
[[nodiscard]] bool FindFile(const wchar_t* path, WIN32_FIND_DATAW& data);

// The low 32 bits of a size as "99.9KB (102399 bytes)" below 100 KB (one decimal, truncated) or
// "100KB (102400 bytes)" from there.
void FormatSizeDetails(DWORD lowSize, wchar_t* text, std::size_t capacity);

// A time in UTC as local date and time in the system's own short forms, joined by one blank.
void FormatTimeDetails(const FILETIME& time, wchar_t* text, std::size_t capacity);

// Size, a line break, and the time of last writing. Empty for a file that cannot be found.
void FormatFileDetails(const wchar_t* path, wchar_t (&text)[FileDetailsCapacity]);
