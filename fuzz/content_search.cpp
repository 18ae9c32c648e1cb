// Searches of file contents, one after the other over one shift table, against the plain search line by line:
// the same answer from scans of every width, and the same table afterwards.

#include "base/program_context.h"
#include "fuzz/fuzz_targets.h"
#include "fuzz/world/made_up_files.h"
#include "search/line_readers.h"
#include "search/content_matches.h"
#include "search/content_prefilter.h"
#include "search/double_byte_text.h"
#include "search/substring_search.h"
#include "tests/search/memory_byte_reader.h"
#include "tests/search/plain_content.h"
#include "tests/search/scan_widths.h"

namespace {

constexpr std::size_t LongestContent = 2000;

// A content of these marks and of other bytes, which stand for themselves.
enum Mark : std::uint8_t { Pattern = 0xF0, PatternInTwo, PartOfPattern, Run, ToNextBlock, ByteAsItIs };

PlainFind& Plain() {
    static PlainFind plain;
    return plain;
}

std::string SomePattern(FuzzInput& input) {
    const std::size_t kind = input.UpTo(15);
    std::string pattern = input.Bytes(kind == 15 ? input.UpTo(519) : kind);
    return pattern.substr(0, pattern.find('\0'));
}

void AppendPiece(FuzzInput& input, const std::string& pattern, bool longOnes, std::string& content) {
    const std::uint8_t mark = input.Byte();
    switch (mark) {
        case Pattern:
            content += pattern;
            break;
        case PatternInTwo: {
            const std::size_t part = input.UpTo(pattern.size());
            content += pattern.substr(0, part) + std::string(input.UpTo(3), '\r') + pattern.substr(part);
            break;
        }
        case PartOfPattern:
            content += pattern.substr(0, input.UpTo(pattern.size()));
            break;
        case Run: {
            const std::size_t count = input.UpTo(255);
            content += std::string(count, static_cast<char>(input.Byte()));
            break;
        }
        case ToNextBlock:
            if (longOnes && content.size() < ByteSource::BlockSize)
                content.resize(ByteSource::BlockSize - input.UpTo(255), static_cast<char>(input.Byte()));
            break;
        case ByteAsItIs:
            content += static_cast<char>(input.Byte());
            break;
        default:
            content += static_cast<char>(mark);
            break;
    }
}

// Rarely of several blocks, for those take long.
std::string SomeContent(FuzzInput& input, const std::string& pattern) {
    const bool longOnes = input.Byte() == 0xA5;
    const std::size_t most = longOnes ? ByteSource::BlockSize + LongestContent : LongestContent;
    std::string content;
    // The last round takes what is left.
    for (std::size_t pieces = input.Byte(); pieces > 0 && !input.IsUsedUp() && content.size() < most;
         --pieces)
        AppendPiece(input, pattern, longOnes, content);
    return content;
}

// As at the program's start. To clear everything takes longer than most inputs.
void ClearTables() {
    static bool isCleared = false;
    if (!isCleared || Plain().HasSearchedUnits()) SharedShiftTable().Clear();
    isCleared = true;
    SharedShiftTable().FillBytes(0);
    for (int byte = -128; byte < 0; ++byte)
        SharedShiftTable().SetByte(static_cast<char>(byte), 0);
    Plain().Clear();
}

// Entries of bytes, and those that bytes share with units.
void RequireSameTable(int from) {
    for (int index = from; index < ShiftTable::Entries; ++index) {
        Require(SharedShiftTable().EntryAt(index) == Plain().Table()[static_cast<std::size_t>(index)],
                "the search leaves the shift table as the plain one leaves it");
    }
}

// What an earlier search of names leaves in the table.
void SearchAName(FuzzInput& input) {
    const std::string bytes = input.Bytes(input.UpTo(20));
    std::vector<std::uint16_t> units;
    for (const char byte : bytes)
        units.push_back(static_cast<std::uint16_t>(0xFF00 | static_cast<unsigned char>(byte)));
    const std::vector<std::uint16_t> pattern(units.begin() + static_cast<long>(units.size() / 2),
                                             units.end());
    const std::vector<wchar_t> text(units.begin(), units.end());
    const std::vector<wchar_t> sought(pattern.begin(), pattern.end());
    const wchar_t* const found =
        FindWide(text.data(), static_cast<int>(text.size()), sought.data(), static_cast<int>(sought.size()));
    const int place = found == nullptr ? PlainFind::None : static_cast<int>(found - text.data());
    Require(place == Plain().Wide(units, pattern), "a name is searched as by the plain rule");
    RequireSameTable(0);
}

// The blocks may be small; then the pattern need not be folded either.
void RequireSoundVerdict(FuzzInput& input, const std::string& content, const ContentPattern& sought,
                         const PlainContentAnswer& plain) {
    const std::size_t blockSize = 2 + input.UpTo(255);
    MemoryByteSource source(content);
    const ContentVerdict verdict = JudgeContent(source, sought, blockSize);
    Require(!plain.found || verdict == ContentVerdict::MayOccur, "what the lines contain is never ruled out");
    Require(verdict != ContentVerdict::NoLine || plain.lines == 0, "no line is said to be there only then");
    Require(verdict != ContentVerdict::NoOccurrence || plain.lines > 0,
            "a line is said to be there only then");
}

void RequireSameAnswer(const std::string& content, const std::string& pattern, bool folding, bool found) {
    SearchConditions conditions;
    conditions.flags = SearchConditions::ContentString;
    if (folding) conditions.flags |= SearchConditions::IgnoreCase;
    std::copy(pattern.begin(), pattern.end(), conditions.contentPattern);
    SetMadeUpFile(content);
    for (const ScanWidth width : ScanWidthsHere()) {
        const ScanWidthInUse inUse(width);
        Require(ContentMatches(conditions, L"\\file", WIN32_FIND_DATAW{}) == found,
                "the content is searched as by the plain rule");
        RequireSameTable(ShiftTable::UnitEntries - 128);
    }
}

void SearchAContent(FuzzInput& input) {
    const std::uint8_t reading = input.Byte();
    const bool folding = (reading & 1) != 0;
    const bool doubleByteAware = (reading & 2) != 0;
    ContextForStartUp().codeConversionAvailable = doubleByteAware;
    std::string pattern = SomePattern(input);
    if (folding) UpperCaseBytes(pattern.data(), doubleByteAware);
    const std::string content = SomeContent(input, pattern);
    const ContentPattern sought{pattern.data(), pattern.size(), folding, doubleByteAware};
    const PlainContentAnswer plain = PlainContentSearch(Plain(), content, sought);
    RequireSoundVerdict(input, content, sought, plain);
    RequireSameAnswer(content, pattern, folding, plain.found);
}

}  // namespace

void FuzzContentSearch(FuzzInput& input) {
    ClearTables();
    if (input.Byte() % 16 == 15) SearchAName(input);
    for (int round = 0; round < 4 && !input.IsUsedUp(); ++round)
        SearchAContent(input);
}
