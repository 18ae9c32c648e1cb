#include "search/block_scanner.h"

#ifdef __x86_64__
#include <cpuid.h>
#endif

namespace {

#ifdef __x86_64__
// Whether the system saves the wide registers (and the narrow ones) when it switches threads.
bool SavesWideRegisters() {
    constexpr unsigned int BothWidths = 6;
    unsigned int saved = 0;
    unsigned int highPart = 0;
    __asm__("xgetbv" : "=a"(saved), "=d"(highPart) : "c"(0));
    return (saved & BothWidths) == BothWidths;
}

// The compiler's own __builtin_cpu_supports brings tables of every processor with it: 5 KB of program.
bool HasAvx2() {
    constexpr unsigned int CanAskWhatIsSaved = bit_OSXSAVE | bit_AVX;
    unsigned int a = 0;
    unsigned int b = 0;
    unsigned int c = 0;
    unsigned int d = 0;
    if (__get_cpuid(1, &a, &b, &c, &d) == 0 || (c & CanAskWhatIsSaved) != CanAskWhatIsSaved) return false;
    if (!SavesWideRegisters()) return false;
    return __get_cpuid_count(7, 0, &a, &b, &c, &d) != 0 && (b & bit_AVX2) != 0;
}
#else
bool HasAvx2() {
    return false;
}
#endif

ScanWidth WidestScan() {
    return CanScan(ScanWidth::Bytes32) ? ScanWidth::Bytes32 : ScanWidth::Bytes16;
}

// Chosen when the program starts.
ScanWidth scanWidth = WidestScan();

}  // namespace

bool CanScan(ScanWidth width) {
    return width == ScanWidth::Bytes16 || HasAvx2();
}

ScanWidth BlockScannerWidth() {
    return scanWidth;
}

void SetBlockScannerWidth(ScanWidth width) {
    scanWidth = width;
}

BlockScanner BlockScannerFor(bool folding) {
    if (scanWidth == ScanWidth::Bytes32) return BlockScannerAvx2(folding);
    return BlockScannerSse2(folding);
}
