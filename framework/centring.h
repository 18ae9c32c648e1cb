#pragma once

// Where a dialog is placed: in the middle of its parent or of the screen.

#include "platform/system_types.h"

// The space that the soft input panel takes at the bottom of a small screen, in pixels.
constexpr LONG InputPanelSpace = 106;

// The upper left corner for a dialog of the given size, in screen coordinates. parent is the parent's window
// rectangle, or null to centre on the screen. The dialog stays on the screen as far as it fits; one larger
// than the screen starts at 0.
[[nodiscard]] POINT CentredPosition(LONG dialogWidth, LONG dialogHeight, const RECT* parent, LONG screenWidth,
                                    LONG screenHeight);
