#pragma once

// The program in a system that runs out of windows, or of whatever else it makes: a test has one creation
// refused and uses what is left.

#include <memory>
#include <string>
#include <vector>

#include "tests/support/probe/refusals.h"
#include "tests/support/probe_link.h"
#include "tests/support/running_program.h"

class RefusingProgram {
  public:
    RefusingProgram();
    ~RefusingProgram();
    RefusingProgram(const RefusingProgram&) = delete;
    RefusingProgram& operator=(const RefusingProgram&) = delete;

    // The creations are counted from now on, and the one with this number, from 1, fails; 0 for none.
    void Refuse(LONG number);
    // The program's own pieces of memory are counted from now on, and every one fails whose number, divided
    // by the divisor, leaves the remainder; a divisor of 0 for none.
    void RefuseMemory(LONG divisor, LONG remainder = 0);
    // A call is refused so often from now on; see RefusedCall. Nothing for 0.
    void RefuseCall(LONG call, LONG place, DWORD code, LONG most);
    [[nodiscard]] LONG TimesRefused() const { return refusals_->refusedCall.times; }
    // From now on every place where the program makes a call is noted with this number, from 1; 0 for none.
    void NoteCalls(LONG step);
    [[nodiscard]] std::vector<probe::CallPlace> CallsNoted() const;
    // The pieces asked for since.
    [[nodiscard]] LONG PiecesAsked() const { return refusals_->piecesAsked; }
    // What was refused since: a window's class, or a word for anything else; empty for nothing yet.
    [[nodiscard]] std::wstring Refused() const { return refusals_->name; }

    // Starts the program and waits as Settle does. What is refused was said before.
    void Start(const std::wstring& workingFolder);
    // The same without the waiting.
    void Launch(const std::wstring& workingFolder);
    // Answers with Enter whatever the program says, until it waits for commands in its main window or has
    // ended. Throws DriverError when it does neither.
    void Settle();
    // Closes the main window as a person does who is told of anything on the way; the exit code.
    DWORD Close();
    [[nodiscard]] bool IsRunning() const { return process_ != nullptr && process_->IsRunning(); }
    [[nodiscard]] DWORD ExitCode() const;
    // Whether the user was told of a window that could not be created since the start.
    [[nodiscard]] bool HasComplained() const { return hasComplained_; }

    // Its windows; null where they do not exist.
    [[nodiscard]] HWND Window() const { return process_->MainWindow(); }
    [[nodiscard]] HWND Child(const wchar_t* className) const;
    // The condition page with this control, and the control.
    [[nodiscard]] HWND PageWith(int control) const;
    [[nodiscard]] HWND Control(int control) const;
    // A dialog or message box that takes input.
    [[nodiscard]] HWND OpenDialog() const;

    // Posts the command and waits as Settle does.
    void Run(UINT command);
    // Waits until the program has taken what was posted to it, or asks something in the middle of it.
    void WaitForQueue();
    // Whether the main window can be talked to, and takes its messages within this time.
    [[nodiscard]] bool TakesQueue(DWORD milliseconds) {
        return Connects() && link_->TakesQueue(milliseconds);
    }
    // The names in the result list, in its order.
    [[nodiscard]] std::vector<std::wstring> NamesOfRows();
    void SelectRow(int row) { link_->Ask(probe::Question::SelectRow, row, 1); }

  private:
    void Answer(HWND box);
    [[nodiscard]] bool Connects();
    [[nodiscard]] bool TakesMessages();

    HANDLE section_ = nullptr;
    probe::Refusals* refusals_ = nullptr;
    std::unique_ptr<RunningProgram> process_;
    std::unique_ptr<ProbeLink> link_;
    bool hasComplained_ = false;
};
