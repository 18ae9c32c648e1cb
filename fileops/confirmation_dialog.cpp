#include "fileops/confirmation_dialog.h"

#include "base/program_context.h"
#include "framework/control.h"
#include "framework/dialog_fit.h"
#include "framework/property_set.h"
#include "resources/resource_ids.h"

namespace {

// QUIRK: tick-is-no-yes. The bar's OK answers 1.
constexpr UINT Answers[] = {1, 3, 4, 5, 6, 7, 20};

constexpr int FileIconStatics[] = {STATIC_EXISTING_ICON, STATIC_NEW_ICON};

}  // namespace

const wchar_t* YesNoTemplate() {
    return InLanguage(L"EConfirmYesNoDialog_E", L"EConfirmYesNoDialog_J");
}

const wchar_t* YesAllNoCancelTemplate() {
    return InLanguage(L"EConfirmYesAllNoCancelDialog_E", L"EConfirmYesAllNoCancelDialog_J");
}

const wchar_t* FileReplaceTemplate() {
    return InLanguage(L"EConfirmFileReplaceDialog_E", L"EConfirmFileReplaceDialog_J");
}

const wchar_t* MultipleFileReplaceTemplate() {
    return InLanguage(L"EConfirmMultipleFileReplaceDialog_E", L"EConfirmMultipleFileReplaceDialog_J");
}

ConfirmationDialog::ConfirmationDialog(WindowObject* owner, const Question& question)
    : Dialog(owner, TemplateProperties(question.TemplateName())), question_(question) {
    OnInitialise(this, &ConfirmationDialog::OnFill);
    for (const UINT answer : Answers)
        OnCommand(answer, this, &ConfirmationDialog::OnAnswer, answer);
    // A button of the template reaches Cancel with its control, past the dialog's own way for it.
    OnCommand(IDCANCEL, this, &ConfirmationDialog::OnAnswer, IDCANCEL);
}

ConfirmResult ConfirmationDialog::Ask() {
    answered_ = false;
    const INT_PTR result = RunModal();
    // The program's end closes the dialog as if by its default button, which is Yes.
    return answered_ ? static_cast<ConfirmResult>(result) : ConfirmResult::Cancel;
}

LRESULT ConfirmationDialog::OnInitDialog(MessageRecord& record) {
    const LRESULT result = Dialog::OnInitDialog(record);
    Centre();
    return result;
}

LRESULT ConfirmationDialog::OnFill(EventArguments&) {
    HICON before[FileIcons];
    for (int i = 0; i < FileIcons; ++i)
        before[i] = StaticIcon(DialogItem(*this, FileIconStatics[i])).Get();
    question_.Fill(Handle());
    for (int i = 0; i < FileIcons; ++i) {
        const HICON now = StaticIcon(DialogItem(*this, FileIconStatics[i])).Get();
        // A static control does not free its icon, and the shell hands out copies.
        fileIcons_[i].Reset(now != before[i] ? now : nullptr);
    }
    KeepTitleLineFree(Handle());
    GrowToText(Handle(), STATIC_QUESTION);
    FitToScreen(Handle(), STATIC_QUESTION);
    return 0;
}

void ConfirmationDialog::End(INT_PTR result) {
    if (successor_ != nullptr) ce::LeaveInputTo(successor_, Handle());
    Dialog::End(result);
}

LRESULT ConfirmationDialog::OnAnswer(EventArguments& arguments) {
    answered_ = true;
    End(static_cast<INT_PTR>(arguments.extra));
    return 0;
}

ConfirmResult AskQuestion(WindowObject* owner, const Question& question) {
    return ConfirmationDialog(owner, question).Ask();
}
