#include "app/page_conditions.h"

#include "app/case_option.h"

std::uint32_t PageConditions::CaseOptionState() const {
    return ::CaseOptionState(menu_);
}
