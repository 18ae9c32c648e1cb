// Sizes and times as rows show them, what columns are sorted by, and the cheap tests of an entry.

#include <cwchar>

#include "fileops/dos_time.h"
#include "fuzz/fuzz_targets.h"
#include "fuzz/fuzz_texts.h"
#include "results/row_texts.h"
#include "results/sort_keys.h"
#include "search/date_and_size.h"

namespace {

void ShowASize(FuzzInput& input) {
    const std::uint32_t lowSize = input.DoubleWord() >> input.UpTo(31);
    wchar_t text[RowTextCapacity];
    FormatResultSize(lowSize, text);
    const auto size = static_cast<std::int32_t>(lowSize);
    const int unit = size >= 1 << 20 ? 20 : size >= 1 << 10 ? 10 : 0;
    const wchar_t* const letter = unit == 20 ? L"M" : unit == 10 ? L"K" : L"";
    Require(text == std::to_wstring(unit == 0 ? size : size >> unit) + letter,
            "a size is shown in whole units");
    Require(ParseShownSize(text) == (unit == 0 ? size : size >> unit << unit),
            "it is sorted by what is shown");
}

void SortByTexts(FuzzInput& input) {
    const std::wstring one = SomeTextOf(input, L"aAbB01/: [`KM", 12);
    const std::wstring other = SomeTextOf(input, L"aAbB01/: [`KM", 12);
    ExactText<wchar_t> first(one), second(other);
    // Any text may stand in a cell.
    (void)ParseShownSize(first.Get());
    FoldForComparison(first.Get());
    FoldForComparison(second.Get());
    const auto lower = [](std::wstring text) {
        for (wchar_t& unit : text)
            if (unit >= L'A' && unit <= L'Z') unit = static_cast<wchar_t>(unit + 32);
        return text;
    };
    const int plain = lower(one).compare(lower(other));
    const int order = CompareFoldedTexts(first.Get(), second.Get());
    Require(order == (plain > 0 ? 1 : plain < 0 ? -1 : 0), "texts are in the plain order");
}

SYSTEMTIME SomeTime(FuzzInput& input) {
    SYSTEMTIME time = {};
    const bool isMoment = input.Byte() < 0xF0;
    const auto field = [&](std::size_t least, std::size_t most) {
        return isMoment ? static_cast<WORD>(least + input.UpTo(most - least)) : input.Word();
    };
    time.wYear = field(1980, 2107);
    time.wMonth = field(1, 12);
    time.wDay = field(1, 31);
    time.wHour = field(0, 23);
    time.wMinute = field(0, 59);
    time.wSecond = field(0, 59);
    time.wMilliseconds = field(0, 999);
    return time;
}

std::wstring TwoDigits(int number) {
    return {static_cast<wchar_t>(L'0' + number / 10 % 10), static_cast<wchar_t>(L'0' + number % 10)};
}

// Several in a row, for the text of a day is kept.
void ShowTimes(FuzzInput& input) {
    while (!input.IsUsedUp()) {
        const SYSTEMTIME time = SomeTime(input);
        wchar_t text[2 * RowTextCapacity];
        FormatResultTime(time, text);
        std::wstring date, clock;
        if (time.wMonth >= 1 && time.wMonth <= 12 && time.wDay >= 1 && time.wDay <= 31)
            date = TwoDigits(time.wYear) + L'/' + TwoDigits(time.wMonth) + L'/' + TwoDigits(time.wDay);
        if (time.wHour < 24 && time.wMinute < 60 && time.wSecond < 60 && time.wMilliseconds < 1000)
            clock = TwoDigits(time.wHour) + L':' + TwoDigits(time.wMinute) + L':' + TwoDigits(time.wSecond);
        Require(text == date + L' ' + clock, "a time is shown as the system writes it");
    }
}

// Within the years of the steps, by a number that has no gaps: enough to tell earlier from later.
std::int64_t StepOf(const SYSTEMTIME& time) {
    const std::int64_t day = (std::int64_t{time.wYear} * 12 + time.wMonth) * 32 + time.wDay;
    return ((day * 24 + time.wHour) * 60 + time.wMinute) * 30 + time.wSecond / 2;
}

void CompareSteps(FuzzInput& input) {
    SYSTEMTIME times[2];
    for (SYSTEMTIME& time : times) {
        time = SomeTime(input);
        if (time.wYear < 1980 || time.wYear > 2107 || time.wMonth > 12 || time.wDay > 31) return;
        if (time.wHour > 23 || time.wMinute > 59 || time.wSecond > 59) return;
    }
    const std::int64_t first = StepOf(times[0]), second = StepOf(times[1]);
    Require(
        CompareDosTimes(PackDosTime(times[0]), PackDosTime(times[1])) == (first > second) - (first < second),
        "times are compared by their steps of two seconds");
}

void BoundASize(FuzzInput& input) {
    const int index = static_cast<int>(input.UpTo(4)) - 1;
    const std::uint32_t position = input.DoubleWord();
    const SizeBound bound = SizeBoundOf(index, position);
    const SizeLimit limit = index == 1 ? SizeLimit::Above : index == 2 ? SizeLimit::Below : SizeLimit::None;
    Require(bound.limit == limit, "the index says what the bound is");
    std::optional<std::uint32_t> bytes;
    if (index == 0) bytes = 0;
    if (limit != SizeLimit::None) bytes = position * 1024;
    Require(bound.bytes == bytes, "a bound is in bytes");
}

std::uint64_t NumberOf(const FILETIME& time) {
    return std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
}

// Few different numbers, so that they are often equal.
FILETIME SomeFileTime(FuzzInput& input) {
    return {static_cast<DWORD>(input.UpTo(2)) - 1, static_cast<DWORD>(input.UpTo(2)) - 1};
}

void TestAnEntry(FuzzInput& input) {
    SearchConditions conditions;
    conditions.flags = input.Word();
    conditions.fromTime = SomeFileTime(input);
    conditions.toTime = SomeFileTime(input);
    conditions.sizeBound = static_cast<std::uint32_t>(input.UpTo(3)) - 1;
    WIN32_FIND_DATAW entry = {};
    entry.ftLastWriteTime = SomeFileTime(input);
    entry.nFileSizeHigh = static_cast<DWORD>(input.UpTo(1));
    entry.nFileSizeLow = static_cast<DWORD>(input.UpTo(3)) - 1;
    const std::uint64_t written = NumberOf(entry.ftLastWriteTime);
    bool passes = true;
    if ((conditions.flags & 2) != 0)
        passes = written >= NumberOf(conditions.fromTime) && written <= NumberOf(conditions.toTime);
    if ((conditions.flags & 4) != 0) passes = passes && entry.nFileSizeLow > conditions.sizeBound;
    if ((conditions.flags & 8) != 0) passes = passes && entry.nFileSizeLow < conditions.sizeBound;
    Require(PassesDateAndSize(conditions, entry) == passes, "an entry passes as by the plain rule");
}

}  // namespace

void FuzzSizes(FuzzInput& input) {
    static constexpr decltype(&ShowASize) Kinds[] = {ShowASize,    SortByTexts, ShowTimes,
                                                     CompareSteps, BoundASize,  TestAnEntry};
    input.OneOf(Kinds)(input);
}
