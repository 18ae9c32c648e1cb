// What the operations do with one file.

#include "base/message_pump.h"
#include "fileops/confirmation_dialog.h"
#include "fileops/dos_time.h"
#include "fileops/file_actions.h"
#include "fileops/file_facts.h"
#include "fileops/file_operation.h"
#include "platform/windows_ce.h"
#include "resources/resource_ids.h"

namespace {

// Returns false if nothing is found at the path. The time stays in UTC; it is not made local.
bool GetLastWriteTime(const wchar_t* path, DosTime& time) {
    WIN32_FIND_DATAW data;
    if (!FindFile(path, data)) return false;
    SYSTEMTIME moment{};
    FileTimeToSystemTime(&data.ftLastWriteTime, &moment);
    time = PackDosTime(moment);
    return true;
}

}  // namespace

bool FileOperation::CopyOneFile(const wchar_t* source, const wchar_t* target) {
    return BeginFile(source, target) && ReplaceByCopy(source, target);
}

bool FileOperation::CopyOneFileIfNewer(const wchar_t* source, const wchar_t* target) {
    if (!BeginFile(source, target)) return false;
    DosTime sourceTime, targetTime;
    // QUIRK: missing-source-ends-an-update-silently
    if (!GetLastWriteTime(source, sourceTime)) return false;
    if (GetLastWriteTime(target, targetTime) && CompareDosTimes(sourceTime, targetTime) < 1) return true;
    return ReplaceByCopy(source, target);
}

bool FileOperation::ReplaceByCopy(const wchar_t* source, const wchar_t* target) {
    if (confirm && PathExists(target)) {
        const ConfirmResult answer = AskFileReplace(source, target);
        if (answer == ConfirmResult::No) return true;
        if (answer != ConfirmResult::Yes && answer != ConfirmResult::YesToAll) return false;
    }
    // So that a read-only, hidden or system file can be overwritten. If this fails, the copy is tried all the
    // same.
    if (PathExists(target)) SetAttributesOrReport(Handle(), target, FILE_ATTRIBUTE_NORMAL);
    return CopyFileOrReport(Handle(), source, target, false);
}

// QUIRK: unasked-moves-replace-nothing. An existing target is deleted only after a question. If nothing is
// asked it is left alone and the move fails, unlike a copy.
bool FileOperation::MoveOneFile(const wchar_t* source, const wchar_t* target) {
    if (!BeginFile(source, target)) return false;
    if (confirm && PathExists(target)) {
        const ConfirmResult answer = AskFileReplace(source, target);
        if (answer == ConfirmResult::No) return true;
        if (answer != ConfirmResult::Yes && answer != ConfirmResult::YesToAll) return false;
        // The two paths may lead to one file: deleting the target would delete the source.
        // QUIRK: moves-go-on-after-a-failed-delete
        if (!ce::IsSameFile(source, target)) DeleteFileOrReport(Handle(), target);
    }
    return MoveFileOrReport(Handle(), source, target);
}

bool FileOperation::DeleteOneFile(const wchar_t* path) {
    if (!BeginFile(path, L"")) return false;
    if (confirm) {
        const ConfirmResult answer = AskInRun(DeleteFileQuestion(path, AnswersOffered()));
        if (answer == ConfirmResult::No) return true;
        if (answer != ConfirmResult::Yes && answer != ConfirmResult::YesToAll) return false;
    }
    // QUIRK: attributes-are-reset-silently-before-a-delete
    ce::SetFileAttributesW(path, FILE_ATTRIBUTE_NORMAL);
    return DeleteFileOrReport(Handle(), path);
}

// Pumps one message, which may be Stop, and shows the file. Returns false if the run has to end.
bool FileOperation::BeginFile(const wchar_t* source, const wchar_t* target) {
    // A file costs more than a look at an empty queue.
    ExpectMessages();
    // The run ends with the program, and when the owner or the dialog is destroyed.
    if (PumpOneMessage() == PumpOutcome::Quit || Handle() == nullptr) Stop();
    if (abortRequested_) return false;
    SetDlgItemTextW(Handle(), STATIC_SOURCE, source);
    SetDlgItemTextW(Handle(), STATIC_DESTINATION, target);
    UpdateWindow(Handle());
    return true;
}

ConfirmResult FileOperation::AskFileReplace(const wchar_t* source, const wchar_t* target) {
    const ReplacePaths paths = {source, target};
    return AskInRun(ReplaceFileQuestion(paths, AnswersOffered()));
}

// QUIRK: questions-belong-to-the-main-window. So it is here that the progress dialog is kept from taking
// input meanwhile.
ConfirmResult FileOperation::AskInRun(const Question& question) {
    EnableWindow(Handle(), FALSE);
    ConfirmationDialog dialog(Parent(), question);
    dialog.LeaveInputTo(Handle());
    const ConfirmResult answer = dialog.Ask();
    // A question that could not be created has not done that.
    EnableWindow(Handle(), TRUE);
    // QUIRK: yes-to-all-outlasts-the-run. Nothing sets it again.
    if (answer == ConfirmResult::YesToAll) confirm = false;
    if (answer == ConfirmResult::Yes || answer == ConfirmResult::YesToAll) {
        UpdateWindow(ParentHandle());
        UpdateWindow(Handle());
    }
    return answer;
}
