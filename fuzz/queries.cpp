// What the user asks for, made into conditions: several searches one after the other, for each finds what the
// one before has left. Compared with the rule, field by field.

#include <cstring>

#include "base/program_context.h"
#include "fuzz/fuzz_targets.h"
#include "fuzz/fuzz_texts.h"
#include "fuzz/world/made_up_clock.h"
#include "search/double_byte_text.h"
#include "search/search_query.h"
#include "search/text_conversion.h"
#include "tkconv/tkconv.h"

namespace {

constexpr std::size_t MostUnits = 260;
constexpr std::size_t MostBytes = 519;
constexpr std::int64_t TicksPerMinute = 600'000'000;

constexpr int DateRangeBit = 0x0002;
constexpr int SizeAboveBit = 0x0004;
constexpr int SizeBelowBit = 0x0008;

// What the conditions are to be, as far as anything may be read of them.
struct PlainConditions {
    int flags = 0;
    FILETIME fromTime = {};
    FILETIME toTime = {};
    std::uint32_t sizeBound = 0;
    std::string pattern;
};

enum class Conversion { None, Default, Library };

std::string PlainBytes(const std::wstring& text, Conversion conversion) {
    std::string bytes;
    for (const wchar_t unit : text) {
        if (conversion != Conversion::Library) {
            if ((unit & 0xFF) == 0) break;
            bytes += static_cast<char>(unit & 0xFF);
            continue;
        }
        const unsigned short code = unicode2sjis(static_cast<unsigned short>(unit));
        if (code > 0xFF) bytes += static_cast<char>(code >> 8);
        bytes += code == 0 ? '?' : static_cast<char>(code & 0xFF);
    }
    return bytes.substr(0, MostBytes);
}

std::string PlainFolding(std::string bytes, bool leavesDoubleBytes) {
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        if (leavesDoubleBytes && IsLeadByte(byte)) {
            ++at;
        } else if (byte >= 'a' && byte <= 'z') {
            bytes[at] = static_cast<char>(byte - 32);
        }
    }
    return bytes;
}

// A time that is none leaves the beginning of all times to be converted.
void PlainTime(const SYSTEMTIME& local, FILETIME& utc) {
    FILETIME localTime = {};
    SystemTimeToFileTime(&local, &localTime);
    if (!TheZone().fails) utc = TimeOfTicks(TicksOf(localTime) - TheZone().minutesAhead * TicksPerMinute);
}

SYSTEMTIME SomeTime(FuzzInput& input) {
    SYSTEMTIME time = {};
    if (input.Byte() < 0xE0) {
        time.wYear = static_cast<WORD>(1601 + input.UpTo(600));
        time.wMonth = static_cast<WORD>(1 + input.UpTo(11));
        time.wDay = static_cast<WORD>(1 + input.UpTo(30));
        time.wHour = static_cast<WORD>(input.UpTo(24));
    } else {
        time.wYear = input.Word();
        time.wMonth = input.Word();
        time.wDay = input.Word();
        time.wHour = input.Word();
    }
    time.wMinute = input.Byte();
    time.wMilliseconds = input.Word();
    return time;
}

template <std::size_t Size>
void Copy(const std::wstring& from, wchar_t (&to)[Size]) {
    to[from.copy(to, Size - 1)] = L'\0';
}

Conversion SomeConversion(FuzzInput& input) {
    static constexpr Conversion Conversions[] = {Conversion::None, Conversion::Default, Conversion::Library};
    const Conversion conversion = input.OneOf(Conversions);
    ProgramContext& context = ContextForStartUp();
    context.toMultiByte = conversion == Conversion::None      ? nullptr
                          : conversion == Conversion::Default ? &DefaultToMultiByte
                                                              : &LibraryToMultiByte;
    context.codeConversionAvailable = conversion == Conversion::Library && input.Flag();
    return conversion;
}

void AskForContent(FuzzInput& input, SearchQuery& query, PlainConditions& plain) {
    const Conversion conversion = SomeConversion(input);
    const std::wstring content = input.Flag() ? SomeText(input, MostUnits) : L"";
    Copy(content, query.content);
    if (!content.empty()) {
        plain.flags |= 0x0100;
        plain.pattern = PlainBytes(content, conversion);
    }
    query.ignoreCase = input.Flag();
    if (!query.ignoreCase) return;
    plain.flags |= 0x0200;
    plain.pattern = PlainFolding(plain.pattern, Context().codeConversionAvailable);
}

void AskForDates(FuzzInput& input, SearchQuery& query, PlainConditions& plain) {
    if (!input.Flag()) return;
    const SYSTEMTIME first = SomeTime(input), second = SomeTime(input);
    query.dateRange = DateRange{first, second};
    plain.flags |= DateRangeBit;
    PlainTime(first, plain.fromTime);
    PlainTime(second, plain.toTime);
}

void AskForSize(FuzzInput& input, SearchQuery& query, PlainConditions& plain) {
    const int index = static_cast<int>(input.UpTo(4)) - 1;
    const std::uint32_t position = input.DoubleWord();
    query.sizeBound = SizeBoundOf(index, position);
    if (index == 1) plain.flags |= SizeAboveBit;
    if (index == 2) plain.flags |= SizeBelowBit;
    if (index == 0) plain.sizeBound = 0;
    if (index == 1 || index == 2) plain.sizeBound = position * 1024;
}

bool Same(const FILETIME& one, const FILETIME& other) {
    return TicksOf(one) == TicksOf(other);
}

void RequireSame(const SearchConditions& conditions, const PlainConditions& plain) {
    Require(conditions.flags == plain.flags, "the bits are those of what was asked");
    Require(Same(conditions.fromTime, plain.fromTime), "the first day begins where the zone says");
    Require(Same(conditions.toTime, plain.toTime), "the second day begins where the zone says");
    Require(conditions.sizeBound == plain.sizeBound, "the bound is in bytes");
    Require(conditions.contentPattern == plain.pattern, "the pattern is the content in the device's bytes");
}

}  // namespace

void FuzzQueries(FuzzInput& input) {
    const ProgramContext before = Context();
    UseConversionLibrary(unicode2sjis, sjis2unicode);
    SearchConditions conditions;
    PlainConditions plain;
    while (!input.IsUsedUp()) {
        SearchQuery query;
        TheZone() = {static_cast<int>(input.UpTo(1560)) - 720, input.Byte() >= 0xF0};
        plain.flags = 0;
        AskForContent(input, query, plain);
        if ((query.subFolders = input.Flag())) plain.flags |= 0x1000;
        AskForDates(input, query, plain);
        if ((query.typeFilter = input.Flag())) plain.flags |= 0x0001;
        AskForSize(input, query, plain);
        Copy(SomeText(input, 20), query.name);
        Copy(SomeText(input, 20), query.extensions);
        FillConditions(query, conditions);
        RequireSame(conditions, plain);
    }
    UseConversionLibrary(nullptr, nullptr);
    ContextForStartUp() = before;
}
