#include "search/content_prefilter.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#include "search/block_scanner.h"
#include "search/double_byte_text.h"

namespace {

using Byte = unsigned char;
constexpr Byte CarriageReturn = 13;
constexpr Byte LineFeed = 10;

enum class Finding { Nothing, Occurrence, EmptyLine };

// Examines the file block by block.
class BlockExaminer {
  public:
    explicit BlockExaminer(const ContentPattern& sought)
        : pattern_(sought),
          scanned_{Repeated(0), Repeated(1), Repeated(sought.length - 1), sought.length - 1},
          scan_(BlockScannerFor(sought.folding)) {}

    // The first finding between begin and end. What needs bytes beyond the end is left to the next block.
    [[nodiscard]] Finding Examine(const Byte* begin, const Byte* end) {
        start_ = begin;
        stop_ = end;
        const Byte* at = begin;
        const Finding scanned = ScanUpToTheRest(at);
        if (scanned != Finding::Nothing) return scanned;
        // A place is examined together with the byte after it.
        for (; end - at > 1; ++at) {
            const Finding finding = ExamineOne(at);
            if (finding != Finding::Nothing) return finding;
        }
        return Finding::Nothing;
    }

    // From where on the bytes have to be kept for the next block: an occurrence, or a line feed with what
    // precedes it, may cross the border.
    [[nodiscard]] const Byte* KeepFrom(const Byte* begin, const Byte* end) const {
        std::size_t missing = pattern_.length + 1;
        while (end > begin && missing > 0) {
            if (*--end != CarriageReturn) --missing;
        }
        return end;
    }

  private:
    // Case is ignored by setting the bit that tells small letters from capitals, for letters only.
    Byte CaseBit(std::size_t index) const {
        constexpr Byte SmallLetterBit = 0x20;
        const auto small = static_cast<Byte>(static_cast<Byte>(pattern_.bytes[index]) | SmallLetterBit);
        return pattern_.folding && small >= 'a' && small <= 'z' ? SmallLetterBit : Byte{0};
    }
    Byte Folded(std::size_t index) const {
        return static_cast<Byte>(static_cast<Byte>(pattern_.bytes[index]) | CaseBit(index));
    }
    ScannedPattern::Repeated Repeated(std::size_t index) const {
        ScannedPattern::Repeated repeated;
        std::fill_n(repeated.folded, ScannedPattern::WidestRegister, Folded(index));
        std::fill_n(repeated.caseBit, ScannedPattern::WidestRegister, CaseBit(index));
        return repeated;
    }
    bool Matches(Byte byte, std::size_t index) const { return (byte | CaseBit(index)) == Folded(index); }

    // Examines the candidates of the scanner and nothing else, up to the rest that is too short for it.
    Finding ScanUpToTheRest(const Byte*& at) const {
        for (;;) {
            const CandidateMask candidates = scan_(scanned_, at, stop_);
            at = candidates.at;
            if (candidates.bits == 0) return Finding::Nothing;
            for (std::uint64_t left = candidates.bits; left != 0; left &= left - 1) {
                const Finding finding = ExamineOne(at + std::countr_zero(left));
                if (finding != Finding::Nothing) return finding;
            }
            at += CandidateMask::Places;
        }
    }

    Finding ExamineOne(const Byte* at) const {
        const Byte next = at[1];
        if (*at == CarriageReturn) {
            const bool insideLine = next != LineFeed && next != CarriageReturn;
            if (insideLine && OccursAcross(at + 1)) return Finding::Occurrence;
        } else if (*at == LineFeed && pattern_.folding) {
            if ((next == LineFeed || next == CarriageReturn) && IsEmptyLine(at)) return Finding::EmptyLine;
        } else if (Matches(*at, 0) && Matches(next, 1) && OccursAt(at)) {
            return Finding::Occurrence;
        }
        return Finding::Nothing;
    }

    bool OccursAt(const Byte* at) const {
        if (static_cast<std::size_t>(stop_ - at) < pattern_.length) return false;
        for (std::size_t i = 2; i < pattern_.length; ++i) {
            if (!Matches(at[i], i)) return false;
        }
        return true;
    }

    // Some of the pattern's bytes are before the carriage returns that end at `behind`, the others start
    // there.
    bool OccursAcross(const Byte* behind) const {
        for (std::size_t before = 1; before < pattern_.length; ++before) {
            if (Matches(*behind, before) && EndsBefore(behind, before) && GoesOnAt(behind, before))
                return true;
        }
        return false;
    }

    bool EndsBefore(const Byte* at, std::size_t count) const {
        while (count > 0) {
            do {
                if (at == start_) return false;
                --at;
            } while (*at == CarriageReturn);
            if (!Matches(*at, --count)) return false;
        }
        return true;
    }

    bool GoesOnAt(const Byte* at, std::size_t index) const {
        for (; index < pattern_.length; ++at) {
            if (at == stop_) return false;
            if (*at == CarriageReturn) continue;
            if (!Matches(*at, index++)) return false;
        }
        return true;
    }

    // Whether the line after the line feed at `at` certainly stores nothing. After a lead byte the line feed
    // may be half of a character.
    bool IsEmptyLine(const Byte* at) const {
        if (pattern_.doubleByteAware && (at == start_ || IsLeadByte(at[-1]))) return false;
        do {
            if (++at == stop_) return false;
        } while (*at == CarriageReturn);
        return *at == LineFeed;
    }

    const ContentPattern& pattern_;
    const ScannedPattern scanned_;
    const BlockScanner scan_;
    const Byte* start_ = nullptr;
    const Byte* stop_ = nullptr;
};

// A pattern of one byte occurs nearly everywhere, and one that contains line ends follows rules of its own.
bool CanBeFiltered(const ContentPattern& pattern) {
    return pattern.length >= 2 && std::memchr(pattern.bytes, CarriageReturn, pattern.length) == nullptr &&
           std::memchr(pattern.bytes, LineFeed, pattern.length) == nullptr;
}

// What the beginning of the file says about its first line; MayOccur if only reading the line can tell.
ContentVerdict FirstLineVerdict(const Byte* begin, std::size_t size, const ContentPattern& pattern) {
    if (size == 0) return ContentVerdict::NoLine;
    if (*begin == CarriageReturn) return ContentVerdict::MayOccur;
    if (!pattern.folding) return ContentVerdict::NoOccurrence;
    if (*begin == LineFeed) return ContentVerdict::NoLine;
    // A lead byte at the very end of the file is lost.
    if (pattern.doubleByteAware && IsLeadByte(*begin) && size < 2) return ContentVerdict::NoLine;
    return ContentVerdict::NoOccurrence;
}

}  // namespace

ContentVerdict JudgeContent(ByteSource& source, const ContentPattern& pattern, std::size_t blockSize) {
    if (!CanBeFiltered(pattern)) return ContentVerdict::MayOccur;
    // The bytes kept from the last block are placed right before the next one. Not initialised, since every
    // file would pay for that.
    Byte room[FilterBlockSize + 2 * ByteSource::PageSize];
    Byte* const block =
        room + 2 * ByteSource::PageSize - reinterpret_cast<std::uintptr_t>(room) % ByteSource::PageSize;
    // Most files end in a block of the usual size, which the system gets ready faster.
    std::size_t filled = source.Fill(block, std::min(blockSize, ByteSource::BlockSize));
    const ContentVerdict firstLine = FirstLineVerdict(block, filled, pattern);
    if (firstLine != ContentVerdict::NoOccurrence) return firstLine;

    BlockExaminer examiner(pattern);
    const Byte* begin = block;
    while (filled > 0) {
        const Byte* const end = block + filled;
        const Finding finding = examiner.Examine(begin, end);
        if (finding == Finding::Occurrence) return ContentVerdict::MayOccur;
        if (finding == Finding::EmptyLine) return ContentVerdict::NoOccurrence;
        const Byte* const keep = examiner.KeepFrom(begin, end);
        const auto kept = static_cast<std::size_t>(end - keep);
        if (kept > ByteSource::PageSize) return ContentVerdict::MayOccur;
        begin = block - kept;
        std::memmove(block - kept, keep, kept);
        filled = source.Fill(block, blockSize);
    }
    return ContentVerdict::NoOccurrence;
}
