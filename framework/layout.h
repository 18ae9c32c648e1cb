#pragma once

// Where windows and controls are placed, and how much room their texts need.

#include "platform/windows_ce.h"

// The space that the soft input panel takes at the bottom of a small screen, in pixels.
constexpr LONG InputPanelSpace = 106;

// The row of the line that a dialog draws below its heading, in client coordinates.
constexpr LONG TitleLineY = 24;

// Between a control and the right edge of its dialog or page, in pixels.
constexpr LONG RightMargin = 3;

// The upper left corner for a dialog of the given size, in screen coordinates. parent is the parent's window
// rectangle, or null to centre on the screen. The dialog stays on the screen as far as it fits; one larger
// than the screen starts at 0.
[[nodiscard]] POINT CentredPosition(LONG dialogWidth, LONG dialogHeight, const RECT* parent, LONG screenWidth,
                                    LONG screenHeight);

// Moves the window to the middle of the other one, or of the screen if there is none.
void CentreOn(HWND window, HWND other);

// Where the control is, in its parent's client coordinates.
[[nodiscard]] RECT PlaceOf(HWND control);
// Moves it there.
void Place(HWND control, const RECT& place);

[[nodiscard]] SIZE ClientSizeOf(HWND window);

// Calls visit with each child of the window, in their order.
template <class Visit>
void ForEachControl(HWND window, Visit visit) {
    for (HWND control = GetWindow(window, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT))
        visit(control);
}

// Moves the controls that begin at the line or below it.
void MoveControlsBelow(HWND window, LONG line, LONG right, LONG down);

// Whether this is the control's window class, ignoring case.
[[nodiscard]] bool IsOfClass(HWND control, const wchar_t* className);

// The control's font; null for the system font.
[[nodiscard]] HFONT FontOf(HWND control);

void SetFont(HWND control, HFONT font);

// What the control's text needs in its font: its width on one line, its height when wrapped at the given
// width, and the height of a single line.
[[nodiscard]] LONG TextWidth(HWND control);
[[nodiscard]] LONG TextHeight(HWND control, LONG width);
[[nodiscard]] LONG LineHeight(HWND control);
