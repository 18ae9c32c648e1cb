#include "base/message_pump.h"

#include "platform/windows_ce.h"

namespace {

constexpr DWORD MillisecondsBetweenLooks = 10;

// One queue, one thread: shared by every piece of work that pumps.
bool lookAtOnce = true;
DWORD lastEmptyLook = 0;

}  // namespace

PumpOutcome PumpOneMessage() {
    // Reading this clock costs nothing; it may be a few milliseconds behind, which only delays the look. It
    // starts again at 0 after 49 days, which an unsigned difference does not notice.
    const DWORD now = GetTickCount();
    if (!lookAtOnce && now - lastEmptyLook < MillisecondsBetweenLooks) return PumpOutcome::NotYet;

    MSG message;
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        lookAtOnce = false;
        lastEmptyLook = now;
        return PumpOutcome::Empty;
    }
    lookAtOnce = true;
    if (message.message == WM_QUIT) {
        PostQuitMessage(static_cast<int>(message.wParam));
        return PumpOutcome::Quit;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
    return PumpOutcome::Dispatched;
}

void ExpectMessages() {
    lookAtOnce = true;
}
