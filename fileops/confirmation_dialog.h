#pragma once

// The questions asked before something is deleted or replaced: one modal dialog from one of four templates,
// with a routine that fills it when it is initialised.

#include "framework/dialog.h"

// The id of the button that ended the dialog.
enum class ConfirmResult { Cancel = 2, Yes = 6, No = 7, YesToAll = 20 };

// Fills title, icon and texts; the argument is what the caller gave. Another icon that it puts in the place
// of a file's is the dialog's to free.
using QuestionRoutine = void (*)(HWND dialog, const void* argument);

// The templates, in the user's language.
[[nodiscard]] const wchar_t* YesNoTemplate();                // a single file delete
[[nodiscard]] const wchar_t* YesAllNoCancelTemplate();       // file delete of many, folder delete and replace
[[nodiscard]] const wchar_t* FileReplaceTemplate();          // a single file replace
[[nodiscard]] const wchar_t* MultipleFileReplaceTemplate();  // file replace of many

class ConfirmationDialog : public Dialog {
  public:
    // The owner's window owns the dialog. The argument has to live until the dialog is over.
    ConfirmationDialog(WindowObject* owner, const wchar_t* templateName, QuestionRoutine fill,
                       const void* argument);

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

    QuestionRoutine fill_;
    const void* argument_;
    bool answered_ = false;
    HWND successor_ = nullptr;
    // Of the existing and the new file, from the shell; null where the template's own is shown.
    HICON fileIcons_[FileIcons] = {};
};

// Builds the question, asks it and destroys it.
[[nodiscard]] ConfirmResult AskQuestion(WindowObject* owner, const wchar_t* templateName,
                                        QuestionRoutine fill, const void* argument);
