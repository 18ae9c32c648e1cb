#include "conditions/date_page.h"

#include "base/program_context.h"
#include "resources/resource_ids.h"

namespace {

// QUIRK: days-range-66535. Lower bound 1 in the high word, upper bound 999 in the low word.
constexpr LPARAM DaysRange = 66535;

constexpr WORD MonthsBack = 3;
constexpr WORD MonthsInYear = 12;

}  // namespace

SYSTEMTIME ThreeMonthsEarlier(const SYSTEMTIME& date) {
    SYSTEMTIME earlier = date;
    if (date.wMonth > MonthsBack) {
        earlier.wMonth = static_cast<WORD>(date.wMonth - MonthsBack);
    } else {
        earlier.wMonth = static_cast<WORD>(date.wMonth + MonthsInYear - MonthsBack);
        earlier.wYear = static_cast<WORD>(date.wYear - 1);
    }
    return earlier;
}

DatePage::DatePage(WindowObject* parentObject)
    : ConditionPage(parentObject, TemplateProperties(InLanguage(L"Date_E", L"Date_J"))) {
    OnCommand(RADIO_ALL_FILES, this, &DatePage::OnAllFiles);
    OnCommand(RADIO_BETWEEN, this, &DatePage::OnBetween);
    OnCommand(RADIO_PAST, this, &DatePage::OnPast);
    for (const int picker : {PICKER_FROM, PICKER_TO})
        OnEvent(event::DropDownOpened, static_cast<EventSource>(picker), this, &DatePage::OnCalendarOpened,
                static_cast<std::uintptr_t>(picker));
}

void DatePage::SetUpControls() {
    // QUIRK: year-of-three-letters. The handheld's picker shows four digits for them.
    for (const int picker : {PICKER_FROM, PICKER_TO})
        DatePicker(Item(picker)).SetFormat(L"yyy/MM/dd");
    Spin(Item(SPIN_DAYS)).SetRange(DaysRange);
    Reset();
}

void DatePage::Reset() {
    CheckRadioButton(Handle(), RADIO_ALL_FILES, RADIO_PAST, RADIO_ALL_FILES);
    SetPickersFromClock();
    EnablePickers(false);
    EnableDays(false);
    Spin(Item(SPIN_DAYS)).SetPosition(1);
}

void DatePage::SetPickersFromClock() {
    SYSTEMTIME now{};
    // QUIRK: pickers-start-in-utc
    ce::GetSystemTime(&now);
    // QUIRK: three-months-earlier-keeps-the-day. One that the month lacks is for the picker to refuse.
    const SYSTEMTIME earlier = ThreeMonthsEarlier(now);
    DatePicker(Item(PICKER_TO)).SetDate(now);
    DatePicker(Item(PICKER_FROM)).SetDate(earlier);
}

LRESULT DatePage::OnAllFiles(EventArguments&) {
    if (!IsChecked(RADIO_ALL_FILES)) return 0;
    EnablePickers(false);
    EnableDays(false);
    return 0;
}

LRESULT DatePage::OnBetween(EventArguments&) {
    if (!IsChecked(RADIO_BETWEEN)) return 0;
    EnablePickers(true);
    EnableDays(false);
    return 0;
}

LRESULT DatePage::OnPast(EventArguments&) {
    if (!IsChecked(RADIO_PAST)) return 0;
    EnablePickers(false);
    EnableDays(true);
    // QUIRK: past-disables-size-controls. This page lacks them.
    EnableWindow(Item(EDIT_KILOBYTES), FALSE);
    EnableWindow(Item(SPIN_KILOBYTES), FALSE);
    return 0;
}

LRESULT DatePage::OnCalendarOpened(EventArguments& arguments) {
    calendar_.Fit(Item(static_cast<int>(arguments.extra)));
    return 0;
}

void DatePage::EnablePickers(bool enable) {
    EnableWindow(Item(PICKER_FROM), enable);
    EnableWindow(Item(PICKER_TO), enable);
}

void DatePage::EnableDays(bool enable) {
    EnableWindow(Item(EDIT_DAYS), enable);
    EnableWindow(Item(SPIN_DAYS), enable);
}

void DatePage::FillQuery(SearchQuery& query) const {
    query.dateRange = ChosenRange();
}

std::optional<DateRange> DatePage::ChosenRange() const {
    if (Handle() == nullptr || IsChecked(RADIO_ALL_FILES)) return std::nullopt;
    if (IsChecked(RADIO_BETWEEN))
        return BetweenDates(DatePicker(Item(PICKER_FROM)).Date(), DatePicker(Item(PICKER_TO)).Date());
    // QUIRK: nothing-checked-is-a-range. Its ends are not set.
    if (!IsChecked(RADIO_PAST)) return DateRange{};
    SYSTEMTIME now{};
    ce::GetSystemTime(&now);
    return PastDays(now, Spin(Item(SPIN_DAYS)).Position());
}
