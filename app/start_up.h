#pragma once

// The first steps of a run: they find out the platform and the language and fill the program context.

#include "base/program_context.h"

// Screen size, and whether this is a Pocket PC: its shell exports SHSipInfo, or its screen is 240 x 320.
void ProbePlatform(ProgramContext& context);

// Sets the language, which is the system's or, if the registry swaps it, the other one; and the text
// conversion, which follows the system's language whatever the registry says. What is missing is passed over
// in silence.
void DecideLanguage(ProgramContext& context);

// Frees the conversion library, if it was loaded.
void ReleaseConversionLibrary(ProgramContext& context);

// Whether another copy is running; its window is then brought to the front. A copy whose window is hidden and
// disabled is closing and does not count.
[[nodiscard]] bool BringRunningCopyForward();
