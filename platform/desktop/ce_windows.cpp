#include "platform/ce_windows.h"

#include "platform/ce_system.h"
#include "platform/desktop/fixed_windows.h"
#include "platform/screen_area.h"
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

}  // namespace

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
