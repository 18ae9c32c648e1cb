#pragma once

// What a dialog template is laid down to hold, and the comparison with what it holds.

#include <windows.h>

#include <vector>

constexpr int Label = -1;
constexpr DWORD ButtonKind = BS_TYPEMASK;

struct ExpectedControl {
    const wchar_t* className;
    int id;
    const wchar_t* text;
    DWORD styleMask;  // the bits that are laid down
    DWORD style;      // and how they have to be
};

// Place and size of the first control with the id, in dialog units.
struct ExpectedPlace {
    int id;
    int x;
    int y;
    int width;
    int height;
};

// Class, id, text and style of every control, in the order of the Tab key.
void ExpectControls(const wchar_t* name, const std::vector<ExpectedControl>& expected);

void ExpectPlaces(const wchar_t* name, const std::vector<ExpectedPlace>& expected);

// Title, size and font of a pop-up with a caption.
void ExpectCaptionedPopUp(const wchar_t* name, const wchar_t* title, int width, int height);
