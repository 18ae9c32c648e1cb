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
        : namePage(name), datePage(date), sizePage(size), menu(optionMenu) {}

    void LocationText(wchar_t (&text)[MAX_PATH]) const override { namePage.LocationText(text); }
    void NameText(wchar_t (&text)[MAX_PATH]) const override { namePage.NameText(text); }
    void ContentText(wchar_t (&text)[ContentTextSize]) const override { namePage.ContentText(text); }
    [[nodiscard]] bool SubFoldersChecked() const override { return namePage.SubFoldersChecked(); }
    [[nodiscard]] bool DateRangeChosen(DateRange& range) const override {
        return datePage.DateRangeChosen(range);
    }
    [[nodiscard]] int TypeIndex() const override { return sizePage.TypeIndex(); }
    void TypeExtensions(wchar_t (&text)[MAX_PATH]) const override { sizePage.TypeExtensions(text); }
    [[nodiscard]] SizeAnswer SizeBound(std::uint32_t& bound) const override {
        return sizePage.SizeBound(bound);
    }
    [[nodiscard]] std::uint32_t CaseOptionState() const override;

  private:
    const NamePage& namePage;
    const DatePage& datePage;
    const SizePage& sizePage;
    HMENU menu;
};
