#pragma once

// The part of the screen that windows may fill.

#include "platform/system_types.h"

namespace ce {

// The screen, of the size that ce::GetSystemMetrics tells, without what the system keeps for its own bars.
[[nodiscard]] RECT ScreenArea();

}  // namespace ce
