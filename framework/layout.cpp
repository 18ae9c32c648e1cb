#include "framework/layout.h"

#include <algorithm>
#include <iterator>

#include "platform/ce_windows.h"
#include "platform/handles.h"

namespace {

constexpr LONG SmallScreenWidth = 240;

// The part of the parent's rectangle that the soft input panel leaves free.
RECT FreeAreaOf(const RECT& parent, LONG screenWidth, LONG screenHeight) {
    RECT area = parent;
    // QUIRK: input-panel-space-stays-free
    if (screenWidth <= SmallScreenWidth) area.bottom = std::min(area.bottom, screenHeight - InputPanelSpace);
    return area;
}

SIZE TextSize(HWND control, const wchar_t* text, int length, LONG width, UINT format) {
    const WindowContext context(control);
    const SelectedObject font(context.Get(), FontOf(control));
    RECT area{0, 0, width, 0};
    DrawTextW(context.Get(), text, length, &area, format | DT_CALCRECT | DT_NOPREFIX | DT_EXPANDTABS);
    return {area.right, area.bottom};
}

// Of the control's own text.
SIZE TextSize(HWND control, LONG width, UINT format) {
    wchar_t text[1024] = L"";
    const int length = GetWindowTextW(control, text, static_cast<int>(std::size(text)));
    return TextSize(control, text, length, width, format);
}

}  // namespace

POINT CentredPosition(LONG dialogWidth, LONG dialogHeight, const RECT* parent, LONG screenWidth,
                      LONG screenHeight) {
    const RECT area = parent != nullptr ? FreeAreaOf(*parent, screenWidth, screenHeight)
                                        : RECT{0, 0, screenWidth, screenHeight};
    LONG x = area.left + (area.right - area.left - dialogWidth) / 2;
    LONG y = area.top + (area.bottom - area.top - dialogHeight) / 2;
    x = std::max(std::min(x, screenWidth - dialogWidth), LONG{0});
    y = std::max(std::min(y, screenHeight - dialogHeight), LONG{0});
    return {x, y};
}

void CentreOn(HWND window, HWND other) {
    RECT own{};
    RECT around{};
    GetWindowRect(window, &own);
    const bool hasOther = other != nullptr && GetWindowRect(other, &around);
    const LONG width = own.right - own.left;
    const LONG height = own.bottom - own.top;
    const POINT corner =
        CentredPosition(width, height, hasOther ? &around : nullptr, ce::GetSystemMetrics(SM_CXSCREEN),
                        ce::GetSystemMetrics(SM_CYSCREEN));
    MoveWindow(window, corner.x, corner.y, width, height, TRUE);
}

RECT PlaceOf(HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void Place(HWND control, const RECT& place) {
    SetWindowPos(control, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

SIZE ClientSizeOf(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return {area.right, area.bottom};
}

void MoveControlsBelow(HWND window, LONG line, LONG right, LONG down) {
    ForEachControl(window, [=](HWND control) {
        RECT place = PlaceOf(control);
        if (place.top < line) return;
        OffsetRect(&place, right, down);
        Place(control, place);
    });
}

bool IsOfClass(HWND control, const wchar_t* className) {
    wchar_t name[32] = L"";
    ce::GetClassNameW(control, name, static_cast<int>(std::size(name)));
    return lstrcmpiW(name, className) == 0;
}

HFONT FontOf(HWND control) {
    return reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
}

void SetFont(HWND control, HFONT font) {
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

LONG TextWidth(HWND control) {
    return TextSize(control, 0, DT_SINGLELINE).cx;
}

LONG TextHeight(HWND control, LONG width) {
    return TextSize(control, width, DT_WORDBREAK | DT_EDITCONTROL).cy;
}

LONG LineHeight(HWND control) {
    return TextSize(control, L"A", 1, 0, DT_SINGLELINE).cy;
}
