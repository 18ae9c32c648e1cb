#pragma once

// The second page of a shortcut's properties: its target, which can be changed.

#include "framework/property_sheet.h"

class ShortcutPage : public PropertySheetPage {
  public:
    explicit ShortcutPage(WindowObject* parent);

    // The text stays the caller's and outlives the sheet.
    void SetPath(const wchar_t* filePath) { path = filePath; }

  protected:
    void SetUpControls() override;
    LRESULT OnWmDestroy(MessageRecord& record) override;

  private:
    LRESULT OnApplyChanges(EventArguments& arguments);

    void ShowTarget(const wchar_t* target);

    const wchar_t* path = L"";
};
