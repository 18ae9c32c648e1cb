#include "app/abort_dialog.h"

#include <cwchar>

#include "base/program_context.h"
#include "framework/property_set.h"

namespace {

constexpr ULONGLONG ShowInterval = 80;

// Keys pressed while the job ran were meant for this dialog, not for a window behind it.
void DropKeys() {
    MSG key;
    while (PeekMessageW(&key, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
        if (key.message != WM_QUIT) continue;
        // WM_QUIT is returned whatever range is asked for.
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

AbortDialog::AbortDialog(WindowObject* parent) : JobDialog(parent, TemplateAndFlags(), IDCANCEL) {}

INT_PTR AbortDialog::RunModal() {
    lastShown_ = 0;
    folderPending_ = false;
    return JobDialog::RunModal();
}

LRESULT AbortDialog::OnInitDialog(MessageRecord& record) {
    CallInitialisation(record);
    SetUpShell(FullScreenFlags(), DialogBar::Cancel);
    Centre();
    ShowAndStart();
    return 1;
}

void AbortDialog::DoJob(MessageRecord& record) {
    abortRequested_ = false;
    RaiseEvent(event::DialogRun, COMMAND_RUN, 0, record);
    DropKeys();
    if (!abortRequested_) End(ResultOk);
}

void AbortDialog::Abort() {
    abortRequested_ = true;
    End(ResultCancel);
}

// QUIRK: enter-aborts-no-search. Enter starts searches; one press too many would otherwise abort one.
bool AbortDialog::StopsBy(const MessageRecord& key) const {
    return key.wParam == VK_ESCAPE;
}

void AbortDialog::EnterFolder(const wchar_t* folder) {
    std::wcsncpy(folderText_, folder, MAX_PATH - 1);
    folderPending_ = true;
    if (ce::GetTickCount64() - lastShown_ >= ShowInterval) ShowFolder();
}

void AbortDialog::BeforeLongFile() {
    if (folderPending_) ShowFolder();
}

bool AbortDialog::StopRequested() {
    if (folderPending_ && ce::GetTickCount64() - lastShown_ >= ShowInterval) ShowFolder();
    return abortRequested_;
}

void AbortDialog::ShowFolder() {
    folderPending_ = false;
    SetDlgItemTextW(Handle(), STATIC_FOLDER, folderText_);
    UpdateWindow(Handle());
    lastShown_ = ce::GetTickCount64();
}
