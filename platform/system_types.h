#pragma once

// The system's plain records and constants (FILETIME, SYSTEMTIME, WIN32_FIND_DATAW, RECT, MAX_PATH, ...),
// for the rules that need no window. They are compiled for the building machine as well, where the tests
// supply a windows.h with just these records.

#include <windows.h>
