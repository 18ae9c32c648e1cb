#pragma once

// A dialog and its controls as records in memory.

#include <windows.h>

#include <string>
#include <vector>

struct MadeUpWindow {
    [[nodiscard]] HWND Handle() { return reinterpret_cast<HWND>(this); }
    // A dialog has a border of one pixel and a caption of twenty.
    [[nodiscard]] SIZE ClientSize() const {
        const bool isDialog = className.empty();
        return {place.right - place.left - (isDialog ? 2 : 0),
                place.bottom - place.top - (isDialog ? 21 : 0)};
    }

    // Of a control: in the dialog's client area; of a dialog: on the screen.
    RECT place = {};
    // Empty for a dialog.
    std::wstring className;
    LONG style = 0;
    int id = 0;
    LONG textUnits = 0;
    HFONT font = nullptr;
    std::vector<MadeUpWindow> children;
};

[[nodiscard]] inline MadeUpWindow& AsMadeUp(HWND window) {
    return *reinterpret_cast<MadeUpWindow*>(window);
}

// The screen, without what the system keeps for its own bars.
[[nodiscard]] RECT& TheScreen();

// The height of a font's letters; that of the system's font for null.
[[nodiscard]] LONG LettersOf(HFONT font);
