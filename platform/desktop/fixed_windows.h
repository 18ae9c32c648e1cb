#pragma once

// A window that fills a handheld's screen stays there: its title line is no handle. The desktop would let it
// be dragged away, or moved from its system menu.

namespace ce {

// From here on no window of this thread that fills the work area can be moved or sized by its user. Windows
// that are smaller can.
void FixFullScreenWindows();

}  // namespace ce
