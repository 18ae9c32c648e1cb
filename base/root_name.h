#pragma once

// The name of the root folder, as the user knows the device.

#include "platform/system_types.h"

// From the registry; else "My Pocket PC" or "My Handheld PC", or what Japanese calls them.
void RootDisplayName(wchar_t (&name)[MAX_PATH]);
