#include "made_up_user.h"

#include "base/message_pump.h"
#include "fileops/confirmation_dialog.h"
#include "fileops/question_texts.h"
#include "framework/message_boxes.h"

namespace {

MadeUpUser* theUser = nullptr;
const wchar_t* pathAskedAbout = nullptr;

}  // namespace

void SetUser(MadeUpUser* user) {
    theUser = user;
}

// Nothing is shown; the routines tell what the question is about.
void FillFolderDeleteText(HWND, const wchar_t* path) {
    pathAskedAbout = path;
}
void FillFileDeleteText(HWND, const wchar_t* path) {
    pathAskedAbout = path;
}
void FillFileReplaceText(HWND, const ReplacePaths* paths) {
    pathAskedAbout = paths->existingFile;
}
void FillFolderReplaceText(HWND, const wchar_t* path) {
    pathAskedAbout = path;
}

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

Question DeleteFileQuestion(const wchar_t* path, Answers answers) {
    return {answers == Answers::YesNo ? YesNoTemplate() : YesAllNoCancelTemplate(), &FillFileDeleteText,
            path};
}
Question DeleteFolderQuestion(const wchar_t* path) {
    return {YesAllNoCancelTemplate(), &FillFolderDeleteText, path};
}
Question ReplaceFileQuestion(const ReplacePaths& paths, Answers answers) {
    return {answers == Answers::YesNo ? FileReplaceTemplate() : MultipleFileReplaceTemplate(),
            &FillFileReplaceText, &paths};
}
Question ReplaceFolderQuestion(const wchar_t* path) {
    return {YesAllNoCancelTemplate(), &FillFolderReplaceText, path};
}

ConfirmResult ConfirmationDialog::Ask() {
    question_.Fill(nullptr);
    const wchar_t* const name = question_.TemplateName();
    return theUser->Answer(pathAskedAbout,
                           name == YesAllNoCancelTemplate() || name == MultipleFileReplaceTemplate());
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
