#include "base/format_text.h"

#include <cwchar>

#include "platform/system_types.h"

void FormatTextV(wchar_t* buffer, std::size_t capacity, const wchar_t* format, va_list arguments) {
    if (capacity == 0) return;
    // The system's own wvsprintfW knows no buffer size.
    _vsnwprintf(buffer, capacity - 1, format, arguments);
    buffer[capacity - 1] = L'\0';
}

void FormatText(wchar_t* buffer, std::size_t capacity, const wchar_t* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    FormatTextV(buffer, capacity, format, arguments);
    va_end(arguments);
}
