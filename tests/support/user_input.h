#pragma once

// Real key strokes and clicks: they go to whatever window has the focus or lies under the point, as a
// user's do.

#include <windows.h>

#include <initializer_list>
#include <string>

// Presses and releases the key while the modifiers (VK_SHIFT, VK_CONTROL, VK_MENU) are held down.
void PressKey(WORD key, std::initializer_list<WORD> modifiers = {});

// The key stays down until it is released.
void HoldKey(WORD key);
void ReleaseKey(WORD key);

// The key goes down so many times, as the keyboard repeats one that is held, and up once.
void RepeatKey(WORD key, int times);

// Types the text as characters.
void TypeText(const std::wstring& text);

// Moves the mouse to a point of the screen and waits until it stays there: a window that has only just come
// up still gets the system's own news of where the mouse is.
void MovePointerTo(POINT point);
// The same in a few steps, as a hand moves it.
void GlidePointerTo(POINT point);
// A message of the pointer where it is already, as the system sends it when a window opens or closes there.
void TellPointerAgain(POINT point);
// Moves it there at once and leaves it for a while.
void RestPointerAt(POINT point, DWORD milliseconds);
// Presses the left button at one point, moves to the other in a few steps and lets go there.
void DragPointer(POINT from, POINT to);

// Moves the mouse to the point and clicks the left button there.
void ClickAt(POINT point);

// Turns the wheel by so many notches over the point; a negative number turns it towards the user.
void TurnWheelAt(POINT point, int notches);

// Two clicks in short order while the modifiers are held down.
void DoubleClickAt(POINT point, std::initializer_list<WORD> modifiers = {});

// At once, without a look at whether anybody is there to take it.
void FlickPointerTo(POINT point);
// Presses or lets go of buttons (MOUSEEVENTF_LEFTDOWN, ...) at the point.
void UseButtons(POINT point, DWORD flags);
void UseWheel(POINT point, int notches);
void StrikeKey(WORD key, std::initializer_list<WORD> modifiers = {});
