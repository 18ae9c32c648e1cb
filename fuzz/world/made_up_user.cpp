#include "made_up_user.h"

#include "base/message_pump.h"
#include "fileops/question_texts.h"
#include "framework/message_boxes.h"

namespace {

MadeUpUser* theUser = nullptr;

}  // namespace

void SetUser(MadeUpUser* user) {
    theUser = user;
}

// The routines are never called; they tell what a question's argument is.
void FillFolderDeleteText(HWND, const void*) {}
void FillFileDeleteText(HWND, const void*) {}
void FillFileReplaceText(HWND, const void*) {}
void FillFolderReplaceText(HWND, const void*) {}

const wchar_t* YesNoTemplate() {
    return L"two answers";
}
const wchar_t* YesAllNoCancelTemplate() {
    return L"four answers";
}
const wchar_t* FileReplaceTemplate() {
    return L"two answers";
}
const wchar_t* MultipleFileReplaceTemplate() {
    return L"four answers";
}

ConfirmResult ConfirmationDialog::Ask() {
    const bool isReplacing = fill_ == &FillFileReplaceText;
    const auto* const path = isReplacing ? static_cast<const ReplacePaths*>(argument_)->existingFile
                                         : static_cast<const wchar_t*>(argument_);
    return theUser->Answer(
        path, template_ == YesAllNoCancelTemplate() || template_ == MultipleFileReplaceTemplate());
}

int ShowError(HWND, const wchar_t*, ...) {
    theUser->ReadError();
    return 1;
}

PumpOutcome PumpOneMessage() {
    if (theUser != nullptr) theUser->HaveAMoment();
    return PumpOutcome::Empty;
}

void ExpectMessages() {}
