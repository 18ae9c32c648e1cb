#pragma once

// The dialogs and message boxes that the program opens, seen and answered from outside.

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

// A dialog of the program. What it shows may be read as long as it is open.
class ProgramDialog {
  public:
    explicit ProgramDialog(HWND dialog) : window_(dialog) {}

    [[nodiscard]] HWND Window() const { return window_; }
    [[nodiscard]] std::wstring Caption() const;
    // The text of its control, which may stand on the page that a sheet shows.
    [[nodiscard]] std::wstring Text(int id) const;
    [[nodiscard]] bool HasText(const std::wstring& text) const;
    [[nodiscard]] HWND Control(int id) const;
    [[nodiscard]] RECT Place() const;
    [[nodiscard]] bool IsChecked(int id) const;
    // Its control that has the focus; null while none has.
    [[nodiscard]] HWND Focus() const;
    // A click's message to the control; Press returns when the dialog is gone.
    void Click(int id) const;
    void Press(int id) const;

    // Of a properties sheet.
    [[nodiscard]] bool IsSheet() const;
    [[nodiscard]] int PageCount() const;
    void TurnTo(int page) const;

  private:
    HWND window_;
};

// The program's dialog that takes input now, waited for until the focus is in it where it takes that; throws
// DriverError when none comes.
ProgramDialog WaitForDialog(HWND mainWindow);
// The same, without waiting.
std::optional<ProgramDialog> OpenDialogOf(HWND mainWindow);
