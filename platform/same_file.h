#pragma once

// Whether both paths lead to one and the same file, however they are spelled and whatever links are on the
// way. False when either cannot be opened.
[[nodiscard]] bool IsSameFile(const wchar_t* first, const wchar_t* second);
