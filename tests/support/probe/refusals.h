#pragma once

// Creations that fail: a test has the program's n-th creation of a window, dialog, control, menu, image list,
// icon, font, class, hook or timer refused, or pieces of memory, as by a system that has run out of them. The
// test and the library that works inside the program's process share a section, whose name the program
// inherits in its environment. Any call of `RefusableCalls` can be refused as well, wherever the program
// makes it.

#include <windows.h>

namespace probe {

constexpr wchar_t RefusalsVariable[] = L"QUORIN_TEST_REFUSALS";

constexpr int RefusedNameCapacity = 64;

// A call that fails, once or more often.
struct RefusedCall {
    volatile LONG most;   // how often it may fail yet; written last
    volatile LONG times;  // how often it has failed
    LONG call;            // its place in the table
    LONG place;           // where the program makes it; 0 for anywhere
    DWORD code;
};

// Where the program makes its calls: behind which of its addresses, counted from its first, and in which step
// of the test's.
struct CallPlace {
    LONG call;
    LONG place;
    LONG step;
};
constexpr LONG MostCallPlaces = 8192;

struct CallPlaces {
    volatile LONG step;  // written by the test; none are noted in step 0
    LONG count;
    BOOL isFull;
    CallPlace places[MostCallPlaces];
};

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
    RefusedCall refusedCall;
    CallPlaces callPlaces;
};

// To be called when the library comes into the process, before the program's first instruction. Does nothing
// where the environment names no section.
void PrepareRefusals();

}  // namespace probe
