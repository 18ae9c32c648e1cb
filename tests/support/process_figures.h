#pragma once

// What a process holds of the system, as the system counts it.

#include <windows.h>

// The handles of the process to objects of the system: files, keys, events, threads, sections. Throws
// DriverError.
[[nodiscard]] int HandlesOf(DWORD processId);
