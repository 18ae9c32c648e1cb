#include "search/block_scanner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "tests/search/scan_widths.h"

namespace {

using Bytes = std::vector<unsigned char>;

unsigned char CaseBitOf(char byte, bool folding) {
    const bool letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    return folding && letter ? 0x20 : 0;
}

ScannedPattern::Repeated Repeated(char byte, bool folding) {
    ScannedPattern::Repeated repeated;
    const unsigned char caseBit = CaseBitOf(byte, folding);
    std::fill(std::begin(repeated.caseBit), std::end(repeated.caseBit), caseBit);
    std::fill(std::begin(repeated.folded), std::end(repeated.folded),
              static_cast<unsigned char>(static_cast<unsigned char>(byte) | caseBit));
    return repeated;
}

ScannedPattern Scanned(const std::string& pattern, bool folding) {
    return {Repeated(pattern.front(), folding), Repeated(pattern[1], folding),
            Repeated(pattern.back(), folding), pattern.size() - 1};
}

bool Same(unsigned char byte, char sought, bool folding) {
    const unsigned char caseBit = CaseBitOf(sought, folding);
    return (byte | caseBit) == (static_cast<unsigned char>(sought) | caseBit);
}

// What makes a place a candidate, in plain words.
bool IsCandidate(const unsigned char* at, const std::string& pattern, bool folding) {
    if (at[0] == '\r' && at[1] != '\n') return true;
    if (folding && at[0] == '\n' && (at[1] == '\n' || at[1] == '\r')) return true;
    return Same(at[0], pattern.front(), folding) && Same(at[1], pattern[1], folding) &&
           Same(at[pattern.size() - 1], pattern.back(), folding);
}

// The candidates that a scan of all the bytes finds, and the place from which it leaves them to others.
struct Found {
    std::vector<std::size_t> candidates;
    std::size_t left = 0;
};

Found PlainScan(const Bytes& bytes, const std::string& pattern, bool folding) {
    Found found;
    for (; bytes.size() - found.left >= 64 + pattern.size() - 1; found.left += 64) {
        for (std::size_t place = found.left; place < found.left + 64; ++place) {
            if (IsCandidate(bytes.data() + place, pattern, folding)) found.candidates.push_back(place);
        }
    }
    return found;
}

Found ScanAll(const Bytes& bytes, const std::string& pattern, bool folding) {
    const ScannedPattern scanned = Scanned(pattern, folding);
    const BlockScanner scan = BlockScannerFor(folding);
    Found found;
    const unsigned char* const begin = bytes.data();
    const unsigned char* at = begin;
    for (;;) {
        const CandidateMask places = scan(scanned, at, begin + bytes.size());
        found.left = static_cast<std::size_t>(places.at - begin);
        if (places.bits == 0) return found;
        for (std::size_t bit = 0; bit < 64; ++bit) {
            if ((places.bits >> bit & 1) != 0) found.candidates.push_back(found.left + bit);
        }
        at = places.at + 64;
    }
}

void ExpectSameScan(const Bytes& bytes, const std::string& pattern, bool folding) {
    const Found expected = PlainScan(bytes, pattern, folding);
    const Found found = ScanAll(bytes, pattern, folding);
    ASSERT_EQ(found.candidates, expected.candidates);
    ASSERT_EQ(found.left, expected.left);
}

}  // namespace

#ifdef __x86_64__
TEST(BlockScanner, knows_the_wide_registers_that_the_compilers_own_question_finds) {
    EXPECT_EQ(CanScan(ScanWidth::Bytes32), __builtin_cpu_supports("avx2") != 0);
}
#endif

TEST(BlockScanner, starts_with_the_widest_registers_that_the_processor_has) {
    EXPECT_EQ(BlockScannerWidth(), ScanWidthsHere().back());
}

TEST(BlockScanner, names_each_candidate_wherever_it_stands_and_nothing_else) {
    for (const ScanWidth width : ScanWidthsHere()) {
        const ScanWidthInUse inUse(width);
        for (const std::string mark : {"thzt", "that", "THAT", "\rx", "\r\n", "\n\n", "\n\r"}) {
            for (std::size_t place = 0; place < 192; ++place) {
                Bytes bytes(200, 'x');
                std::copy(mark.begin(), mark.end(), bytes.begin() + static_cast<std::ptrdiff_t>(place));
                ExpectSameScan(bytes, "thzt", false);
                ExpectSameScan(bytes, "THZT", true);
                ASSERT_FALSE(HasFatalFailure()) << "place " << place;
            }
        }
    }
}

TEST(BlockScanner, finds_the_candidates_of_random_bytes_at_every_width) {
    std::mt19937 engine(64);
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(engine); };
    static constexpr char Choices[] = {'a', 'A', 'b', '\r', '\n', '\x81', '\0', 'x', 'x', 'x', 'x', 'x'};
    std::size_t candidates = 0;
    for (int round = 0; round < 3000; ++round) {
        // Around the widths of the registers, of what is scanned together, and of several of those.
        static constexpr int Lengths[] = {16, 32, 64, 80, 96, 128, 192, 256};
        Bytes bytes(static_cast<std::size_t>(std::max(0, Lengths[upTo(7)] - 3 + upTo(6))));
        const int kinds = upTo(1) == 0 ? 11 : 4;
        for (unsigned char& byte : bytes)
            byte = static_cast<unsigned char>(Choices[upTo(kinds)]);
        // Without room to spare, so that the sanitizers see a step outside.
        bytes.shrink_to_fit();
        std::string pattern;
        for (int i = 2 + upTo(upTo(9) == 0 ? 60 : 4); i > 0; --i)
            pattern += Choices[upTo(2)];
        const bool folding = upTo(1) == 0;
        for (const ScanWidth width : ScanWidthsHere()) {
            const ScanWidthInUse inUse(width);
            ExpectSameScan(bytes, pattern, folding);
            ASSERT_FALSE(HasFatalFailure()) << "round " << round;
        }
        candidates += PlainScan(bytes, pattern, folding).candidates.size();
    }
    EXPECT_GT(candidates, 3000U);
}
