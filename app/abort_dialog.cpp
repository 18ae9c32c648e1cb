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
    running = true;
    jobStarted = false;
    lastShown = 0;
    folderPending = false;
    const INT_PTR result = Dialog::RunModal();
    running = false;
    button.reset();
    return result;
}

LRESULT AbortDialog::OnInitDialog(MessageRecord& record) {
    CallInitialisation(record);
    button = std::make_unique<Control>(this, DialogItem(*this, IDCANCEL), L"Button");
    button->Subclass();
    button->OnMessage(WM_KEYDOWN, this, &AbortDialog::OnButtonKey);
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
    if (command == COMMAND_RUN && record.lParam == 0 && !jobStarted) {
        RunJob(record);
        return 0;
    }
    return Dialog::OnWmCommand(record);
}

void AbortDialog::RunJob(MessageRecord& record) {
    jobStarted = true;
    abortRequested = false;
    RaiseEvent(event::DialogRun, COMMAND_RUN, 0, record);
    DropKeys();
    if (!abortRequested) End(ResultOk);
}

void AbortDialog::Abort() {
    abortRequested = true;
    End(ResultCancel);
}

// The search pumps messages without the dialog's keyboard rules, so the button itself knows the key that
// presses it. Not Enter: it starts searches, and pressed once too often it would end one.
LRESULT AbortDialog::OnButtonKey(MessageRecord& record) {
    if (record.wParam != VK_ESCAPE) return button->DefaultProcessing(record);
    Abort();
    return 0;
}

void AbortDialog::EnterFolder(const wchar_t* folder) {
    std::wcsncpy(folderText, folder, MAX_PATH - 1);
    folderPending = true;
    if (GetTickCount64() - lastShown >= ShowInterval) ShowFolder();
}

void AbortDialog::BeforeLongFile() {
    if (folderPending) ShowFolder();
}

bool AbortDialog::StopRequested() {
    if (folderPending && GetTickCount64() - lastShown >= ShowInterval) ShowFolder();
    return abortRequested;
}

void AbortDialog::ShowFolder() {
    folderPending = false;
    SetDlgItemTextW(Handle(), STATIC_FOLDER, folderText);
    UpdateWindow(Handle());
    lastShown = GetTickCount64();
}
