#include "tests/framework/test_dialog.h"

#include <utility>

namespace {

constexpr UINT StepsMessage = WM_APP + 100;

}  // namespace

INT_PTR TestDialog::RunWith(std::function<void()> stepsToTake) {
    steps_ = std::move(stepsToTake);
    OnMessage(StepsMessage, this, &TestDialog::OnSteps);
    return RunModal();
}

LRESULT TestDialog::OnInitDialog(MessageRecord& record) {
    PostMessageW(Handle(), StepsMessage, 0, 0);
    if (bar == DialogBar::CancelAndOk) return Dialog::OnInitDialog(record);
    CallInitialisation(record);
    SetUpShell(FullScreenFlags(), bar);
    return 1;
}

LRESULT TestDialog::OnSteps(MessageRecord&) {
    steps_();
    // One that is ending is hidden already.
    if (IsWindow(Handle()) && IsWindowVisible(Handle())) End(LeftOpen);
    return 1;
}
