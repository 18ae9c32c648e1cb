// The scan with the registers that every processor of this kind has.

#include "search/content_scan.h"
#include "search/content_scan_loop.h"

ContentScan ContentScan16(bool folding) {
    return folding ? &RegisterScan<16, true>::Next : &RegisterScan<16, false>::Next;
}
