#pragma once

// The power goes: the program ends by force before one of the calls by which it changes files or the
// registry. The test and the library that works inside the program's process share a section, whose name the
// program inherits in its environment.

#include <windows.h>

namespace probe {

constexpr wchar_t PowerVariable[] = L"QUORIN_TEST_POWER";

constexpr UINT PowerLossCode = 77;

struct Power {
    DWORD ownerId;            // the test's process, to which the library comes as well
    volatile LONG changes;    // calls since the count began
    volatile LONG endBefore;  // the number of the call, from 1, before which the program ends; 0 for none
};

// To be called when the library comes into the process, before the program's first instruction. Does nothing
// where the environment names no section.
void PreparePowerLoss();

}  // namespace probe
