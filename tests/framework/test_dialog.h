#pragma once

// A dialog from a template whose inner workings a test can follow.

#include <functional>

#include "framework/dialog.h"
#include "framework/property_set.h"
#include "tests/framework/framework_test.h"

class TestDialog : public Dialog {
  public:
    explicit TestDialog(const wchar_t* name, WindowObject* parentObject = nullptr)
        : TestDialog(TemplateProperties(name), parentObject) {}
    explicit TestDialog(const PropertySet& properties, WindowObject* parentObject = nullptr)
        : Dialog(parentObject, properties) {}

    using Dialog::Centre;
    using Dialog::TranslateByClassName;

    // Runs the dialog modally; the steps are taken once it is up. A dialog that the steps leave open is ended
    // with the result LeftOpen.
    INT_PTR RunWith(std::function<void()> stepsToTake);

    [[nodiscard]] HWND Item(int id) const { return GetDlgItem(Handle(), id); }

    static constexpr INT_PTR LeftOpen = 4444;

    DialogBar bar = DialogBar::CancelAndOk;

  protected:
    LRESULT OnInitDialog(MessageRecord& record) override;

  private:
    LRESULT OnSteps(MessageRecord& record);

    std::function<void()> steps_;
};
