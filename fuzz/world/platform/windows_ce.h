#pragma once

// The system as the fuzzer makes it up, for the sources of the program that call it: the seam's own headers
// over a few more of the system's records. Stands before platform/windows_ce.h where includes are looked for.

#include "platform/system_types.h"

#include <cstdio>

struct SECURITY_ATTRIBUTES;

#define FILE_ATTRIBUTE_REPARSE_POINT 0x400

#include "platform/ce_files.h"
