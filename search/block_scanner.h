#pragma once

// The block scanner: the part of the content prefilter that looks at every byte, a whole register of them at
// a time, with the widest registers that the processor has.

#include <cstddef>
#include <cstdint>

// The three bytes of a pattern that a scan compares, each repeated over the widest register.
struct ScannedPattern {
    static constexpr std::size_t WidestRegister = 32;

    // The case bit is set in a byte before it is compared: 0x20 if the pattern's byte is a letter whose case
    // does not matter, else 0.
    struct Repeated {
        unsigned char folded[WidestRegister];
        unsigned char caseBit[WidestRegister];
    };

    Repeated first;
    Repeated second;
    Repeated last;
    // Of the pattern's last byte; 1 at least.
    std::size_t lastIndex;
};

// 64 places from `at` on: the bit of a place is set if it is a candidate, which has to be examined. The
// lowest bit stands for the first place.
struct CandidateMask {
    static constexpr std::size_t Places = 64;

    const unsigned char* at;
    std::uint64_t bits;
};

// Finds the next 64 places with candidates among them. A candidate is a place with the pattern's first two
// bytes and its last, a carriage return inside a line and, when folding, a line feed that an empty line may
// follow. Without candidates, `at` is where fewer than 64 places plus the pattern's last index are left.
using BlockScanner = CandidateMask (*)(const ScannedPattern& pattern, const unsigned char* at,
                                       const unsigned char* stop);

// How many bytes a register of the scanner has: SSE2, which every processor of this kind has, or AVX2.
enum class ScanWidth { Bytes16, Bytes32 };

// Whether the processor has such registers and the system saves them.
[[nodiscard]] bool CanScan(ScanWidth width);

// The scanner of the width that was chosen when the program started: the widest that the processor has.
[[nodiscard]] BlockScanner BlockScannerFor(bool folding);

// For tests: the width in use, and another one, which CanScan has to allow.
[[nodiscard]] ScanWidth BlockScannerWidth();
void SetBlockScannerWidth(ScanWidth width);

// The instances for SSE2 and AVX2, only for BlockScannerFor.
[[nodiscard]] BlockScanner BlockScannerSse2(bool folding);
[[nodiscard]] BlockScanner BlockScannerAvx2(bool folding);
