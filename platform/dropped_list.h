#pragma once

// The list that a combo box drops. The desktop's is as wide as the box and cuts what is longer; Wine's leaves
// the screen when it is made wider.

#include "platform/system_types.h"

namespace ce {

// To be called when the combo box says that its list is about to open (CBN_DROPDOWN): makes the list as wide
// as its widest entry, but no wider than the work area, and keeps it there. Does nothing for a window
// that is no combo box, and for a null handle.
void FitDroppedList(HWND comboBox);

}  // namespace ce
