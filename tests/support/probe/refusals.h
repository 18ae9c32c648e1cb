#pragma once

// Creations that fail: a test has the program's n-th creation of a window, dialog, control, menu, image list,
// icon, font, class, hook or timer refused, or pieces of memory, as by a system that has run out of them. The
// test and the library that works inside the program's process share a section, whose name the program
// inherits in its environment.

#include <windows.h>

namespace probe {

constexpr wchar_t RefusalsVariable[] = L"QUORIN_TEST_REFUSALS";

constexpr int RefusedNameCapacity = 64;

struct Refusals {
    DWORD ownerId;                      // the test's process, to which the library comes as well
    volatile LONG asked;                // creations since the count began
    volatile LONG refused;              // the number of the one that fails, from 1; 0 for none
    wchar_t name[RefusedNameCapacity];  // of the one that was refused; empty while none was
    // Of the program's own memory: each piece fails whose number leaves this remainder; none where the
    // divisor is 0.
    volatile LONG piecesAsked;
    volatile LONG divisor;
    volatile LONG remainder;
};

// To be called when the library comes into the process, before the program's first instruction. Does nothing
// where the environment names no section.
void PrepareRefusals();

}  // namespace probe
