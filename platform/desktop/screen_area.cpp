#include "platform/screen_area.h"

#include "platform/ce_system.h"
#include "platform/desktop/window_placement.h"

namespace ce {

RECT ScreenArea() {
    RECT reported{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &reported, 0);
    return UsableArea(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), reported);
}

}  // namespace ce
