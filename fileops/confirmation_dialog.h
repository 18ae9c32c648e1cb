#pragma once

// The dialog in which a question is asked before something is deleted or replaced: modal, from one of four
// templates, filled when it is initialised.

#include "fileops/question.h"
#include "framework/dialog.h"
#include "platform/handles.h"

class ConfirmationDialog : public Dialog {
  public:
    // The owner's window owns the dialog.
    ConfirmationDialog(WindowObject* owner, const Question& question);

    // The window that is enabled again after the answer, instead of the owner.
    void LeaveInputTo(HWND window) { successor_ = window; }

    // Asks. A dialog that cannot be created, or that ends unanswered, counts as Cancel.
    [[nodiscard]] ConfirmResult Ask();

    void End(INT_PTR result) override;

  protected:
    LRESULT OnInitDialog(MessageRecord& record) override;

  private:
    static constexpr int FileIcons = 2;

    LRESULT OnFill(EventArguments& arguments);
    LRESULT OnAnswer(EventArguments& arguments);

    Question question_;
    bool answered_ = false;
    HWND successor_ = nullptr;
    // The shell's icons of the existing and the new file; null where the template's own icon is shown.
    UniqueIcon fileIcons_[FileIcons];
};

// Builds the question, asks it and destroys it.
[[nodiscard]] ConfirmResult AskQuestion(WindowObject* owner, const Question& question);
