#pragma once

// The program's process, started by this object or found running. A program that it started ends with the
// calling process at the latest, whatever becomes of the test.

#include <windows.h>

#include <optional>
#include <string>

struct ProgramStart {
    std::wstring path;
    std::wstring workingFolder;  // empty: the caller's own
    std::wstring arguments;
    int showCommand = SW_SHOWNORMAL;
    // Loaded into the process before the program's first instruction; empty for none.
    std::wstring probePath;
};

class RunningProgram {
  public:
    RunningProgram() = default;
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    // Starts the program; does not wait for its window. Throws DriverError.
    void Start(const ProgramStart& start);

    // The process of the main window that is there; it is never killed by this object.
    void Attach(HWND mainWindow);

    // Its exit code, or none when it did not end in time.
    [[nodiscard]] std::optional<DWORD> ExitCode(DWORD milliseconds) const;
    [[nodiscard]] bool IsRunning() const;
    void Kill();

    [[nodiscard]] DWORD ProcessId() const { return processId_; }

    // The main window of this process, or null.
    [[nodiscard]] HWND MainWindow() const;

  private:
    static PROCESS_INFORMATION CreateSuspended(const ProgramStart& start);
    void BringLibrary(const std::wstring& path) const;

    HANDLE process_ = nullptr;
    HANDLE job_ = nullptr;
    DWORD processId_ = 0;
};
