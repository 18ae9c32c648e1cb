// Every place that shows or compares a time, by itself: the rows, the sheet and the questions, the
// conditions. The system's own zone is in force.

#include <gtest/gtest.h>

#include <memory>

#include "fileops/file_details.h"
#include "results/result_list.h"
#include "search/date_and_size.h"
#include "search/search_query.h"
#include "tests/places/place.h"
#include "tests/results/list_cells.h"
#include "tests/support/asked_query.h"
#include "tests/support/test_world.h"

namespace {

class TimesInPlace : public testing::Test {
  protected:
    TimesInPlace() {
        PropertySet properties;
        properties.Set(property::Width, 220);
        properties.Set(property::Height, 150);
        list_ = std::make_unique<ResultList>(&host_.Object(), properties);
    }
    // The Modified cell of a row for a file written at that moment.
    std::wstring CellFor(Ticks moment) {
        WIN32_FIND_DATAW entry = FileEntry(L"a.txt");
        entry.ftLastWriteTime = FileTimeAt(moment);
        list_->AddMatch(L"\\f\\a.txt", entry);
        return CellOf(list_->Handle(), list_->RowCount() - 1, ResultColumn::Modified);
    }

  private:
    TestWorld world_;
    HostWindow host_;
    std::unique_ptr<ResultList> list_;
};

// As the sheet and the questions show it.
std::wstring DetailsFor(Ticks moment) {
    wchar_t text[FileDetailsCapacity];
    FormatTimeDetails(FileTimeAt(moment), text, std::size(text));
    return text;
}

// The system's own short forms of what the clock shows.
std::wstring ShortForms(const SYSTEMTIME& clock) {
    wchar_t date[80] = L"";
    wchar_t time[80] = L"";
    GetDateFormatW(LOCALE_SYSTEM_DEFAULT, 0, &clock, nullptr, date, 80);
    GetTimeFormatW(LOCALE_SYSTEM_DEFAULT, 0, &clock, nullptr, time, 80);
    return std::wstring(date) + L" " + time;
}

bool Passes(const SearchConditions& conditions, Ticks moment) {
    WIN32_FIND_DATAW entry = {};
    entry.ftLastWriteTime = FileTimeAt(moment);
    return PassesDateAndSize(conditions, entry);
}

SearchConditions ConditionsOf(const DateRange& range) {
    AskedQuery query;
    query.dateRange = range;
    SearchConditions conditions;
    FillConditions(query, conditions);
    return conditions;
}

SYSTEMTIME Day(int year, int month, int day) {
    SYSTEMTIME date = {};
    date.wYear = static_cast<WORD>(year);
    date.wMonth = static_cast<WORD>(month);
    date.wDay = static_cast<WORD>(day);
    return date;
}

// The first and the last moment that pass, and their neighbours.
void ExpectRange(const SearchConditions& conditions, Ticks first, Ticks last) {
    EXPECT_FALSE(Passes(conditions, first - 1));
    EXPECT_TRUE(Passes(conditions, first));
    EXPECT_TRUE(Passes(conditions, last));
    EXPECT_FALSE(Passes(conditions, last + 1));
}

struct Dates {
    int year, month, day;
};
constexpr Dates Days[] = {{1601, 1, 3},   {1969, 12, 31}, {1999, 12, 31}, {2000, 1, 1},
                          {2000, 2, 29},  {2001, 2, 28},  {2001, 3, 1},   {2002, 3, 31},
                          {2002, 10, 27}, {2002, 5, 31},  {2004, 2, 29},  {2107, 12, 31}};

}  // namespace

TEST_F(TimesInPlace, a_row_shows_what_the_clock_here_showed_at_the_present_difference_to_utc) {
    for (const NamedMoment& odd : OddMoments)
        EXPECT_EQ(CellFor(odd.moment), RowTextAt(odd.moment)) << odd.name;
    const Ticks now = Now();
    EXPECT_EQ(CellFor(now), RowTextAt(now));
}

TEST_F(TimesInPlace, the_first_days_that_there_are_have_a_row_with_what_can_be_said_of_them) {
    EXPECT_EQ(CellFor(MomentOf(1601, 1, 3)), RowTextAt(MomentOf(1601, 1, 3)));
    // West of Greenwich the clock cannot tell: there is no date before 1601.
    const std::wstring first = MinutesAhead() >= 0 ? RowTextAt(0) : L" 00:00:00";
    EXPECT_EQ(CellFor(0), first);
    EXPECT_EQ(CellFor(MomentOf(2000, 1, 1)), RowTextAt(MomentOf(2000, 1, 1)));
}

TEST_F(TimesInPlace, a_second_before_and_after_the_night_of_a_change_are_one_second_apart) {
    for (const Ticks change :
         {MomentOf(2002, 3, 31, 1), MomentOf(2002, 10, 27, 1), MomentOf(2026, 3, 29, 1)}) {
        EXPECT_EQ(CellFor(change - TicksPerSecond), RowTextAt(change - TicksPerSecond));
        EXPECT_EQ(CellFor(change), RowTextAt(change));
        EXPECT_NE(CellFor(change), CellFor(change - TicksPerSecond));
    }
}

TEST(DetailsInPlace, sheet_and_questions_show_the_systems_short_forms_of_the_clock_here) {
    for (const NamedMoment& odd : OddMoments)
        EXPECT_EQ(DetailsFor(odd.moment), ShortForms(ClockAt(odd.moment))) << odd.name;
    EXPECT_EQ(DetailsFor(MomentOf(1601, 1, 3)), ShortForms(ClockAt(MomentOf(1601, 1, 3))));
}

TEST(ConditionsInPlace, between_two_days_runs_from_midnight_to_midnight_here) {
    for (const Dates& day : Days) {
        SCOPED_TRACE(testing::Message() << day.year << '-' << day.month << '-' << day.day);
        const SYSTEMTIME date = Day(day.year, day.month, day.day);
        const Ticks midnight = LocalMomentOf(day.year, day.month, day.day);
        ExpectRange(ConditionsOf(BetweenDates(date, date)), midnight, midnight);
        const Ticks end = LocalMomentOf(2108, 1, 1);
        ExpectRange(ConditionsOf(BetweenDates(date, Day(2108, 1, 1))), midnight, end);
    }
}

TEST(ConditionsInPlace, past_days_begin_at_midnight_by_the_utc_date_and_end_now_both_read_as_local) {
    for (const Dates& day : {Dates{2000, 3, 1}, Dates{2001, 3, 1}, Dates{2002, 5, 31}, Dates{2100, 3, 1}}) {
        for (const int days : {0, 1, 59, 60, 366, 999}) {
            SCOPED_TRACE(testing::Message() << days << " days before " << day.year << '-' << day.month);
            SYSTEMTIME nowUtc = Day(day.year, day.month, day.day);
            nowUtc.wHour = 23;
            nowUtc.wMinute = 30;
            const Ticks ahead = MinutesAhead() * TicksPerMinute;
            const Ticks today = MomentOf(day.year, day.month, day.day);
            ExpectRange(ConditionsOf(PastDays(nowUtc, static_cast<std::uint32_t>(days))),
                        today - days * TicksPerDay - ahead,
                        today + 23 * TicksPerHour + 30 * TicksPerMinute - ahead);
        }
    }
}
