#pragma once

// Makes a dialog of fixed places fit its texts and the screen. A question may be longer than its place in the
// template, and a screen of 240 lines is lower than the larger templates. All of it is to be called while the
// dialog is initialised: texts set, menu bar not yet made.

#include "platform/system_types.h"

// Widens a static of one line to what its text needs, at most to a small margin from the dialog's right edge.
void WidenToText(HWND dialog, int id);

// Whether the text of a static of one line is shown whole.
[[nodiscard]] bool ShowsWholeText(HWND dialog, int id);

// Makes a static as high as its broken text needs. What stands below moves down as far as needed, and the
// dialog grows with it where the screen allows; there the text ends where the screen does.
void GrowToText(HWND dialog, int id);

// Leaves the dialog no higher than the screen with its menu bar, and no control beyond its right edge. If the
// controls need more than that height and the screen is wide enough, everything below the control lastKept
// moves into a second column on the right. If that is not enough, or a text is still cut, the rows give way
// to each other and the letters become smaller.
void FitToScreen(HWND dialog, int lastKept);

// Takes the heading's static off the title line that the dialog draws below it.
void KeepTitleLineFree(HWND dialog);
