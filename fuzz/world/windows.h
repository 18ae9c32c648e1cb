#pragma once

// The system as the fuzzer makes it up: what the native tests have of it, and the calls of the sources that
// are compiled for the fuzzer besides. Stands before the tests' own where includes are looked for.

#include "tests/native/windows.h"

#define FALSE 0
#define TRUE 1

// Code pages (made_up_code_page.h).
#define WC_NO_BEST_FIT_CHARS 0x00000400
#define MB_ERR_INVALID_CHARS 0x00000008

int WideCharToMultiByte(UINT codePage, DWORD flags, const wchar_t* units, int unitCount, char* bytes,
                        int byteCount, const char* unknown, BOOL* replaced);
int MultiByteToWideChar(UINT codePage, DWORD flags, const char* bytes, int byteCount, wchar_t* units,
                        int unitCount);
