#include "tests/platform/test_parent.h"

namespace {

constexpr wchar_t ParentClass[] = L"TestParent";
constexpr UINT TickMilliseconds = 20;
constexpr int TicksBeforeClosing = 50;
MenuDriver* currentDriver = nullptr;

}  // namespace

TestParent::TestParent(int clientWidth, int clientHeight) {
    WNDCLASSW windowClass{};
    if (!GetClassInfoW(GetModuleHandleW(nullptr), ParentClass, &windowClass)) {
        windowClass = {};
        windowClass.lpfnWndProc = Procedure;
        windowClass.cbWndExtra = sizeof(TestParent*);
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
        windowClass.lpszClassName = ParentClass;
        ::RegisterClassW(&windowClass);
    }
    window_ = ::CreateWindowExW(0, ParentClass, L"", WS_POPUP | WS_VISIBLE, 0, 0, clientWidth, clientHeight,
                                nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetWindowLongPtrW(window_, 0, reinterpret_cast<LONG_PTR>(this));
    SetForegroundWindow(window_);
    SetFocus(window_);
}

TestParent::~TestParent() {
    SetWindowLongPtrW(window_, 0, 0);
    DestroyWindow(window_);
    PumpAll();
}

HWND TestParent::MakeBar(UINT resource, int bitmap, int images) const {
    ce::MenuBarInfo info{};
    info.cbSize = sizeof(info);
    info.hwndParent = window_;
    info.nToolBarId = resource;
    info.hInstRes = GetModuleHandleW(nullptr);
    info.nBmpId = bitmap;
    info.cBmpImages = images;
    return ce::SHCreateMenuBar(&info) ? info.hwndMB : nullptr;
}

LRESULT CALLBACK TestParent::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<TestParent*>(GetWindowLongPtrW(window, 0));
    if (self != nullptr) {
        if (message == WM_COMMAND) self->commands.push_back({wParam, lParam});
        if (message == WM_INITMENUPOPUP) self->menusOpened.push_back(reinterpret_cast<HMENU>(wParam));
        if (message == WM_SYSCOMMAND) self->systemCommands.push_back(static_cast<UINT>(wParam & 0xFFF0));
        if (message == WM_SIZE && self->onSize) self->onSize(wParam, lParam);
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

bool PumpUntil(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        PumpAll();
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    }
    return true;
}

void PumpForAWhile() {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(200);
    while (std::chrono::steady_clock::now() < end) {
        PumpAll();
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    }
}

void PumpAll() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

MenuDriver::MenuDriver(std::vector<Step> stepsToTake) : steps_(std::move(stepsToTake)) {
    currentDriver = this;
    timer_ = SetTimer(nullptr, 0, TickMilliseconds, Tick);
}

MenuDriver::~MenuDriver() {
    KillTimer(nullptr, timer_);
    currentDriver = nullptr;
}

void CALLBACK MenuDriver::Tick(HWND, UINT, UINT_PTR, DWORD) {
    MenuDriver* driver = currentDriver;
    if (driver == nullptr || !MenuIsOpen()) return;
    if (driver->taken_ < driver->steps_.size() && driver->steps_[driver->taken_].when()) {
        driver->idleTicks_ = 0;
        driver->steps_[driver->taken_++].action();
    } else if (++driver->idleTicks_ == TicksBeforeClosing) {
        driver->hadToClose_ = true;
        driver->taken_ = driver->steps_.size();
        EndMenu();
    }
}

bool MenuIsOpen() {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    return GetGUIThreadInfo(GetCurrentThreadId(), &info) &&
           (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

HWND ToolBarOf(HWND bar) {
    return GetWindow(bar, GW_CHILD);
}

RECT ButtonRectangle(HWND bar, int command) {
    RECT rectangle{};
    SendMessageW(ToolBarOf(bar), TB_GETRECT, static_cast<WPARAM>(command),
                 reinterpret_cast<LPARAM>(&rectangle));
    return rectangle;
}

LPARAM MiddleOf(HWND bar, int command) {
    const RECT rectangle = ButtonRectangle(bar, command);
    return MAKELPARAM((rectangle.left + rectangle.right) / 2, (rectangle.top + rectangle.bottom) / 2);
}

void Click(HWND bar, int command) {
    PostMessageW(ToolBarOf(bar), WM_LBUTTONDOWN, MK_LBUTTON, MiddleOf(bar, command));
    PostMessageW(ToolBarOf(bar), WM_LBUTTONUP, 0, MiddleOf(bar, command));
}

void PressKey(HWND target, WPARAM key) {
    PostMessageW(target, WM_KEYDOWN, key, 0);
    PostMessageW(target, WM_KEYUP, key, static_cast<LPARAM>(0xC0000000));
}
