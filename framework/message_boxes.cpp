#include "framework/message_boxes.h"

#include <cstdarg>
#include <iterator>

#include "base/format_text.h"
#include "base/program_context.h"
#include "platform/windows_ce.h"

namespace {

int ShowBox(HWND owner, const wchar_t* title, UINT style, const wchar_t* format, va_list arguments) {
    wchar_t text[1024];
    FormatTextV(text, std::size(text), format, arguments);
    return ce::MessageBoxW(owner, text, title, style);
}

}  // namespace

int ShowError(HWND owner, const wchar_t* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const int answer = ShowBox(owner, InLanguage(L"Error", L"ｴﾗｰ"), MB_OK | MB_ICONSTOP, format, arguments);
    va_end(arguments);
    return answer;
}

int AskConfirmation(HWND owner, const wchar_t* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const int answer = ShowBox(owner, InLanguage(L"Confirmation", L"確認"), MB_OKCANCEL | MB_ICONEXCLAMATION,
                               format, arguments);
    va_end(arguments);
    return answer;
}

int ShowFatal(HWND owner, const wchar_t* format, ...) {
    wchar_t text[520];
    va_list arguments;
    va_start(arguments, format);
    FormatTextV(text, std::size(text), format, arguments);
    va_end(arguments);
    return ce::MessageBoxW(owner, text, InLanguage(L"Fatal", L"致命的なｴﾗｰ"), MB_ICONERROR);
}
