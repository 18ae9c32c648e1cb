#pragma once

// The system as the fuzzer makes it up, for the sources of the program that call it: the seam's own headers.
// Stands before platform/windows_ce.h where includes are looked for.

#include "platform/system_types.h"

#include <cstdio>

#include "platform/ce_files.h"
#include "platform/ce_registry.h"
#include "platform/ce_system.h"
