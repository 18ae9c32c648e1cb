#pragma once

// The dialog in which a question is asked before something is deleted or replaced: modal, from one of four
// templates, filled when it is initialised.

#include "fileops/question.h"
#include "framework/dialog.h"

class ConfirmationDialog : public Dialog {
  public:
    // The owner's window owns the dialog.
    ConfirmationDialog(WindowObject* owner, const Question& question);
    ~ConfirmationDialog() override;

    // The window that takes the input when the question has been answered, instead of its owner.
    void LeaveInputTo(HWND window) { successor_ = window; }

    // Asks; a dialog that cannot be made or that nobody answers counts as Cancel.
    [[nodiscard]] ConfirmResult Ask();

    void End(INT_PTR result) override;

  protected:
    LRESULT OnInitDialog(MessageRecord& record) override;

  private:
    static constexpr int FileIcons = 2;

    LRESULT OnFill(EventArguments& arguments);
    LRESULT OnAnswer(EventArguments& arguments);
    void FreeFileIcons();

    Question question_;
    bool answered_ = false;
    HWND successor_ = nullptr;
    // Of the existing and the new file, from the shell; null where the template's own is shown.
    HICON fileIcons_[FileIcons] = {};
};

// Builds the question, asks it and destroys it.
[[nodiscard]] ConfirmResult AskQuestion(WindowObject* owner, const Question& question);
