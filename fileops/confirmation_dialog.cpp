#include "fileops/confirmation_dialog.h"

#include "app/language.h"
#include "framework/property_keys.h"

namespace {

constexpr UINT Answers[] = {1, 3, 4, 5, 6, 7, 20};

PropertySet NamedTemplate(const wchar_t* name) {
    PropertySet properties;
    properties.SetText(property::DialogTemplate, name);
    return properties;
}

}  // namespace

const wchar_t* YesNoTemplate() { return InLanguage(L"EConfirmYesNoDialog_E", L"EConfirmYesNoDialog_J"); }

const wchar_t* YesAllNoCancelTemplate() {
    return InLanguage(L"EConfirmYesAllNoCancelDialog_E", L"EConfirmYesAllNoCancelDialog_J");
}

const wchar_t* FileReplaceTemplate() {
    return InLanguage(L"EConfirmFileReplaceDialog_E", L"EConfirmFileReplaceDialog_J");
}

const wchar_t* MultipleFileReplaceTemplate() {
    return InLanguage(L"EConfirmMultipleFileReplaceDialog_E", L"EConfirmMultipleFileReplaceDialog_J");
}

ConfirmationDialog::ConfirmationDialog(WindowObject* owner, const wchar_t* name, QuestionRoutine fillRoutine,
                                       const void* fillArgument)
    : Dialog(owner, NamedTemplate(name)), fill(fillRoutine), argument(fillArgument) {
    OnInitialise(this, &ConfirmationDialog::OnFill);
    for (const UINT answer : Answers) OnCommand(answer, this, &ConfirmationDialog::OnAnswer, answer);
    // A button of the template reaches Cancel with its control, past the dialog's own way for it.
    OnCommand(IDCANCEL, this, &ConfirmationDialog::OnAnswer, IDCANCEL);
}

ConfirmResult ConfirmationDialog::Ask() {
    const INT_PTR result = RunModal();
    return result > 0 ? static_cast<ConfirmResult>(result) : ConfirmResult::Cancel;
}

LRESULT ConfirmationDialog::OnFill(EventArguments&) {
    fill(Handle(), argument);
    return 0;
}

LRESULT ConfirmationDialog::OnAnswer(EventArguments& arguments) {
    End(static_cast<INT_PTR>(arguments.extra));
    return 0;
}

ConfirmResult AskQuestion(WindowObject* owner, const wchar_t* templateName, QuestionRoutine fill,
                          const void* argument) {
    return ConfirmationDialog(owner, templateName, fill, argument).Ask();
}
