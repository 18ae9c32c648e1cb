#pragma once

// "Check Upper/Lower Cases": the menu item's check mark is itself the setting.

#include "platform/windows_ce.h"

// The item's whole state word; without a menu the word of an item that is not there, which is 0.
[[nodiscard]] UINT CaseOptionState(HMENU menu);

void ToggleCaseOption(HMENU menu);
