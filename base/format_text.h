#pragma once

// The system's wide formatting ("%s" is a wide text, "%d" a number) with a buffer whose size is known.

#include <cstdarg>
#include <cstddef>

// Always terminates; a text that does not fit is cut.
void FormatTextV(wchar_t* buffer, std::size_t capacity, const wchar_t* format, va_list arguments);
void FormatText(wchar_t* buffer, std::size_t capacity, const wchar_t* format, ...);
