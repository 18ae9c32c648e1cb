#include "conditions/date_page.h"

#include "tests/conditions/message_log.h"
#include "tests/conditions/page_test.h"

namespace {

SYSTEMTIME clockTime = {};

SYSTEMTIME Date(WORD year, WORD month, WORD day) {
    SYSTEMTIME date = {};
    date.wYear = year;
    date.wMonth = month;
    date.wDay = day;
    return date;
}

struct Day {
    int year, month, day;
    bool operator==(const Day&) const = default;
};

Day DayOf(const SYSTEMTIME& time) {
    return {time.wYear, time.wMonth, time.wDay};
}

}  // namespace

class DatePageTest : public PageTest {
  protected:
    void SetUp() override {
        clockTime = Date(2002, 7, 15);
        clockTime.wHour = 20;
        clockTime.wMinute = 5;
        clockTime.wSecond = 30;
    }
    void OpenPage() {
        page_ = std::make_unique<DatePage>(Host());
        Open(*page_);
    }
    [[nodiscard]] Day Picked(int picker) const {
        SYSTEMTIME date = {};
        EXPECT_EQ(Send(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&date)), GDT_VALID);
        return DayOf(date);
    }
    void ExpectEnabled(bool pickers, bool days) const {
        EXPECT_EQ(IsEnabled(PICKER_FROM), pickers);
        EXPECT_EQ(IsEnabled(PICKER_TO), pickers);
        EXPECT_EQ(IsEnabled(EDIT_DAYS), days);
        EXPECT_EQ(IsEnabled(SPIN_DAYS), days);
    }
    void ExpectChecked(int radio) const {
        for (const int id : {RADIO_ALL_FILES, RADIO_BETWEEN, RADIO_PAST})
            EXPECT_EQ(Send(id, BM_GETCHECK), id == radio ? BST_CHECKED : BST_UNCHECKED) << id;
    }
    // A click's notification without the click.
    void Notify(int id) const {
        SendMessageW(page_->Handle(), WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                     reinterpret_cast<LPARAM>(Item(id)));
    }

    std::unique_ptr<DatePage> page_;

  private:
    Replaced<decltype(ce::systemCalls.getSystemTime)> replaced_{ce::systemCalls.getSystemTime,
                                                                [](SYSTEMTIME* now) { *now = clockTime; }};
};

TEST_F(DatePageTest, all_files_is_checked_and_everything_else_disabled) {
    OpenPage();
    ExpectChecked(RADIO_ALL_FILES);
    ExpectEnabled(false, false);
}

TEST_F(DatePageTest, the_template_is_chosen_by_the_language) {
    OpenPage();
    EXPECT_EQ(TextOf(RADIO_PAST), L"Paste&d");
    UseJapanese();
    OpenPage();
    EXPECT_EQ(TextOf(RADIO_PAST), L"過去(&D)");
}

TEST_F(DatePageTest, both_pickers_show_the_year_in_four_digits_by_a_format_that_lets_it_be_changed) {
    const MessageLog log({DTM_SETFORMATW});
    OpenPage();
    for (const int picker : {PICKER_FROM, PICKER_TO}) {
        const auto sent = log.To(picker, DTM_SETFORMATW);
        ASSERT_EQ(sent.size(), 1U);
        EXPECT_EQ(sent[0].text, L"yyyy/MM/dd");
    }
}

TEST_F(DatePageTest, the_spin_is_given_its_range_as_the_number_66535_and_runs_from_1_to_999) {
    const MessageLog log({UDM_SETRANGE});
    OpenPage();
    const auto sent = log.To(SPIN_DAYS, UDM_SETRANGE);
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0].lParam, 66535);
    EXPECT_EQ(Send(SPIN_DAYS, UDM_GETRANGE), MAKELRESULT(999, 1));
    EXPECT_EQ(TextOf(EDIT_DAYS), L"1");
}

TEST_F(DatePageTest, the_spin_itself_goes_neither_below_1_nor_above_999) {
    OpenPage();
    Send(SPIN_DAYS, UDM_SETPOS, 0, 0);
    EXPECT_EQ(TextOf(EDIT_DAYS), L"1");
    Send(SPIN_DAYS, UDM_SETPOS, 0, 1000);
    EXPECT_EQ(TextOf(EDIT_DAYS), L"999");
}

TEST_F(DatePageTest, the_pickers_start_at_the_clocks_date_and_three_months_before) {
    OpenPage();
    EXPECT_EQ(Picked(PICKER_TO), (Day{2002, 7, 15}));
    EXPECT_EQ(Picked(PICKER_FROM), (Day{2002, 4, 15}));
}

TEST_F(DatePageTest, the_second_picker_is_set_before_the_first_and_keeps_the_time_of_day) {
    const MessageLog log({DTM_SETSYSTEMTIME});
    OpenPage();
    // The calendars inside the pickers get messages of the same number.
    std::vector<SentMessage> toPickers;
    for (const SentMessage& sent : log.All()) {
        if (sent.controlId == PICKER_FROM || sent.controlId == PICKER_TO) toPickers.push_back(sent);
    }
    ASSERT_EQ(toPickers.size(), 2U);
    EXPECT_EQ(toPickers[0].controlId, PICKER_TO);
    EXPECT_EQ(toPickers[0].time.wHour, 20);
    EXPECT_EQ(toPickers[0].time.wMinute, 5);
    EXPECT_EQ(toPickers[1].controlId, PICKER_FROM);
    EXPECT_EQ(toPickers[1].time.wHour, 20);
    EXPECT_EQ(toPickers[1].time.wSecond, 30);
}

TEST(ThreeMonthsEarlierTest, january_to_march_go_to_the_year_before) {
    EXPECT_EQ(DayOf(ThreeMonthsEarlier(Date(2002, 1, 10))), (Day{2001, 10, 10}));
    EXPECT_EQ(DayOf(ThreeMonthsEarlier(Date(2002, 2, 28))), (Day{2001, 11, 28}));
    EXPECT_EQ(DayOf(ThreeMonthsEarlier(Date(2002, 3, 31))), (Day{2001, 12, 31}));
}

TEST(ThreeMonthsEarlierTest, april_to_december_stay_in_their_year) {
    EXPECT_EQ(DayOf(ThreeMonthsEarlier(Date(2002, 4, 1))), (Day{2002, 1, 1}));
    EXPECT_EQ(DayOf(ThreeMonthsEarlier(Date(2002, 12, 31))), (Day{2002, 9, 31}));
}

TEST(ThreeMonthsEarlierTest, everything_but_month_and_year_is_kept) {
    SYSTEMTIME date = Date(2002, 5, 31);
    date.wDayOfWeek = 5;
    date.wHour = 23;
    date.wMilliseconds = 999;
    const SYSTEMTIME earlier = ThreeMonthsEarlier(date);
    EXPECT_EQ(DayOf(earlier), (Day{2002, 2, 31}));
    EXPECT_EQ(earlier.wDayOfWeek, 5);
    EXPECT_EQ(earlier.wHour, 23);
    EXPECT_EQ(earlier.wMilliseconds, 999);
}

TEST_F(DatePageTest, on_31_may_the_first_picker_is_given_31_february_and_keeps_what_it_had) {
    clockTime = Date(2002, 3, 10);
    OpenPage();
    ASSERT_EQ(Picked(PICKER_FROM), (Day{2001, 12, 10}));
    clockTime = Date(2002, 5, 31);
    const MessageLog log({DTM_SETSYSTEMTIME});
    page_->Reset();
    const auto sent = log.To(PICKER_FROM, DTM_SETSYSTEMTIME);
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(DayOf(sent[0].time), (Day{2002, 2, 31}));
    EXPECT_EQ(Picked(PICKER_FROM), (Day{2001, 12, 10}));
    EXPECT_EQ(Picked(PICKER_TO), (Day{2002, 5, 31}));
}

TEST_F(DatePageTest, between_enables_the_pickers_alone) {
    OpenPage();
    Click(RADIO_BETWEEN);
    ExpectChecked(RADIO_BETWEEN);
    ExpectEnabled(true, false);
}

TEST_F(DatePageTest, past_days_enables_the_days_alone) {
    OpenPage();
    Click(RADIO_PAST);
    ExpectChecked(RADIO_PAST);
    ExpectEnabled(false, true);
}

// The page has none by itself; a program may give it some.
TEST_F(DatePageTest, past_days_disable_controls_with_the_size_pages_ids) {
    OpenPage();
    for (const int id : {EDIT_KILOBYTES, SPIN_KILOBYTES}) {
        ASSERT_EQ(Item(id), nullptr);
        CreateWindowExW(0, L"Edit", L"", WS_CHILD, 0, 0, 20, 12, page_->Handle(),
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
        ASSERT_TRUE(IsEnabled(id)) << id;
    }
    Click(RADIO_BETWEEN);
    EXPECT_TRUE(IsEnabled(EDIT_KILOBYTES) && IsEnabled(SPIN_KILOBYTES));
    Click(RADIO_PAST);
    EXPECT_FALSE(IsEnabled(EDIT_KILOBYTES) || IsEnabled(SPIN_KILOBYTES));
}

TEST_F(DatePageTest, every_way_from_one_choice_to_another_enables_what_the_last_one_needs) {
    OpenPage();
    const int radios[] = {RADIO_ALL_FILES, RADIO_BETWEEN, RADIO_PAST};
    for (const int from : radios) {
        for (const int to : radios) {
            SCOPED_TRACE(std::to_string(from) + " to " + std::to_string(to));
            Click(from);
            Click(to);
            ExpectChecked(to);
            ExpectEnabled(to == RADIO_BETWEEN, to == RADIO_PAST);
        }
    }
}

TEST_F(DatePageTest, a_click_that_leaves_its_button_unchecked_changes_nothing) {
    OpenPage();
    Notify(RADIO_BETWEEN);
    ExpectEnabled(false, false);
    Notify(RADIO_PAST);
    ExpectEnabled(false, false);
    Click(RADIO_BETWEEN);
    Notify(RADIO_ALL_FILES);
    Notify(RADIO_PAST);
    ExpectEnabled(true, false);
}

TEST_F(DatePageTest, a_reset_brings_back_the_choice_the_dates_and_one_day) {
    OpenPage();
    Click(RADIO_PAST);
    Send(SPIN_DAYS, UDM_SETPOS, 0, 77);
    SYSTEMTIME other = Date(1999, 1, 2);
    Send(PICKER_FROM, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&other));
    Send(PICKER_TO, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&other));
    page_->Reset();
    ExpectChecked(RADIO_ALL_FILES);
    ExpectEnabled(false, false);
    EXPECT_EQ(Picked(PICKER_FROM), (Day{2002, 4, 15}));
    EXPECT_EQ(Picked(PICKER_TO), (Day{2002, 7, 15}));
    EXPECT_EQ(TextOf(EDIT_DAYS), L"1");
}
