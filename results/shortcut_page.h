#pragma once

// The second page of a shortcut's properties: its target, which can be changed.

#include "results/file_page.h"

class ShortcutPage : public FilePage {
  public:
    explicit ShortcutPage(WindowObject* parent);

  protected:
    void SetUpControls() override;
    [[nodiscard]] std::span<const int> Values() const override;
    void LayOut() override;

  private:
    LRESULT OnApplyChanges(EventArguments& arguments);

    void ShowTarget(const wchar_t* target);
};
