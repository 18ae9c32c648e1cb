#pragma once

// What questions and properties say about a file.

#include "platform/system_types.h"

constexpr int FileDetailsCapacity = 600;

// Whether the text ends in ".exe" or ".com", in any case, and has something before that.
[[nodiscard]] bool IsProgramFile(const wchar_t* text);

// The low 32 bits of a size as "99.9KB (102399 bytes)" below 100 KB (one decimal, truncated) or
// "100KB (102400 bytes)" from there.
void FormatSizeDetails(DWORD lowSize, wchar_t* text, std::size_t capacity);

// A time in UTC as local date and time in the system's own short forms, joined by one blank.
void FormatTimeDetails(const FILETIME& time, wchar_t* text, std::size_t capacity);

// Size, a line break, and the time of last writing. Empty for a file that cannot be found.
void FormatFileDetails(const wchar_t* path, wchar_t (&text)[FileDetailsCapacity]);
