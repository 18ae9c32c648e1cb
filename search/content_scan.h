#pragma once

// The part of the content prefilter that looks at every byte: whole registers of bytes at a time, as wide as
// the processor has them.

#include <cstddef>
#include <cstdint>

// The three bytes of a pattern that a scan compares, each repeated over the widest register.
struct ScannedPattern {
    static constexpr std::size_t WidestRegister = 32;

    // A byte equals the pattern's one when it does so with its case bit set: 0x20 for a letter whose case
    // does not matter, 0 for everything else.
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

// 64 places from `at` on, and a bit for each one that has to be examined, the lowest for the first place.
struct ScannedPlaces {
    static constexpr std::size_t Count = 64;

    const unsigned char* at;
    std::uint64_t candidates;
};

// Finds the next 64 places among which there are candidates: the pattern's first two bytes and its last; a
// carriage return inside a line; when folding, also a line feed that may be followed by an empty line.
// Without candidates, `at` is where fewer than 64 places plus the pattern's last index are left.
using ContentScan = ScannedPlaces (*)(const ScannedPattern& pattern, const unsigned char* at,
                                      const unsigned char* stop);

// How many bytes a register of the scan has: SSE2, which every processor of this kind has, or AVX2.
enum class ScanWidth { Bytes16, Bytes32 };

// Whether the processor has such registers and the system saves them.
[[nodiscard]] bool CanScan(ScanWidth width);

// The scan of the width that was chosen when the program started: the widest that the processor has.
[[nodiscard]] ContentScan ContentScanFor(bool folding);

// For tests: the width in use, and another one, which CanScan has to allow.
[[nodiscard]] ScanWidth ContentScanWidth();
void SetContentScanWidth(ScanWidth width);

// The instances for SSE2 and AVX2, for ContentScanFor alone.
[[nodiscard]] ContentScan ContentScan16(bool folding);
[[nodiscard]] ContentScan ContentScan32(bool folding);
