#pragma once

// Places and texts of made-up controls, in the place of framework/layout.h. Each letter is half as wide as it
// is high, and lines are broken anywhere.

#include "made_up_dialog.h"

constexpr LONG TitleLineY = 24;
constexpr LONG RightMargin = 3;

template <class Visit>
void ForEachControl(HWND window, Visit visit) {
    for (MadeUpWindow& control : AsMadeUp(window).children)
        visit(control.Handle());
}

inline RECT PlaceOf(HWND control) {
    return AsMadeUp(control).place;
}
inline void Place(HWND control, const RECT& place) {
    AsMadeUp(control).place = place;
}
inline SIZE ClientSizeOf(HWND window) {
    return AsMadeUp(window).ClientSize();
}
inline void MoveControlsBelow(HWND window, LONG line, LONG right, LONG down) {
    for (MadeUpWindow& control : AsMadeUp(window).children) {
        RECT& place = control.place;
        if (place.top < line) continue;
        place = {place.left + right, place.top + down, place.right + right, place.bottom + down};
    }
}
inline bool IsOfClass(HWND control, const wchar_t* className) {
    return AsMadeUp(control).className == className;
}
inline HFONT FontOf(HWND control) {
    return AsMadeUp(control).font;
}
inline void SetFont(HWND control, HFONT font) {
    AsMadeUp(control).font = font;
}
inline LONG LineHeight(HWND control) {
    return LettersOf(AsMadeUp(control).font) + 3;
}
inline LONG TextWidth(HWND control) {
    return AsMadeUp(control).textUnits * LettersOf(AsMadeUp(control).font) / 2;
}
inline LONG TextHeight(HWND control, LONG width) {
    const LONG lines = width > 0 ? (TextWidth(control) + width - 1) / width : 1;
    return lines * LineHeight(control);
}
