#pragma once

// Paths for the system that are taken unit by unit, as a handheld takes them. The desktop otherwise drops
// dots and spaces at the end of a name ("a." would open "a") and takes names like "con" and "aux.c" for
// devices.

#include "platform/system_types.h"

// The longest literal path: the mark in front, a whole base and a whole path, and the terminator.
constexpr int LiteralPathSize = 4 + 2 * MAX_PATH + 2;

// True when the path says by itself where it starts: `base` is not looked at.
[[nodiscard]] bool IsAbsolutePath(const wchar_t* path);

// Writes the path in the literal form `\\?\D:\folder\name`: "/" reads as "\", "." and ".." are worked off,
// doubled and closing separators dropped (a drive's root keeps its own). A path without a drive takes the one
// of `base`, and one that starts with no separator starts in `base`: an absolute path, on the path's own
// drive where the path names one ("D:name"). A path or a base that starts with two separators (another
// machine's, or a literal path) is left as it is. False, with an empty destination, when the path or the base
// has MAX_PATH units or more, or where there is no drive to be had.
[[nodiscard]] bool LiteralPath(wchar_t (&destination)[LiteralPathSize], const wchar_t* path,
                               const wchar_t* base);
