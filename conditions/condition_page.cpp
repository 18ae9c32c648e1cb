#include "conditions/condition_page.h"

#include "platform/dropped_list.h"

LRESULT ConditionPage::OnInitDialog(MessageRecord& record) {
    CallInitialisation(record);
    SetUpControls();
    // The focus stays on the tab control.
    return 0;
}

void ConditionPage::Move(int x, int y, int width, int height) {
    Dialog::Move(x, y, width, height);
    LayOut();
}

LRESULT ConditionPage::OnWmCommand(MessageRecord& record) {
    // Other controls have other meanings for that number, and no list.
    if (HIWORD(record.wParam) == CBN_DROPDOWN) ce::FitDroppedList(reinterpret_cast<HWND>(record.lParam));
    const bool isCancel = record.lParam == 0 && LOWORD(record.wParam) == IDCANCEL;
    return isCancel ? 0 : Dialog::OnWmCommand(record);
}

bool ConditionPage::IsChecked(int id) const {
    return CheckBox(Item(id)).IsChecked();
}
