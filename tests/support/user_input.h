#pragma once

// Real key strokes and clicks: they go to whatever window has the focus or lies under the point, as a
// user's do.

#include <windows.h>

#include <initializer_list>
#include <string>

// Presses and releases the key while the modifiers (VK_SHIFT, VK_CONTROL, VK_MENU) are held down.
void PressKey(WORD key, std::initializer_list<WORD> modifiers = {});

// Types the text as characters.
void TypeText(const std::wstring& text);

// Moves the mouse to a point of the screen and clicks the left button there, once the mouse stays there: a
// window that has only just come up still gets the system's own news of where the mouse is.
void ClickAt(POINT point);

// Two clicks in short order while the modifiers are held down.
void DoubleClickAt(POINT point, std::initializer_list<WORD> modifiers = {});
