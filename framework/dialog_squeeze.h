#pragma once

// The last resort for a dialog whose texts or rows do not fit: the rows move, and the letters become smaller.

#include "platform/system_types.h"

// Gives every text below the title line the height that it needs. If the lowest control then ends below the
// given height, the rows close up and the letters become smaller, pixel by pixel, until it does not. Where
// even the smallest letters need more, the longest text loses its end. A control further right than
// columnWidth belongs to a second column, whose rows do not depend on the first one's.
void SqueezeRows(HWND dialog, LONG columnWidth, LONG height);

// The height that a control needs for its text at its width; its own height where it has none.
[[nodiscard]] LONG HeightForText(HWND control);
