#pragma once

// What the name page remembers between runs, in the registry under the user's own root: the two histories,
// oldest entry first, and the sub-folder setting. Every registry failure is silent.

#include "conditions/history_combo.h"

// False, with the combo left as it is, when the key cannot be opened. Reads at most nine entries.
bool LoadHistory(HistoryCombo& combo, HKEY root, const wchar_t* path);

// False when the key cannot be created. Values of a longer, earlier list stay.
bool SaveHistory(const HistoryCombo& combo, HKEY root, const wchar_t* path);
