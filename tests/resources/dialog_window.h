#pragma once

// A dialog of the program as a real window on a handheld's screen, filled, fitted and set up by the shell as
// the program does it, and measured.

#include <gtest/gtest.h>
#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "base/program_context.h"
#include "platform/ce_system.h"
#include "tests/support/replaced_calls.h"

enum class Screen { Pocket, Handheld, Low, Square, Tall, Desktop };

// The whole screen in pixels.
[[nodiscard]] SIZE SizeOfScreen(Screen screen);

// The system's figures, with the screen's size in place of the real one.
[[nodiscard]] int (*MetricsOf(Screen screen))(int index);

struct DialogControl {
    HWND window;
    int id;
    std::wstring className;
    std::wstring text;  // a button's without the ampersand
    RECT place;         // in the dialog's client area
};

class DialogWindow {
  public:
    DialogWindow(const wchar_t* templateName, Screen screen, UiLanguage language);
    ~DialogWindow();
    DialogWindow(const DialogWindow&) = delete;
    DialogWindow& operator=(const DialogWindow&) = delete;

    [[nodiscard]] HWND Handle() const { return dialog_; }
    [[nodiscard]] HWND Item(int id) const { return GetDlgItem(dialog_, id); }
    [[nodiscard]] std::wstring TextOf(int id) const;

    // What the shell does on initialisation: full size on the small screen, room for the menu bar elsewhere.
    void SetUpByShell();

    // The whole window with its menu bar is on the screen.
    void ExpectOnScreen() const;
    // No control is cut by the client area or the bar; of a static only its text counts.
    void ExpectControlsInside() const;
    void ExpectTextsWhole() const;
    void ExpectNothingCovered() const;

  private:
    [[nodiscard]] std::vector<DialogControl> Controls() const;
    [[nodiscard]] RECT VisiblePart(const DialogControl& control) const;
    [[nodiscard]] LONG RoomAboveBar() const;

    std::optional<Replaced<int (*)(int)>> screenSize_;
    ProgramContext contextBefore_;
    HWND dialog_;
};

// The room that the static's text takes, broken at the width unless the static has one line only.
[[nodiscard]] SIZE TextRoom(HWND control, const std::wstring& text, LONG width);
