#pragma once

// The first page of a file's properties: name, type, place, size, time and the four attributes.

#include "results/file_page.h"

class GeneralPage : public FilePage {
  public:
    explicit GeneralPage(WindowObject* parent);

  protected:
    void SetUpControls() override;
    [[nodiscard]] std::span<const int> Values() const override;

  private:
    LRESULT OnApplyChanges(EventArguments& arguments);

    void ShowLocation();
};
