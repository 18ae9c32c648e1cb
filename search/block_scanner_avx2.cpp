// The scanner with the registers of AVX2, which not every processor has: nothing in this file runs unless
// CanScan allows it.

#include <cstring>

#include "search/block_scanner.h"

#ifdef __x86_64__
#include <immintrin.h>
// Applies to the functions from here to the end of the file, so not to any function that other files share.
#ifdef __clang__
#pragma clang attribute push(__attribute__((target("avx2"))), apply_to = function)
#else
#pragma GCC target("avx2")
#endif
#endif

#include "search/block_scanner_loop.h"

BlockScanner BlockScannerAvx2(bool folding) {
    return folding ? &RegisterScan<32, true>::Next : &RegisterScan<32, false>::Next;
}

#if defined(__x86_64__) && defined(__clang__)
#pragma clang attribute pop
#endif
