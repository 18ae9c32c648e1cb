// The range that the date page answers the search with.

#include "conditions/date_page.h"
#include "tests/conditions/page_test.h"

namespace {

SYSTEMTIME Time(WORD year, WORD month, WORD day, WORD hour = 0, WORD minute = 0, WORD second = 0,
                WORD milliseconds = 0) {
    SYSTEMTIME time = {};
    time.wYear = year;
    time.wMonth = month;
    time.wDay = day;
    time.wHour = hour;
    time.wMinute = minute;
    time.wSecond = second;
    time.wMilliseconds = milliseconds;
    return time;
}

// Year to millisecond; the day of the week is nobody's business.
std::vector<int> Fields(const SYSTEMTIME& time) {
    return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, time.wMilliseconds};
}

const SYSTEMTIME Now = Time(2002, 7, 15, 20, 5, 30, 123);

}  // namespace

class DateRangeAnswers : public PageTest {
  protected:
    DateRangeAnswers() : page_(Host()) { Open(page_); }

    void Pick(int picker, const SYSTEMTIME& date) const {
        Send(picker, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&date));
    }
    [[nodiscard]] DateRange AskedRange() const {
        const std::optional<DateRange> range = QueryOf(page_).dateRange;
        EXPECT_TRUE(range);
        return range.value_or(DateRange{});
    }
    // The range of the past days when this is typed, from its first instant to the clock's time.
    SYSTEMTIME FirstOfPast(const std::wstring& typed) {
        Click(RADIO_PAST);
        SetText(EDIT_DAYS, typed);
        const DateRange range = AskedRange();
        EXPECT_EQ(Fields(range.to), Fields(Now));
        return range.from;
    }

  private:
    Replaced<decltype(ce::systemCalls.getSystemTime)> clockTime_{ce::systemCalls.getSystemTime,
                                                                 [](SYSTEMTIME* now) { *now = Now; }};

  protected:
    DatePage page_;
};

TEST_F(DateRangeAnswers, all_files_gives_no_range) {
    EXPECT_FALSE(QueryOf(page_).dateRange);
}

TEST_F(DateRangeAnswers, between_runs_from_midnight_to_midnight_of_the_picked_dates) {
    Click(RADIO_BETWEEN);
    Pick(PICKER_FROM, Time(2002, 1, 10, 13, 14, 15, 16));
    Pick(PICKER_TO, Time(2002, 2, 20, 23, 59, 59, 999));
    const DateRange range = AskedRange();
    EXPECT_EQ(Fields(range.from), Fields(Time(2002, 1, 10)));
    EXPECT_EQ(Fields(range.to), Fields(Time(2002, 2, 20)));
}

TEST_F(DateRangeAnswers, between_may_run_backwards) {
    Click(RADIO_BETWEEN);
    Pick(PICKER_FROM, Time(2002, 2, 20));
    Pick(PICKER_TO, Time(2002, 1, 10));
    const DateRange range = AskedRange();
    EXPECT_EQ(Fields(range.from), Fields(Time(2002, 2, 20)));
    EXPECT_EQ(Fields(range.to), Fields(Time(2002, 1, 10)));
}

TEST_F(DateRangeAnswers, the_past_day_of_the_reset_runs_from_yesterdays_midnight_to_now) {
    Click(RADIO_PAST);
    const DateRange range = AskedRange();
    EXPECT_EQ(Fields(range.from), Fields(Time(2002, 7, 14)));
    EXPECT_EQ(Fields(range.to), Fields(Now));
}

TEST_F(DateRangeAnswers, the_spins_days_are_counted_back) {
    Click(RADIO_PAST);
    Send(SPIN_DAYS, UDM_SETPOS, 0, 999);
    const DateRange range = AskedRange();
    EXPECT_EQ(Fields(range.from), Fields(Time(1999, 10, 20)));
}

TEST_F(DateRangeAnswers, a_0_that_is_typed_is_read_as_typed_and_gives_today) {
    EXPECT_EQ(Fields(FirstOfPast(L"0")), Fields(Time(2002, 7, 15)));
}

TEST_F(DateRangeAnswers, a_1000_that_is_typed_is_read_as_typed) {
    EXPECT_EQ(Fields(FirstOfPast(L"1000")), Fields(Time(1999, 10, 19)));
}

TEST_F(DateRangeAnswers, empty_days_carry_the_error_word_and_reach_more_than_179_years_back) {
    // 65,536 of the error word and the 1 that the spin stood at.
    EXPECT_EQ(Fields(FirstOfPast(L"")), Fields(Time(1823, 2, 7)));
    EXPECT_EQ(Fields(FirstOfPast(L"abc")), Fields(Time(1823, 2, 7)));
}

TEST_F(DateRangeAnswers, with_nothing_checked_a_range_is_told_but_not_set) {
    Send(RADIO_ALL_FILES, BM_SETCHECK, BST_UNCHECKED);
    const DateRange range = AskedRange();
    EXPECT_EQ(Fields(range.from), Fields({}));
    EXPECT_EQ(Fields(range.to), Fields({}));
}
