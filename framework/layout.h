#pragma once

// Where windows and controls are placed.

#include "platform/system_types.h"

// The space that the soft input panel takes at the bottom of a small screen, in pixels.
constexpr LONG InputPanelSpace = 106;

// The upper left corner for a dialog of the given size, in screen coordinates. parent is the parent's window
// rectangle, or null to centre on the screen. The dialog stays on the screen as far as it fits; one larger
// than the screen starts at 0.
[[nodiscard]] POINT CentredPosition(LONG dialogWidth, LONG dialogHeight, const RECT* parent, LONG screenWidth,
                                    LONG screenHeight);

// Between a control and the right edge of its dialog or page, in pixels.
constexpr LONG RightMargin = 3;

// Where the control is, in its parent's client coordinates.
[[nodiscard]] RECT PlaceOf(HWND control);
// Puts it there.
void Place(HWND control, const RECT& place);
