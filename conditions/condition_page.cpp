#include "conditions/condition_page.h"

#include "framework/property_keys.h"

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

PropertySet TemplateProperties(const wchar_t* templateName) {
    PropertySet properties;
    properties.SetText(property::DialogTemplate, templateName);
    return properties;
}
