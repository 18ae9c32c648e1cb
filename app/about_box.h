#pragma once

// The About box: product, version, legal notice, free memory, and the Uninstall button.

#include <string>

#include "framework/dialog.h"
#include "platform/handles.h"

class AboutBox : public Dialog {
  public:
    explicit AboutBox(WindowObject* parent);

    // The registry keys of the maker and the product; without a product key the Uninstall button is hidden.
    void SetRegistryKeys(const wchar_t* maker, const wchar_t* product);

  protected:
    LRESULT OnInitDialog(MessageRecord& record) override;

  private:
    LRESULT OnWmSetFocus(MessageRecord& record);
    LRESULT OnOk(EventArguments& arguments);
    LRESULT OnUninstall(EventArguments& arguments);

    void ShowStrings();
    void ShowMemory();
    void ShrinkMemoryLines();

    std::wstring makerKey_;
    std::wstring productKey_;
    UniqueFont titleFont_;
    // The memory lines' font where the template's is too large for them.
    UniqueFont smallFont_;
};
