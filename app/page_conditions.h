#pragma once

// What the search asks, answered by the three pages and the Option menu.

#include "conditions/date_page.h"
#include "conditions/name_page.h"
#include "conditions/size_page.h"
#include "search/condition_source.h"

class PageConditions final : public ConditionSource {
  public:
    // The pages stay the caller's; the menu may be null.
    PageConditions(const NamePage& name, const DatePage& date, const SizePage& size, HMENU optionMenu)
        : namePage_(name), datePage_(date), sizePage_(size), menu_(optionMenu) {}

    void LocationText(wchar_t (&text)[MAX_PATH]) const override { namePage_.LocationText(text); }
    void NameText(wchar_t (&text)[MAX_PATH]) const override { namePage_.NameText(text); }
    void ContentText(wchar_t (&text)[ContentTextSize]) const override { namePage_.ContentText(text); }
    [[nodiscard]] bool SubFoldersChecked() const override { return namePage_.SubFoldersChecked(); }
    [[nodiscard]] bool DateRangeChosen(DateRange& range) const override {
        return datePage_.DateRangeChosen(range);
    }
    [[nodiscard]] int TypeIndex() const override { return sizePage_.TypeIndex(); }
    void TypeExtensions(wchar_t (&text)[MAX_PATH]) const override { sizePage_.TypeExtensions(text); }
    [[nodiscard]] SizeAnswer SizeBound(std::uint32_t& bound) const override {
        return sizePage_.SizeBound(bound);
    }
    [[nodiscard]] std::uint32_t CaseOptionState() const override;

  private:
    const NamePage& namePage_;
    const DatePage& datePage_;
    const SizePage& sizePage_;
    HMENU menu_;
};
