#pragma once

// Lets the windows of the calling thread live, for tests that have no message loop.

#include <windows.h>

#include <functional>

// Dispatches what is in the queue; with a condition, until it holds, or fails to within the time. A quit
// stays in the queue, for the program's own loop.
void PumpQueue();
[[nodiscard]] bool PumpUntil(const std::function<bool()>& condition, DWORD milliseconds = 10000);
