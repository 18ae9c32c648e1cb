#pragma once

// The line to the probe in the running program: installs its hooks on the program's thread and carries
// questions and answers. One link at a time.

#include <windows.h>

#include <string>
#include <vector>

#include "tests/support/probe/probe_protocol.h"

using Record = std::vector<std::wstring>;

// The probe's library, beside the calling program or in its folder "tests". Throws DriverError.
std::wstring ProbePath();

class ProbeLink {
  public:
    // Of the program whose main window this is. Throws DriverError.
    explicit ProbeLink(HWND mainWindow);
    ~ProbeLink();
    ProbeLink(const ProbeLink&) = delete;
    ProbeLink& operator=(const ProbeLink&) = delete;

    // The records of the answer. Throws DriverError when there is none in time.
    std::vector<Record> Ask(probe::Question question, int first = 0, int second = 0, int third = 0);

    // Waits until the program's thread has taken everything from its queue that was posted before.
    void WaitForQueue();
    // The same for so long; false when it has not by then.
    [[nodiscard]] bool TakesQueue(DWORD milliseconds);

    // Waits for the hold that was armed; false when it did not come in time.
    [[nodiscard]] bool WaitForHold(DWORD milliseconds);
    void ReleaseHold();

  private:
    void Close();
    [[nodiscard]] HANDLE NamedEvent(const wchar_t* format) const;

    HWND window_;
    DWORD processId_ = 0;
    HMODULE library_ = nullptr;
    HHOOK sentHook_ = nullptr;
    HHOOK takenHook_ = nullptr;
    HANDLE section_ = nullptr;
    DWORD lastSync_ = 0;
    probe::Exchange* exchange_ = nullptr;
};
