#pragma once

// The overlap test that keeps a folder from being copied into itself.

// Whether the source already lies in the destination folder, or the destination is the source or lies inside
// it, by the texts of the two paths, in any letter case, as the file system compares names. "\a" does not
// hold "\ab".
[[nodiscard]] bool IsInsideSource(const wchar_t* source, const wchar_t* destination);
