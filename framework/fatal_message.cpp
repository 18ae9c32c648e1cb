#include "framework/fatal_message.h"

#include <cstdarg>
#include <iterator>

#include "base/format_text.h"
#include "base/program_context.h"
#include "platform/windows_ce.h"

int ShowFatal(HWND owner, const wchar_t* format, ...) {
    wchar_t text[520];
    va_list arguments;
    va_start(arguments, format);
    FormatTextV(text, std::size(text), format, arguments);
    va_end(arguments);
    return ce::MessageBoxW(owner, text, InLanguage(L"Fatal", L"致命的なｴﾗｰ"), MB_ICONERROR);
}
