#pragma once

// What the name page remembers between runs, in the registry under the user's own root: the two histories,
// oldest entry first, and the sub-folder setting. Every registry failure is silent.

#include "conditions/history_combo.h"

// Reads at most nine entries. Returns false, leaving the combo as it is, if the key cannot be opened.
bool LoadHistory(HistoryCombo& combo, HKEY root, const wchar_t* path);

// Returns false if the key cannot be created. Values of a longer, earlier list stay.
bool SaveHistory(const HistoryCombo& combo, HKEY root, const wchar_t* path);
