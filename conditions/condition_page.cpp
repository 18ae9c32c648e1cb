#include "conditions/condition_page.h"

LRESULT ConditionPage::OnInitDialog(MessageRecord& record) {
    CallInitialisation(record);
    SetUpControls();
    // The focus stays on the tab control.
    return 0;
}

LRESULT ConditionPage::SendToItem(int id, UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageW(Item(id), message, wParam, lParam);
}

bool ConditionPage::IsChecked(int id) const {
    return SendToItem(id, BM_GETCHECK) != 0;
}
