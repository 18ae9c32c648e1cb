#pragma once

// The second page: any date, a range between two dates, or the past so many days.

#include "conditions/condition_page.h"

class DatePage : public ConditionPage {
  public:
    explicit DatePage(WindowObject* parent);

    void Reset() override;
    void FillQuery(SearchQuery& query) const override;

  protected:
    void SetUpControls() override;

  private:
    LRESULT OnAllFiles(EventArguments& arguments);
    LRESULT OnBetween(EventArguments& arguments);
    LRESULT OnPast(EventArguments& arguments);
    LRESULT OnCalendarOpened(EventArguments& arguments);

    [[nodiscard]] std::optional<DateRange> ChosenRange() const;
    void SetPickersFromClock();
    void EnablePickers(bool enable);
    void EnableDays(bool enable);

    ce::DroppedCalendar calendar_;
};

// The same day three months earlier, whether or not that month has such a day.
[[nodiscard]] SYSTEMTIME ThreeMonthsEarlier(const SYSTEMTIME& date);
