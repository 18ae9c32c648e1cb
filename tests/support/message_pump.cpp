#include "tests/support/message_pump.h"

#include "tests/support/deadline.h"

void PumpQueue() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

bool PumpUntil(const std::function<bool()>& condition, DWORD milliseconds) {
    return HoldsWithin(milliseconds, [&] {
        PumpQueue();
        return condition();
    });
}
