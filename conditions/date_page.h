#pragma once

// The second page: any date, a range between two dates, or the past so many days.

#include "conditions/condition_page.h"
#include "search/date_and_size.h"

class DatePage : public ConditionPage {
  public:
    explicit DatePage(WindowObject* parent);

    void Reset() override;

    // False when any date will do; otherwise true, with the range written.
    bool DateRangeChosen(DateRange& range) const;

  protected:
    void SetUpControls() override;

  private:
    LRESULT OnAllFiles(EventArguments& arguments);
    LRESULT OnBetween(EventArguments& arguments);
    LRESULT OnPast(EventArguments& arguments);
    LRESULT OnCalendarOpened(EventArguments& arguments);

    void SetPickersFromClock();
    void EnablePickers(bool enable);
    void EnableDays(bool enable);
    [[nodiscard]] SYSTEMTIME PickedDate(int picker) const;

    ce::DroppedCalendar calendar_;
};

// The same day three months earlier, whether that month has the day or not.
[[nodiscard]] SYSTEMTIME ThreeMonthsEarlier(const SYSTEMTIME& date);
