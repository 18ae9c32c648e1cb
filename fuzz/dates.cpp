// The calendar and the ranges of dates against one that counts every day from the first.

#include "fuzz/fuzz_targets.h"
#include "search/calendar.h"
#include "search/date_and_size.h"
#include "tests/search/plain_calendar.h"

namespace {

constexpr int LastYear = 3000;
constexpr int LastJulianDay = 577737;

// Every day of those years, the first one at 1, and the number of each year's first day.
struct Days {
    Days() : days(1), firstOfYear(static_cast<std::size_t>(LastYear) + 1) {
        for (PlainDay day; day.year <= LastYear; day.Advance()) {
            if (day.month == 1 && day.day == 1) firstOfYear[static_cast<std::size_t>(day.year)] = days.size();
            days.push_back(day);
        }
    }
    std::vector<PlainDay> days;
    std::vector<std::size_t> firstOfYear;
};

const Days& AllDays() {
    static const Days all;
    return all;
}

PlainDay DayOf(const SYSTEMTIME& date) {
    return {date.wYear, date.wMonth, date.wDay};
}

SYSTEMTIME DateOf(const PlainDay& day) {
    SYSTEMTIME date = {};
    date.wYear = static_cast<WORD>(day.year);
    date.wMonth = static_cast<WORD>(day.month);
    date.wDay = static_cast<WORD>(day.day);
    return date;
}

std::size_t SomeNumber(FuzzInput& input) {
    return 1 + input.DoubleWord() % (AllDays().days.size() - 1);
}

void CountADay(FuzzInput& input) {
    const std::size_t number = SomeNumber(input);
    const PlainDay& day = AllDays().days[number];
    Require(DaysFromDate(DateOf(day)) == static_cast<std::int32_t>(number), "a day has the plain number");
    SYSTEMTIME date = {};
    Require(DateFromDays(static_cast<std::int32_t>(number), date), "a day's number gives a date");
    Require(DayOf(date) == day, "a day's number gives the plain day");
}

// In a leap year any day passes, and counts on from its month's first one without knowing the calendar's gap.
std::int32_t NumberPlainly(const SYSTEMTIME& date) {
    if (date.wMonth < 1 || date.wMonth > 12 || date.wYear < 1) return -1;
    const PlainDay first{date.wYear, date.wMonth, 1};
    if (!first.InLeapYear() && (date.wDay < 1 || date.wDay > first.MonthLength())) return -1;
    std::size_t number = AllDays().firstOfYear[date.wYear];
    while (AllDays().days[number].month != date.wMonth)
        ++number;
    auto counted = static_cast<std::int32_t>(number) + date.wDay - 1;
    if (static_cast<std::int32_t>(number) <= LastJulianDay && counted > LastJulianDay) counted -= 10;
    return counted;
}

void CountAnyDate(FuzzInput& input) {
    SYSTEMTIME date = {};
    date.wYear = static_cast<WORD>(input.UpTo(LastYear));
    date.wMonth = static_cast<WORD>(input.UpTo(13));
    date.wDay = input.Flag() ? static_cast<WORD>(input.UpTo(32)) : input.Word();
    const std::int32_t number = DaysFromDate(date);
    Require(number == NumberPlainly(date), "a date has the plain number");
    Require(IsValidDate(date) == (number != -1), "a date that is none has no number");
}

// Only that it comes to an end with something that a date has room for.
void CountFromAnyNumber(FuzzInput& input) {
    SYSTEMTIME date = {};
    const auto number = static_cast<std::int32_t>(input.DoubleWord());
    const bool isValid = DateFromDays(number, date);
    Require(date.wMonth >= 1 && date.wMonth <= 12, "a month is one of twelve");
    Require(isValid == IsValidDate(date), "the answer is that of the date");
    SYSTEMTIME now = {};
    now.wYear = input.Word();
    now.wMonth = input.Word();
    now.wDay = input.Word();
    (void)PastDays(now, input.DoubleWord());
}

bool IsFirstInstant(const SYSTEMTIME& time) {
    return time.wHour == 0 && time.wMinute == 0 && time.wSecond == 0 && time.wMilliseconds == 0;
}

void CountBack(FuzzInput& input) {
    const std::size_t today = SomeNumber(input);
    const std::size_t days = input.DoubleWord() % today;
    SYSTEMTIME now = DateOf(AllDays().days[today]);
    now.wDayOfWeek = 3;
    now.wHour = input.Byte();
    now.wMilliseconds = input.Byte();
    const DateRange range = PastDays(now, static_cast<std::uint32_t>(days));
    Require(DayOf(range.from) == AllDays().days[today - days], "the range begins so many days before");
    Require(IsFirstInstant(range.from) && range.from.wDayOfWeek == 3, "at the first instant of that day");
    Require(DayOf(range.to) == DayOf(now) && range.to.wHour == now.wHour &&
                range.to.wMilliseconds == now.wMilliseconds,
            "the range ends now");
    const DateRange between = BetweenDates(range.to, now);
    Require(IsFirstInstant(between.from) && IsFirstInstant(between.to), "both ends are first instants");
    Require(DayOf(between.from) == DayOf(now) && DayOf(between.to) == DayOf(now), "of the two days");
}

}  // namespace

void FuzzDates(FuzzInput& input) {
    static constexpr decltype(&CountADay) Kinds[] = {CountADay, CountAnyDate, CountFromAnyNumber, CountBack};
    input.OneOf(Kinds)(input);
}
