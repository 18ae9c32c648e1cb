#include "made_up_dialog.h"

#include "platform/ce_windows.h"

struct MadeUpFont {
    LOGFONTW description;
};

RECT& TheScreen() {
    static RECT screen;
    return screen;
}

RECT ce::ScreenArea() {
    return TheScreen();
}

LONG LettersOf(HFONT font) {
    constexpr LONG SystemLetters = 13;
    return font != nullptr ? -font->description.lfHeight : SystemLetters;
}

HFONT CreateFontIndirectW(const LOGFONTW* description) {
    return new MadeUpFont{*description};
}
void DeleteFont(HFONT font) {
    delete font;
}
int GetObjectW(HFONT font, int size, void* description) {
    if (font == nullptr) return 0;
    *static_cast<LOGFONTW*>(description) = font->description;
    return size;
}

HWND GetDlgItem(HWND dialog, int id) {
    for (MadeUpWindow& control : AsMadeUp(dialog).children)
        if (control.id == id) return control.Handle();
    return nullptr;
}
BOOL GetWindowRect(HWND window, RECT* place) {
    *place = AsMadeUp(window).place;
    return TRUE;
}
BOOL SetWindowPos(HWND window, HWND, int x, int y, int width, int height, UINT) {
    AsMadeUp(window).place = {x, y, x + width, y + height};
    return TRUE;
}
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL) {
    return SetWindowPos(window, nullptr, x, y, width, height, 0);
}
LONG GetWindowLongW(HWND window, int) {
    return AsMadeUp(window).style;
}
