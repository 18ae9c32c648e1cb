#pragma once

// The first page of a file's properties: name, type, place, size, time and the four attributes.

#include "framework/property_sheet.h"

class GeneralPage : public PropertySheetPage {
  public:
    explicit GeneralPage(WindowObject* parent);

    // The text stays the caller's and outlives the sheet.
    void SetPath(const wchar_t* filePath) { path = filePath; }

  protected:
    void SetUpControls() override;
    LRESULT OnWmDestroy(MessageRecord& record) override;

  private:
    LRESULT OnApplyChanges(EventArguments& arguments);

    void ShowLocation();
    void HideFileControls();

    const wchar_t* path = L"";
};
