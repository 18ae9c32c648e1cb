#pragma once

// The screen of the made-up windows (made_up_dialog.h).

#include "platform/system_types.h"

namespace ce {

[[nodiscard]] RECT ScreenArea();

}  // namespace ce
