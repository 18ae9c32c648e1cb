#pragma once

// Questions that a made-up user answers, in the place of fileops/confirmation_dialog.h.

#include "fileops/question.h"
#include "framework/dialog.h"

class ConfirmationDialog {
  public:
    ConfirmationDialog(WindowObject*, const Question& question) : question_(question) {}

    void LeaveInputTo(HWND) {}
    // Asks the made-up user (made_up_user.h).
    [[nodiscard]] ConfirmResult Ask();

  private:
    Question question_;
};
