#include "app/case_option.h"

#include "resources/resource_ids.h"

UINT CaseOptionState(HMENU menu) {
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STATE;
    GetMenuItemInfoW(menu, COMMAND_CHECK_CASE, FALSE, &item);
    return item.fState;
}

void ToggleCaseOption(HMENU menu) {
    const bool isChecked = (CaseOptionState(menu) & MFS_CHECKED) != 0;
    CheckMenuItem(menu, COMMAND_CHECK_CASE, static_cast<UINT>(isChecked ? MF_UNCHECKED : MF_CHECKED));
}
