#pragma once

// The name under which the user knows the root folder: that of the device.

#include "platform/system_types.h"

// The registry's; otherwise "My Pocket PC" or "My Handheld PC", or their Japanese names.
void RootDisplayName(wchar_t (&name)[MAX_PATH]);
