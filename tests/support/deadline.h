#pragma once

// Waiting by polling: every wait of the tests and of the driver ends, by its condition or by its deadline.

#include <windows.h>

#include <string>

#include "tests/support/driver_error.h"

// The longest that a step of the program may take on a busy machine.
constexpr DWORD StepDeadline = 30000;
constexpr DWORD PollPause = 10;

// True as soon as the condition holds, false when it did not within the time.
template <typename Condition>
[[nodiscard]] bool HoldsWithin(DWORD milliseconds, Condition condition) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    while (!condition()) {
        if (GetTickCount64() >= end) return false;
        Sleep(PollPause);
    }
    return true;
}

// Throws DriverError with what was waited for when the condition does not come true in time.
template <typename Condition>
void WaitUntil(const std::string& what, Condition condition, DWORD milliseconds = StepDeadline) {
    if (!HoldsWithin(milliseconds, condition)) {
        throw DriverError("waited " + std::to_string(milliseconds / 1000) + " s in vain: " + what);
    }
}
