#include "app/case_option.h"

#include "resources/resource_ids.h"

UINT CaseOptionState(HMENU menu) {
    return ce::MenuItemState(menu, COMMAND_CHECK_CASE);
}

void ToggleCaseOption(HMENU menu) {
    const bool isChecked = (CaseOptionState(menu) & MFS_CHECKED) != 0;
    CheckMenuItem(menu, COMMAND_CHECK_CASE, static_cast<UINT>(isChecked ? MF_UNCHECKED : MF_CHECKED));
}
