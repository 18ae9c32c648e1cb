#include "tests/framework/foreign_window.h"

namespace {

LRESULT CALLBACK SummingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == SumMessage) return static_cast<LRESULT>(wParam) + lParam;
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

ForeignWindow::ForeignWindow() {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = SummingProcedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"ForeignWindow";
    ::RegisterClassW(&windowClass);
    window = ::CreateWindowExW(0, L"ForeignWindow", L"", WS_POPUP, 0, 0, 50, 40, nullptr, nullptr,
                               GetModuleHandleW(nullptr), nullptr);
}

ForeignWindow::~ForeignWindow() {
    DestroyWindow(window);
}
