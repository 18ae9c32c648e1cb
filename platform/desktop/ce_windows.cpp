#include "platform/ce_windows.h"

#include "platform/ce_system.h"
#include "platform/desktop/system_handles.h"
#include "platform/desktop/window_placement.h"

namespace ce {

namespace {

// A brush given as an index is a small number behind the flag; a real brush handle may have the flag's bit
// set as well.
constexpr ULONG_PTR LargestColorIndex = 0xFF;

bool IsFlaggedIndex(ULONG_PTR value) {
    return value >= SystemColorFlag && value <= (SystemColorFlag | LargestColorIndex);
}

int WithoutFlag(int index) {
    return static_cast<int>(static_cast<DWORD>(index) & ~SystemColorFlag);
}

bool LeavesPlaceToSystem(DWORD style, int x, int y, int width, int height, HWND parent) {
    return parent == nullptr && (style & WS_CHILD) == 0 && x == CW_USEDEFAULT && y == CW_USEDEFAULT &&
           width == CW_USEDEFAULT && height == CW_USEDEFAULT;
}

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

// A window that fills a handheld's screen stays there: its title line is no handle. The desktop would let it
// be dragged away, or moved from its system menu. From here on no window of this thread that fills the work
// area can be moved or sized by its user; smaller windows can.
void FixFullScreenWindows() {
    static UniqueHook hook;
    if (!hook) hook.Reset(SetWindowsHookExW(WH_CBT, RefuseMoves, nullptr, GetCurrentThreadId()));
}

}  // namespace

RECT ScreenArea() {
    RECT reported{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &reported, 0);
    return UsableArea(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), reported);
}

int GetClassNameW(HWND window, wchar_t* name, int capacity) {
    constexpr wchar_t DesktopDialogClass[] = L"#32770";
    wchar_t desktopName[8];
    if (::GetClassNameW(window, desktopName, 8) == 6 && lstrcmpW(desktopName, DesktopDialogClass) == 0) {
        if (name == nullptr || capacity <= 0) return 0;
        lstrcpynW(name, L"Dialog", capacity);
        return lstrlenW(name);
    }
    return ::GetClassNameW(window, name, capacity);
}

HWND CreateWindowExW(DWORD extendedStyle, const wchar_t* className, const wchar_t* title, DWORD style, int x,
                     int y, int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                     void* parameter) {
    if (!LeavesPlaceToSystem(style, x, y, width, height, parent)) {
        return ::CreateWindowExW(extendedStyle, className, title, style, x, y, width, height, parent, menu,
                                 instance, parameter);
    }
    const bool handheld = IsHandheldScreen(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
    if (handheld) FixFullScreenWindows();
    // The window lays its children out once, so it gets no frame to be resized by and no maximise box.
    style |= WS_CAPTION | WS_SYSMENU | (handheld ? 0 : WS_MINIMIZEBOX);
    RECT frame{};
    AdjustWindowRectEx(&frame, style, FALSE, extendedStyle);
    const RECT place = TopLevelPlacement(handheld, ScreenArea(),
                                         FrameExtent{frame.right - frame.left, frame.bottom - frame.top});
    return ::CreateWindowExW(extendedStyle, className, title, style, place.left, place.top,
                             place.right - place.left, place.bottom - place.top, parent, menu, instance,
                             parameter);
}

WNDPROC WindowProcedure(HWND window) {
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC));
}

WNDPROC SetWindowProcedure(HWND window, WNDPROC procedure) {
    return reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

void SetDialogResult(HWND dialog, LRESULT result) {
    SetWindowLongPtrW(dialog, DWLP_MSGRESULT, result);
}

void SetClassIcon(HWND window, HICON icon) {
    SetClassLongPtrW(window, GCLP_HICON, reinterpret_cast<LONG_PTR>(icon));
}

ATOM RegisterClassW(const WNDCLASSW* windowClass) {
    WNDCLASSW desktopClass = *windowClass;
    const auto brush = reinterpret_cast<ULONG_PTR>(desktopClass.hbrBackground);
    if (IsFlaggedIndex(brush)) {
        desktopClass.hbrBackground = reinterpret_cast<HBRUSH>(brush & LargestColorIndex);
    }
    // A handheld shows no pointer; here a class without one would keep whatever pointer the mouse came with.
    if (desktopClass.hCursor == nullptr) desktopClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    return ::RegisterClassW(&desktopClass);
}

DWORD GetSysColor(int index) {
    return ::GetSysColor(WithoutFlag(index));
}

HBRUSH GetSysColorBrush(int index) {
    return ::GetSysColorBrush(WithoutFlag(index));
}

}  // namespace ce
