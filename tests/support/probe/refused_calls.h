#pragma once

// Refuses the program's calls: each call of `RefusableCalls` that the program imports is led by way of a
// routine that counts it and may answer it as the system does that fails.

#include "tests/support/probe/refusals.h"

namespace probe {

// To be called before the program's first instruction. Nothing is refused before the program's own beginning:
// what the compiler's start-up asks for, it does not look at.
void PrepareRefusedCalls(Refusals& refusals);
void BeginRefusingCalls();
[[nodiscard]] bool AreCallsRefused();

// For a window that anybody makes for the program.
[[nodiscard]] bool RefusesWindow();

}  // namespace probe
