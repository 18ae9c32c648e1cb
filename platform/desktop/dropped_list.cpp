#include "platform/dropped_list.h"

#include <algorithm>

#include "platform/ce_windows.h"
#include "platform/desktop/window_placement.h"

namespace ce {

namespace {

// Beside the text: the list's frame, and the room that it leaves in front of an entry and behind it.
constexpr LONG Frame = 2;
constexpr LONG AroundText = 8;
// A text that is longer is wider than any screen.
constexpr LRESULT LongestMeasured = 511;

// Of the class that all dropped lists have.
WNDPROC listProcedure = nullptr;

LONG WidthOfEntry(HWND list, HDC surface, WPARAM entry, LONG widest) {
    wchar_t text[LongestMeasured + 1];
    const LRESULT length = SendMessageW(list, LB_GETTEXTLEN, entry, 0);
    if (length > LongestMeasured) return widest;
    if (SendMessageW(list, LB_GETTEXT, entry, reinterpret_cast<LPARAM>(text)) == LB_ERR) return 0;
    SIZE size{};
    GetTextExtentPoint32W(surface, text, static_cast<int>(length), &size);
    return std::min(size.cx, widest);
}

LONG WidestEntry(HWND list, LONG widest) {
    const HDC surface = GetDC(list);
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(list, WM_GETFONT, 0, 0));
    const HGDIOBJ before = font != nullptr ? SelectObject(surface, font) : nullptr;
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    LONG width = 0;
    for (LRESULT entry = 0; entry < count; ++entry)
        width = std::max(width, WidthOfEntry(list, surface, static_cast<WPARAM>(entry), widest));
    if (before != nullptr) SelectObject(surface, before);
    ReleaseDC(list, surface);
    return width;
}

LRESULT CALLBACK KeepInside(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_WINDOWPOSCHANGING) {
        auto& place = *reinterpret_cast<WINDOWPOS*>(lParam);
        const RECT area = ScreenArea();
        if ((place.flags & (SWP_NOMOVE | SWP_NOSIZE)) == 0)
            place.x = std::max<int>(std::min<int>(place.x, area.right - place.cx), area.left);
    }
    return CallWindowProcW(listProcedure, list, message, wParam, lParam);
}

// For as long as the list exists: the combo box keeps it from drop to drop.
void WatchPlace(HWND list) {
    if (GetWindowLongPtrW(list, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&KeepInside)) return;
    const LONG_PTR before = SetWindowLongPtrW(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&KeepInside));
    if (before != 0) listProcedure = reinterpret_cast<WNDPROC>(before);
}

}  // namespace

void FitDroppedList(HWND comboBox) {
    COMBOBOXINFO box{};
    box.cbSize = sizeof box;
    if (SendMessageW(comboBox, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&box)) == 0) return;
    const LONG room = SizeOf(ScreenArea()).cx;
    const LONG around = Frame + AroundText + GetSystemMetrics(SM_CXVSCROLL);
    const LONG width = std::min(WidestEntry(box.hwndList, room) + around, room);
    SendMessageW(comboBox, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width), 0);
    WatchPlace(box.hwndList);
}

}  // namespace ce
