#pragma once

// The first steps of a run: what platform and what language this is. They fill the program context.

#include "base/program_context.h"

// Screen size, and whether this is a Pocket PC: its shell exports SHSipInfo, or its screen is 240 x 320.
void ProbePlatform(ProgramContext& context);

// The language of the system, or the other one where the registry swaps it; and the text conversion, which
// goes with the system's language whatever the registry says. Silent about all that is missing.
void DecideLanguage(ProgramContext& context);

// Frees the conversion library, if it was loaded.
void ReleaseConversionLibrary(ProgramContext& context);

// Whether another copy runs; its window is then brought to the front. One whose window is hidden and disabled
// is on its way out and counts for nothing.
[[nodiscard]] bool BringRunningCopyForward();
