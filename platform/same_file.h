#pragma once

// Whether both paths lead to one and the same file, however they are spelled and whatever links stand on the
// way. False when either cannot be opened.
[[nodiscard]] bool IsSameFile(const wchar_t* first, const wchar_t* second);

// The same for paths in the literal form, of any length.
[[nodiscard]] bool OpensSameFile(const wchar_t* first, const wchar_t* second);
