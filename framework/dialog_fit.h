#pragma once

// Fits a dialog to its texts and to the screen. A question may be longer than the template allows for, and a
// screen of 240 lines is lower than the larger templates. Call all of these while the dialog is being
// initialised, when its texts are set and its menu bar is not yet created.

#include "platform/system_types.h"

// Widens a one-line static to fit its text, at most up to a small margin from the dialog's right edge.
void WidenToText(HWND dialog, int id);

// Whether all of a one-line static's text is visible.
[[nodiscard]] bool ShowsWholeText(HWND dialog, int id);

// Makes a static high enough for its wrapped text. The controls below it move down, and the dialog grows with
// it as far as the screen allows; the text is cut at the end of the screen.
void GrowToText(HWND dialog, int id);

// Fits the dialog, with its menu bar, to the height of the screen, and its controls to its width. If they
// need more height and the screen is wide enough, everything below the control lastKept moves into a second
// column on the right. If that is not enough, or a text is still cut, the rows move closer together and the
// font becomes smaller.
void FitToScreen(HWND dialog, int lastKept);

// Gives every text below the title line the height that it needs. If the lowest control then ends below the
// given height, the rows move closer together and the font becomes smaller, pixel by pixel, until it does
// not. If even the smallest font needs more, the longest text is cut. A control further right than
// columnWidth belongs to a second column, whose rows do not depend on those of the first.
void SqueezeRows(HWND dialog, LONG columnWidth, LONG height);

// Shortens the heading's static so that it does not cover the title line that the dialog draws below it.
void KeepTitleLineFree(HWND dialog);
