#include "framework/job_dialog.h"

#include <new>

#include "framework/control.h"
#include "resources/resource_ids.h"

JobDialog::JobDialog(WindowObject* parent, const PropertySet& properties, int stopButtonId)
    : Dialog(parent, properties), stopButtonId_(stopButtonId) {}

JobDialog::~JobDialog() = default;

INT_PTR JobDialog::RunModal() {
    if (running_) return -1;
    running_ = true;
    begun_ = false;
    const INT_PTR result = Dialog::RunModal();
    stopButton_.reset();
    running_ = false;
    return result;
}

void JobDialog::ShowAndStart() {
    // If memory is short, the button works by the pointer only.
    stopButton_.reset(new (std::nothrow) Control(this, DialogItem(*this, stopButtonId_), L"Button"));
    if (stopButton_ != nullptr) {
        stopButton_->Subclass();
        stopButton_->OnMessage(WM_KEYDOWN, this, &JobDialog::OnButtonKey);
    }
    ShowWindow(Handle(), SW_SHOWNORMAL);
    UpdateWindow(Handle());
    PostMessageW(Handle(), WM_COMMAND, COMMAND_RUN, 0);
}

LRESULT JobDialog::OnWmCommand(MessageRecord& record) {
    const int command = LOWORD(record.wParam);
    if (command == IDCANCEL) {
        RequestStop();
        return 0;
    }
    // Only once: a second command that arrives during the job starts nothing.
    if (command == COMMAND_RUN && record.lParam == 0 && !begun_) {
        begun_ = true;
        DoJob(record);
        return 0;
    }
    return Dialog::OnWmCommand(record);
}

LRESULT JobDialog::OnButtonKey(MessageRecord& record) {
    if (!StopsBy(record)) return stopButton_->DefaultProcessing(record);
    RequestStop();
    return 0;
}
