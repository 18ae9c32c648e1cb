#include "platform/desktop/fixed_windows.h"

#include "platform/screen_area.h"
#include "platform/system_types.h"

namespace ce {

namespace {

constexpr WPARAM CommandBits = 0xFFF0;

bool FillsWorkArea(HWND window) {
    RECT place{};
    const RECT area = ScreenArea();
    return window != nullptr && GetWindowRect(window, &place) && EqualRect(&place, &area);
}

bool MovesOrSizes(WPARAM command) {
    return (command & CommandBits) == SC_MOVE || (command & CommandBits) == SC_SIZE;
}

// The command tells no window, but only the active one's title line and system menu can be used.
LRESULT CALLBACK RefuseMoves(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_SYSCOMMAND && MovesOrSizes(wParam) && FillsWorkArea(GetActiveWindow())) return 1;
    if (code == HCBT_MOVESIZE && FillsWorkArea(reinterpret_cast<HWND>(wParam))) return 1;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

class MoveHook {
  public:
    MoveHook() : hook_(SetWindowsHookExW(WH_CBT, RefuseMoves, nullptr, GetCurrentThreadId())) {}
    ~MoveHook() {
        if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
    }
    MoveHook(const MoveHook&) = delete;
    MoveHook& operator=(const MoveHook&) = delete;

  private:
    HHOOK hook_;
};

}  // namespace

void FixFullScreenWindows() {
    static const MoveHook hook;
}

}  // namespace ce
