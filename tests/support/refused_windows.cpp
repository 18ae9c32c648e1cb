#include "tests/support/refused_windows.h"

namespace {

int asked = 0;
int firstRefused = 0;
int lastRefused = 0;

LRESULT CALLBACK WatchCreations(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && ++asked >= firstRefused && asked <= lastRefused) return 1;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

RefusedWindows::RefusedWindows(int first, int last) {
    asked = 0;
    firstRefused = first;
    lastRefused = last;
    hook_ = SetWindowsHookExW(WH_CBT, WatchCreations, nullptr, GetCurrentThreadId());
}

RefusedWindows::~RefusedWindows() {
    UnhookWindowsHookEx(hook_);
}

bool RefusedWindows::HasRefused() const {
    return asked >= firstRefused;
}
