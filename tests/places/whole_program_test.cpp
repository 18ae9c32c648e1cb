// The whole program with real files in any zone, on a system of any language that is not Japanese, or
// Japanese.

#include <cstring>

#include "resources/resource_ids.h"
#include "tests/places/place.h"
#include "tests/program/results_test.h"

namespace {

class WholeInPlace : public ResultsTest {
  protected:
    void AddWritten(const std::wstring& name, Ticks moment) {
        AddFile(name);
        const HANDLE file = CreateFileW(Real(name).c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(INVALID_HANDLE_VALUE, file);
        const FILETIME time = FileTimeAt(moment);
        EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, &time));
        CloseHandle(file);
    }
    Names FoundBetween(int first, int second) {
        Program().Click(DatePage, RADIO_BETWEEN);
        Program().SetDate(DatePage, PICKER_FROM, first);
        Program().SetDate(DatePage, PICKER_TO, second);
        return Sorted(Find());
    }
    Names FoundInPastDays(int days) {
        Program().Click(DatePage, RADIO_PAST);
        Program().SetSpin(DatePage, SPIN_DAYS, days);
        return Sorted(Find());
    }
    // A file in each second around the moment: "0 NAME", "1 NAME" and "2 NAME".
    void AddAround(const std::wstring& name, Ticks moment) {
        for (int second = 0; second < 3; ++second)
            AddWritten(std::to_wstring(second) + L" " + name, moment + (second - 1) * TicksPerSecond);
    }
};

std::wstring ShortForms(const SYSTEMTIME& clock) {
    wchar_t date[80] = L"";
    wchar_t time[80] = L"";
    GetDateFormatW(LOCALE_SYSTEM_DEFAULT, 0, &clock, nullptr, date, 80);
    GetTimeFormatW(LOCALE_SYSTEM_DEFAULT, 0, &clock, nullptr, time, 80);
    return std::wstring(date) + L" " + time;
}

Ticks TodayByUtc() {
    return Now() / TicksPerDay * TicksPerDay;
}

}  // namespace

TEST_F(WholeInPlace, rows_and_their_order_by_time_are_what_the_clock_here_shows) {
    Names expected;
    for (const NamedMoment& odd : OddMoments) {
        AddWritten(std::wstring(odd.name, odd.name + std::strlen(odd.name)), odd.moment);
        expected.push_back(RowTextAt(odd.moment));
    }
    ASSERT_EQ(Find().size(), static_cast<std::size_t>(MomentCount));
    for (const NamedMoment& odd : OddMoments)
        EXPECT_EQ(Row(std::wstring(odd.name, odd.name + std::strlen(odd.name))).modified,
                  RowTextAt(odd.moment));
    ClickHeading(ModifiedColumn);
    const auto shown = [&] {
        Names texts;
        for (const RowState& row : Program().Rows())
            texts.push_back(row.modified);
        return texts;
    };
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return shown() == Sorted(expected); }))
        << testing::PrintToString(shown());
}

TEST_F(WholeInPlace, between_two_picked_days_runs_from_midnight_to_midnight_here) {
    AddAround(L"29 February", LocalMomentOf(2000, 2, 29));
    AddAround(L"1 March", LocalMomentOf(2000, 3, 1));
    EXPECT_EQ(FoundBetween(20000229, 20000301),
              (Names{L"0 1 March", L"1 1 March", L"1 29 February", L"2 29 February"}));
    EXPECT_EQ(FoundBetween(20000229, 20000229), (Names{L"1 29 February"}));
    AddAround(L"1970", LocalMomentOf(1970, 1, 1));
    AddAround(L"2107", LocalMomentOf(2107, 12, 31));
    EXPECT_EQ(FoundBetween(19691231, 19691231), (Names{}));
    EXPECT_EQ(FoundBetween(19691231, 19700101), (Names{L"0 1970", L"1 1970"}));
    EXPECT_EQ(FoundBetween(21071231, 21071231), (Names{L"1 2107"}));
}

TEST_F(WholeInPlace, between_days_around_a_night_of_summer_times_change_is_as_between_any_others) {
    AddAround(L"spring", LocalMomentOf(2002, 3, 31));
    AddAround(L"spring after", LocalMomentOf(2002, 4, 1));
    EXPECT_EQ(FoundBetween(20020331, 20020401),
              (Names{L"0 spring after", L"1 spring", L"1 spring after", L"2 spring"}));
    AddAround(L"autumn", LocalMomentOf(2002, 10, 27));
    AddAround(L"autumn after", LocalMomentOf(2002, 10, 28));
    EXPECT_EQ(FoundBetween(20021027, 20021028),
              (Names{L"0 autumn after", L"1 autumn", L"1 autumn after", L"2 autumn"}));
}

TEST_F(WholeInPlace, past_days_begin_at_midnight_by_the_utc_date_and_end_now_both_read_as_local) {
    constexpr int Days = 40;
    constexpr Ticks Margin = 10 * TicksPerMinute;
    const Ticks ahead = MinutesAhead() * TicksPerMinute;
    Names found;
    // Tried anew when a day has ended meanwhile.
    for (Ticks today = 0; today != TodayByUtc();) {
        today = TodayByUtc();
        AddAround(L"first", today - Days * TicksPerDay - ahead);
        AddWritten(L"last", Now() - ahead - Margin);
        AddWritten(L"late", Now() - ahead + Margin);
        found = FoundInPastDays(Days);
    }
    EXPECT_EQ(found, (Names{L"1 first", L"2 first", L"last"}));
}

TEST_F(WholeInPlace, the_properties_show_the_systems_short_forms_of_the_clock_here) {
    const Ticks moment = MomentOf(1999, 12, 31, 23, 59, 59);
    AddWritten(L"a.qsa", moment);
    Find();
    SelectRow(L"a.qsa");
    const ProgramDialog sheet = Opened(COMMAND_PROPERTIES);
    EXPECT_EQ(sheet.Text(STATIC_MODIFIED), ShortForms(ClockAt(moment)));
    EXPECT_EQ(sheet.Text(STATIC_SIZE), L"0.0KB (4 bytes)");
    sheet.Press(IDCANCEL);
}

TEST_F(WholeInPlace, every_language_but_japanese_reads_english) {
    EXPECT_EQ(Program().Columns().at(NameColumn).heading, Shown(L"Name", L"名前"));
    AddFile(L"a.qsa");
    Find();
    SelectRow(L"a.qsa");
    const ProgramDialog sheet = Opened(COMMAND_PROPERTIES);
    EXPECT_EQ(sheet.Text(CHECK_READ_ONLY), Shown(L"&Read-only", L"読みとり専用(&R)"));
    sheet.Press(IDCANCEL);
}

TEST_F(WholeInPlace, names_are_found_and_sorted_by_their_english_letters_whatever_the_systems_own) {
    for (const wchar_t* name : {L"TITLE.INI", L"title 2.ini", L"tıtle.txt", L"TİTLE.txt"})
        AddFile(name);
    EXPECT_EQ(Sorted(Find(L"TITLE*")), (Names{L"TITLE.INI", L"title 2.ini"}));
    EXPECT_EQ(Sorted(Find(L"*.ini")), (Names{L"TITLE.INI", L"title 2.ini"}));
    EXPECT_EQ(Find(L"TITLE"), (Names{L"TITLE.INI"}));
    EXPECT_EQ(Find(L"ı"), (Names{L"tıtle.txt"}));
}

TEST_F(WholeInPlace, content_is_found_by_the_bytes_of_the_english_letters) {
    AddFile(L"upper.txt", "A TITLE\r\n");
    AddFile(L"lower.txt", "a title\r\n");
    AddFile(L"other.txt", "a t\xFDtle, a T\xDDTLE\r\n");
    EXPECT_EQ(NamesFoundBy(Containing(L"title", Folder())), (Names{L"lower.txt"}));
    Program().SendMenuCommand(COMMAND_CHECK_CASE);
    EXPECT_EQ(Sorted(NamesFoundBy(Containing(L"tItLe", Folder()))), (Names{L"lower.txt", L"upper.txt"}));
}
