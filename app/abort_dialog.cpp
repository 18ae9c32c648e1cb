#include "app/abort_dialog.h"

#include <cwchar>

#include "base/language.h"
#include "framework/control.h"
#include "framework/dialog_template.h"

namespace {

constexpr ULONGLONG ShowInterval = 80;

// Keys that were pressed while the job ran were meant for this dialog and for no window behind it.
void DropKeys() {
    MSG key;
    while (PeekMessageW(&key, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
        if (key.message != WM_QUIT) continue;
        // The one message that comes whatever is asked for.
        PostQuitMessage(static_cast<int>(key.wParam));
        return;
    }
}

PropertySet TemplateAndFlags() {
    PropertySet properties = TemplateProperties(InLanguage(L"AbortDialog_E", L"AbortDialog_J"));
    properties.Set(property::FullScreenFlags, ce::DialogLowerInputPanel);
    return properties;
}

}  // namespace

AbortDialog::AbortDialog(WindowObject* parentObject) : Dialog(parentObject, TemplateAndFlags()) {}

INT_PTR AbortDialog::RunModal() {
    running_ = true;
    jobStarted_ = false;
    lastShown_ = 0;
    folderPending_ = false;
    const INT_PTR result = Dialog::RunModal();
    running_ = false;
    button_.reset();
    return result;
}

LRESULT AbortDialog::OnInitDialog(MessageRecord& record) {
    CallInitialisation(record);
    button_ = std::make_unique<Control>(this, DialogItem(*this, IDCANCEL), L"Button");
    button_->Subclass();
    button_->OnMessage(WM_KEYDOWN, this, &AbortDialog::OnButtonKey);
    SetUpShell(FullScreenFlags(), DialogBar::Cancel);
    Centre();
    ShowWindow(Handle(), SW_SHOW);
    UpdateWindow(Handle());
    PostMessageW(Handle(), WM_COMMAND, COMMAND_RUN, 0);
    return 1;
}

LRESULT AbortDialog::OnWmCommand(MessageRecord& record) {
    const int command = LOWORD(record.wParam);
    if (command == IDCANCEL) {
        Abort();
        return 0;
    }
    // Once only: a second command that arrives in the middle of the job starts nothing.
    if (command == COMMAND_RUN && record.lParam == 0 && !jobStarted_) {
        RunJob(record);
        return 0;
    }
    return Dialog::OnWmCommand(record);
}

void AbortDialog::RunJob(MessageRecord& record) {
    jobStarted_ = true;
    abortRequested_ = false;
    RaiseEvent(event::DialogRun, COMMAND_RUN, 0, record);
    DropKeys();
    if (!abortRequested_) End(ResultOk);
}

void AbortDialog::Abort() {
    abortRequested_ = true;
    End(ResultCancel);
}

// The search pumps messages without the dialog's keyboard rules, so the button itself knows the key that
// presses it. Not Enter: it starts searches, and pressed once too often it would end one.
LRESULT AbortDialog::OnButtonKey(MessageRecord& record) {
    if (record.wParam != VK_ESCAPE) return button_->DefaultProcessing(record);
    Abort();
    return 0;
}

void AbortDialog::EnterFolder(const wchar_t* folder) {
    std::wcsncpy(folderText_, folder, MAX_PATH - 1);
    folderPending_ = true;
    if (GetTickCount64() - lastShown_ >= ShowInterval) ShowFolder();
}

void AbortDialog::BeforeLongFile() {
    if (folderPending_) ShowFolder();
}

bool AbortDialog::StopRequested() {
    if (folderPending_ && GetTickCount64() - lastShown_ >= ShowInterval) ShowFolder();
    return abortRequested_;
}

void AbortDialog::ShowFolder() {
    folderPending_ = false;
    SetDlgItemTextW(Handle(), STATIC_FOLDER, folderText_);
    UpdateWindow(Handle());
    lastShown_ = GetTickCount64();
}
