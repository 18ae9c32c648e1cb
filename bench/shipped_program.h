#pragma once

// The built program, run in a process of its own and driven from outside by the messages that its controls
// send: nothing is loaded into it and nothing in it is replaced. Throws DriverError when a step fails.

#include <string>

#include "tests/support/running_program.h"

// The program's file, beside the folder of the benchmarks.
[[nodiscard]] std::wstring ShippedProgramPath();

class ShippedProgram {
  public:
    // Starts it, and returns when the last of its parts has been made.
    ShippedProgram();

    // In front of whatever else is on the screen; what is covered is not drawn.
    void Raise();

    // What stands on the name page from now on, with the sub-folders.
    void Ask(const std::wstring& location, const std::wstring& name = L"");

    // A whole search: from the command of the Find button until the rows are on the screen, in milliseconds.
    double Find();

    [[nodiscard]] int Rows() const;

    // A click on a heading of the list: until the rows are on the screen in their new order.
    double ClickHeading(int column);

    void SelectLastRow();
    // A sort takes the selected row along.
    [[nodiscard]] int SelectedRow() const;

    // The process's memory that it shares with none, in bytes.
    [[nodiscard]] double PrivateBytes() const;

    struct Closing {
        double offScreen;  // until the main window is gone from the screen
        double ended;      // until the process has ended
    };
    // Both in milliseconds.
    Closing Close();

    // Where the list is in its window; a list to compare with has to be as large.
    [[nodiscard]] RECT ListPlace() const;

  private:
    void SetText(int id, const std::wstring& text);
    void Draw();

    RunningProgram process_;
    HWND window_ = nullptr;
    HWND namePage_ = nullptr;
    HWND list_ = nullptr;
};

// The window of the class in a process; null if there is none.
[[nodiscard]] HWND WindowOfProcess(const wchar_t* className, DWORD process);

// The condition page that has this control; null until it has been made.
[[nodiscard]] HWND PageWith(HWND mainWindow, int controlId);

// The memory of a process that it shares with none, in bytes.
[[nodiscard]] double PrivateBytesOf(DWORD process);
