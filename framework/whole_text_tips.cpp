#include "framework/whole_text_tips.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

#include "framework/page_fit.h"
#include "platform/ce_windows.h"
#include "platform/windows_ce.h"

namespace {

constexpr LONG ScreenMargin = 20;
constexpr LONG WidestLine = 400;

LONG WidthOfLine() {
    const RECT screen = ce::ScreenArea();
    return std::min(screen.right - screen.left - ScreenMargin, WidestLine);
}

// A text of a page, and room for the line breaks that it needs.
constexpr std::size_t LongestText = 1024;
using TipText = wchar_t[LongestText + LongestText / 8];

// How much of what fits a line is put there: up to the last blank, if there is one.
std::size_t EndOfLine(const wchar_t* text, std::size_t length, std::size_t fitting) {
    if (fitting >= length) return length;
    for (std::size_t units = fitting + 1; units > 1; --units) {
        if (text[units - 1] == L' ') return std::min(units, fitting);
    }
    return fitting;
}

// A path need not have a blank, at which alone a tooltip breaks its text. What does not fit is cut.
void BreakIntoLines(HWND window, const wchar_t* text, TipText& lines) {
    const HDC surface = GetDC(window);
    const HGDIOBJ before =
        SelectObject(surface, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
    std::size_t used = 0;
    for (std::size_t rest = std::wcslen(text); rest > 0;) {
        int fitting = 0;
        SIZE size{};
        GetTextExtentExPointW(surface, text, static_cast<int>(rest), WidthOfLine(), &fitting, nullptr, &size);
        const std::size_t taken = EndOfLine(text, rest, static_cast<std::size_t>(std::max(fitting, 1)));
        if (used + taken + 3 > std::size(lines)) break;
        std::wmemcpy(lines + used, text, taken);
        used += taken;
        text += taken;
        rest -= taken;
        if (rest > 0) {
            std::wmemcpy(lines + used, L"\r\n", 2);
            used += 2;
        }
    }
    lines[used] = L'\0';
    SelectObject(surface, before);
    ReleaseDC(window, surface);
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
    wchar_t text[LongestText] = L"";
    GetWindowTextW(control, text, static_cast<int>(std::size(text)));
    TipText lines;
    BreakIntoLines(window_, text, lines);
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = page;
    tool.uId = static_cast<UINT_PTR>(GetDlgCtrlID(control));
    tool.lpszText = lines;
    GetWindowRect(control, &tool.rect);
    MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&tool.rect), 2);
    SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}
