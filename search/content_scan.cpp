#include "search/content_scan.h"

#include "search/content_scan_loop.h"

namespace {

bool HasAvx2() {
#ifdef __x86_64__
    // Asks for the system's part as well: it has to save the wide registers when it switches threads.
    return __builtin_cpu_supports("avx2") != 0;
#else
    return false;
#endif
}

ScanWidth WidestScan() {
    return CanScan(ScanWidth::Bytes32) ? ScanWidth::Bytes32 : ScanWidth::Bytes16;
}

// Chosen when the program starts.
ScanWidth scanWidth = WidestScan();

}  // namespace

bool CanScan(ScanWidth width) {
    return width == ScanWidth::Bytes16 || HasAvx2();
}

ScanWidth ContentScanWidth() {
    return scanWidth;
}

void SetContentScanWidth(ScanWidth width) {
    scanWidth = width;
}

ContentScan ContentScanFor(bool folding) {
    if (scanWidth == ScanWidth::Bytes32) return ContentScan32(folding);
    return folding ? &RegisterScan<16, true>::Next : &RegisterScan<16, false>::Next;
}
