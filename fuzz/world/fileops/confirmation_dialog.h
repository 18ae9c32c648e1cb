#pragma once

// Questions that a made-up user answers, in the place of fileops/confirmation_dialog.h.

#include <memory>

#include "framework/dialog.h"

enum class ConfirmResult { Cancel = 2, Yes = 6, No = 7, YesToAll = 20 };

using QuestionRoutine = void (*)(HWND dialog, const void* argument);

[[nodiscard]] const wchar_t* YesNoTemplate();
[[nodiscard]] const wchar_t* YesAllNoCancelTemplate();
[[nodiscard]] const wchar_t* FileReplaceTemplate();
[[nodiscard]] const wchar_t* MultipleFileReplaceTemplate();

class ConfirmationDialog {
  public:
    ConfirmationDialog(WindowObject*, const wchar_t* templateName, QuestionRoutine fill, const void* argument)
        : template_(templateName), fill_(fill), argument_(argument) {}

    void LeaveInputTo(HWND) {}
    // Asks the made-up user (made_up_user.h).
    [[nodiscard]] ConfirmResult Ask();

  private:
    const wchar_t* template_;
    QuestionRoutine fill_;
    const void* argument_;
};
