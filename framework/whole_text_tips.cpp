#include "framework/whole_text_tips.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "framework/page_fit.h"
#include "platform/screen_area.h"
#include "platform/windows_ce.h"

namespace {

constexpr LONG ScreenMargin = 20;
constexpr LONG WidestLine = 400;

LONG WidthOfLine() {
    const RECT screen = ce::ScreenArea();
    return std::min(screen.right - screen.left - ScreenMargin, WidestLine);
}

// How much of what fits a line is put there: up to the last blank, if there is one.
std::size_t EndOfLine(const std::wstring& text, std::size_t start, std::size_t fitting) {
    if (start + fitting >= text.size()) return fitting;
    const std::size_t blank = text.rfind(L' ', start + fitting);
    return blank == std::wstring::npos || blank <= start ? fitting : std::min(blank + 1 - start, fitting);
}

// A path need not have a blank, at which alone a tooltip breaks its text.
std::wstring InLines(HWND window, const std::wstring& text) {
    const HDC surface = GetDC(window);
    const HGDIOBJ before =
        SelectObject(surface, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
    std::wstring lines;
    for (std::size_t start = 0; start < text.size();) {
        int fitting = 0;
        SIZE size{};
        GetTextExtentExPointW(surface, text.c_str() + start, static_cast<int>(text.size() - start),
                              WidthOfLine(), &fitting, nullptr, &size);
        const std::size_t taken = EndOfLine(text, start, static_cast<std::size_t>(std::max(fitting, 1)));
        lines += (start > 0 ? L"\r\n" : L"") + text.substr(start, taken);
        start += taken;
    }
    SelectObject(surface, before);
    ReleaseDC(window, surface);
    return lines;
}

std::wstring TextOf(HWND control) {
    wchar_t text[1024] = L"";
    GetWindowTextW(control, text, static_cast<int>(std::size(text)));
    return text;
}

}  // namespace

void WholeTextTips::Add(HWND page, std::span<const int> ids) {
    for (const int id : ids) {
        const HWND control = GetDlgItem(page, id);
        if (control != nullptr && !IsTextWhole(control) && HasWindow(page)) Add(page, control);
    }
}

void WholeTextTips::Remove() {
    if (window_ != nullptr) DestroyWindow(window_);
    window_ = nullptr;
}

bool WholeTextTips::HasWindow(HWND page) {
    if (window_ != nullptr) return true;
    window_ =
        ce::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                            0, 0, 0, 0, page, nullptr, nullptr, nullptr);
    if (window_ == nullptr) return false;
    // Without a width a tooltip has one line only.
    SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, WidthOfLine() + ScreenMargin);
    return true;
}

// The pointer's messages pass through a static to the page.
void WholeTextTips::Add(HWND page, HWND control) {
    std::wstring text = InLines(window_, TextOf(control));
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = page;
    tool.uId = static_cast<UINT_PTR>(GetDlgCtrlID(control));
    tool.lpszText = text.data();
    GetWindowRect(control, &tool.rect);
    MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&tool.rect), 2);
    SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}
