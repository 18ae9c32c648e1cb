// The scan with the registers that every processor of this kind has.

#include "search/block_scanner.h"
#include "search/block_scanner_loop.h"

BlockScanner BlockScannerSse2(bool folding) {
    return folding ? &RegisterScan<16, true>::Next : &RegisterScan<16, false>::Next;
}
