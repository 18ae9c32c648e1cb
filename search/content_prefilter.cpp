#include "search/content_prefilter.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#include "search/content_scan.h"
#include "search/double_byte_text.h"

namespace {

using Byte = unsigned char;
constexpr Byte CarriageReturn = 13;
constexpr Byte LineFeed = 10;

enum class Place { Nothing, Occurrence, EndOfScan };

// A stretch of the file, with what is to be found in it.
class Window {
  public:
    explicit Window(const ContentPattern& sought)
        : pattern_(sought),
          scanned_{Repeated(0), Repeated(1), Repeated(sought.length - 1), sought.length - 1},
          scan_(ContentScanFor(sought.folding)) {}

    // The first place between begin and end that counts. One that needs bytes behind the end does not, yet.
    [[nodiscard]] Place Examine(const Byte* begin, const Byte* end) {
        start_ = begin;
        stop_ = end;
        const Byte* at = begin;
        const Place passed = PassOver(at);
        if (passed != Place::Nothing) return passed;
        // A place is looked at together with the byte behind it.
        for (; end - at > 1; ++at) {
            const Place place = ExamineOne(at);
            if (place != Place::Nothing) return place;
        }
        return Place::Nothing;
    }

    // Where the bytes begin that have to stay for the next window: an occurrence, or a line feed with what
    // stands before it, may reach over the border.
    [[nodiscard]] const Byte* KeepFrom(const Byte* begin, const Byte* end) const {
        std::size_t missing = pattern_.length + 1;
        while (end > begin && missing > 0) {
            if (*--end != CarriageReturn) --missing;
        }
        return end;
    }

  private:
    // Case is ignored by setting the bit that tells small letters from capital ones, for letters only.
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

    // Passes over what certainly does not count, up to where the window is too near its end. What the scan
    // finds is examined place by place, and nothing else is.
    Place PassOver(const Byte*& at) const {
        for (;;) {
            const ScannedPlaces places = scan_(scanned_, at, stop_);
            at = places.at;
            if (places.candidates == 0) return Place::Nothing;
            for (std::uint64_t left = places.candidates; left != 0; left &= left - 1) {
                const Place place = ExamineOne(at + std::countr_zero(left));
                if (place != Place::Nothing) return place;
            }
            at += ScannedPlaces::Count;
        }
    }

    Place ExamineOne(const Byte* at) const {
        const Byte next = at[1];
        if (*at == CarriageReturn) {
            const bool insideLine = next != LineFeed && next != CarriageReturn;
            if (insideLine && OccursAcross(at + 1)) return Place::Occurrence;
        } else if (*at == LineFeed && pattern_.folding) {
            if ((next == LineFeed || next == CarriageReturn) && IsEmptyLine(at)) return Place::EndOfScan;
        } else if (Matches(*at, 0) && Matches(next, 1) && OccursAt(at)) {
            return Place::Occurrence;
        }
        return Place::Nothing;
    }

    bool OccursAt(const Byte* at) const {
        if (static_cast<std::size_t>(stop_ - at) < pattern_.length) return false;
        for (std::size_t i = 2; i < pattern_.length; ++i) {
            if (!Matches(at[i], i)) return false;
        }
        return true;
    }

    // With some of its bytes before the carriage returns that end at `behind` and the others from there on.
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

    // Whether the line that the line feed at `at` begins certainly stores nothing. Behind a lead byte the
    // line feed may be half of a character.
    bool IsEmptyLine(const Byte* at) const {
        if (pattern_.doubleByteAware && (at == start_ || IsLeadByte(at[-1]))) return false;
        do {
            if (++at == stop_) return false;
        } while (*at == CarriageReturn);
        return *at == LineFeed;
    }

    const ContentPattern& pattern_;
    const ScannedPattern scanned_;
    const ContentScan scan_;
    const Byte* start_ = nullptr;
    const Byte* stop_ = nullptr;
};

// A pattern of one byte is nearly everywhere, and one with the marks of lines in it follows rules of its own.
bool CanBeFiltered(const ContentPattern& pattern) {
    return pattern.length >= 2 && std::memchr(pattern.bytes, CarriageReturn, pattern.length) == nullptr &&
           std::memchr(pattern.bytes, LineFeed, pattern.length) == nullptr;
}

// What the file's beginning says of its first line; MayOccur where it takes more than a look.
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
    // Bytes kept from the last block stand in the page before the next one. Not initialised: every file would
    // pay for it.
    Byte room[ByteSource::BlockSize + 2 * ByteSource::PageSize];
    Byte* const block =
        room + 2 * ByteSource::PageSize - reinterpret_cast<std::uintptr_t>(room) % ByteSource::PageSize;
    std::size_t filled = source.Fill(block, blockSize);
    const ContentVerdict firstLine = FirstLineVerdict(block, filled, pattern);
    if (firstLine != ContentVerdict::NoOccurrence) return firstLine;

    Window window(pattern);
    const Byte* begin = block;
    while (filled > 0) {
        const Byte* const end = block + filled;
        const Place place = window.Examine(begin, end);
        if (place == Place::Occurrence) return ContentVerdict::MayOccur;
        if (place == Place::EndOfScan) return ContentVerdict::NoOccurrence;
        const Byte* const keep = window.KeepFrom(begin, end);
        const auto kept = static_cast<std::size_t>(end - keep);
        if (kept > ByteSource::PageSize) return ContentVerdict::MayOccur;
        begin = block - kept;
        std::memmove(block - kept, keep, kept);
        filled = source.Fill(block, blockSize);
    }
    return ContentVerdict::NoOccurrence;
}
