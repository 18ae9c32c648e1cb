#include "framework/dialog_fit.h"

#include <algorithm>
#include <climits>

#include "framework/dialog_squeeze.h"
#include "framework/layout.h"
#include "platform/ce_shell.h"
#include "platform/ce_windows.h"
#include "resources/resource_ids.h"

namespace {

constexpr LONG GapBelowText = 4;
// The row of the title line; a heading of ten dialog units reaches it where the font is large.
constexpr LONG TitleLineY = 24;
// Where a second column starts: below the title line.
constexpr LONG ColumnTop = 28;
// Places and sizes in dialog units are rounded one by one, so neighbours may overlap by a pixel.
constexpr LONG Rounding = 1;

// The controls whose top is not above the line, as a whole.
struct LowerPart {
    LONG top = LONG_MAX;
    LONG bottom = 0;
};

LowerPart PartBelow(HWND dialog, LONG line) {
    LowerPart part;
    for (HWND control = GetWindow(dialog, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        const RECT place = PlaceOf(control);
        if (place.top < line) continue;
        part.top = std::min(part.top, place.top);
        part.bottom = std::max(part.bottom, place.bottom);
    }
    return part;
}

void MoveBelow(HWND dialog, LONG line, LONG right, LONG down) {
    for (HWND control = GetWindow(dialog, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        RECT place = PlaceOf(control);
        if (place.top < line) continue;
        OffsetRect(&place, right, down);
        Place(control, place);
    }
}

bool HasCutText(HWND dialog) {
    for (HWND control = GetWindow(dialog, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        const RECT place = PlaceOf(control);
        if (place.top >= TitleLineY && HeightForText(control) > place.bottom - place.top) return true;
    }
    return false;
}

SIZE ClientSizeOf(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return {area.right, area.bottom};
}

// What the window has around its client area.
SIZE FrameOf(HWND dialog) {
    RECT window{};
    GetWindowRect(dialog, &window);
    const SIZE client = ClientSizeOf(dialog);
    return {window.right - window.left - client.cx, window.bottom - window.top - client.cy};
}

// The largest client area that the screen has for a dialog, its menu bar left out.
SIZE RoomFor(HWND dialog) {
    const RECT screen = ce::ScreenArea();
    const SIZE frame = FrameOf(dialog);
    return {screen.right - screen.left - frame.cx, screen.bottom - screen.top - frame.cy - ce::MenuBarHeight};
}

bool HasRoomForTwoColumns(HWND dialog) {
    return RoomFor(dialog).cx >= 2 * ClientSizeOf(dialog).cx;
}

// The screen may be a little narrower than the template.
void CutToWidth(HWND dialog) {
    const LONG right = std::min(ClientSizeOf(dialog).cx, RoomFor(dialog).cx);
    for (HWND control = GetWindow(dialog, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        RECT place = PlaceOf(control);
        if (place.right <= right) continue;
        place.right = right;
        Place(control, place);
    }
}

void SetClientSize(HWND dialog, SIZE client) {
    const SIZE frame = FrameOf(dialog);
    const RECT screen = ce::ScreenArea();
    RECT window{};
    GetWindowRect(dialog, &window);
    const LONG width = client.cx + frame.cx;
    const LONG height = client.cy + frame.cy;
    const LONG x = std::max(screen.left, std::min(window.left, screen.right - width));
    const LONG y = std::max(screen.top, std::min(window.top, screen.bottom - height - ce::MenuBarHeight));
    SetWindowPos(dialog, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

// What the static's text needs: on one line, or broken at the given width.
SIZE TextSizeOf(HWND control, LONG width, UINT format) {
    wchar_t text[1024] = L"";
    const int length = GetWindowTextW(control, text, 1024);
    const HDC context = GetDC(control);
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0));
    const HGDIOBJ before = font != nullptr ? SelectObject(context, font) : nullptr;
    RECT area{0, 0, width, 0};
    DrawTextW(context, text, length, &area, format | DT_CALCRECT | DT_NOPREFIX | DT_EXPANDTABS);
    if (before != nullptr) SelectObject(context, before);
    ReleaseDC(control, context);
    return {area.right, area.bottom};
}

}  // namespace

void WidenToText(HWND dialog, int id) {
    const HWND control = GetDlgItem(dialog, id);
    if (control == nullptr) return;
    RECT place = PlaceOf(control);
    const LONG needed = place.left + TextSizeOf(control, 0, DT_SINGLELINE).cx;
    const LONG limit = ClientSizeOf(dialog).cx - RightMargin;
    if (needed <= place.right || limit <= place.right) return;
    place.right = std::min(needed, limit);
    Place(control, place);
}

bool ShowsWholeText(HWND dialog, int id) {
    const HWND control = GetDlgItem(dialog, id);
    if (control == nullptr) return true;
    return TextSizeOf(control, 0, DT_SINGLELINE).cx <= ClientSizeOf(control).cx;
}

void GrowToText(HWND dialog, int id) {
    const HWND control = GetDlgItem(dialog, id);
    if (control == nullptr) return;
    RECT place = PlaceOf(control);
    const LONG line = place.bottom - Rounding;
    const LONG needed =
        place.top + TextSizeOf(control, place.right - place.left, DT_WORDBREAK | DT_EDITCONTROL).cy;
    if (needed <= place.bottom) return;

    const LowerPart below = PartBelow(dialog, line);
    const LONG room = RoomFor(dialog).cy;
    // What does not fit below can still move into a second column.
    const LONG spare = HasRoomForTwoColumns(dialog) ? room : below.top - GapBelowText + room - below.bottom;
    place.bottom = std::max(place.bottom, std::min(needed, spare));
    const LONG down = place.bottom + GapBelowText - below.top;
    if (below.bottom > 0 && down > 0) MoveBelow(dialog, line, 0, down);
    Place(control, place);

    const LONG lowest = PartBelow(dialog, 0).bottom;
    SIZE client = ClientSizeOf(dialog);
    if (lowest <= client.cy) return;
    client.cy = lowest;
    SetClientSize(dialog, client);
}

void FitToScreen(HWND dialog, int lastKept) {
    CutToWidth(dialog);
    const SIZE room = RoomFor(dialog);
    SIZE client = ClientSizeOf(dialog);
    const LONG columnWidth = client.cx;
    const HWND kept = GetDlgItem(dialog, lastKept);
    if (PartBelow(dialog, 0).bottom > room.cy && kept != nullptr && HasRoomForTwoColumns(dialog)) {
        const LONG line = PlaceOf(kept).bottom - Rounding;
        MoveBelow(dialog, line, client.cx, ColumnTop - PartBelow(dialog, line).top);
        client.cx *= 2;
    }
    if (PartBelow(dialog, 0).bottom > room.cy || HasCutText(dialog))
        SqueezeRows(dialog, columnWidth, room.cy);
    const LONG lowest = PartBelow(dialog, 0).bottom;
    if (client.cy <= room.cy && lowest <= client.cy) return;
    client.cy = std::min(lowest + GapBelowText, room.cy);
    SetClientSize(dialog, client);
}

void KeepTitleLineFree(HWND dialog) {
    const HWND heading = GetDlgItem(dialog, STATIC_TITLE);
    if (heading == nullptr) return;
    RECT place = PlaceOf(heading);
    if (place.bottom <= TitleLineY) return;
    place.bottom = TitleLineY;
    Place(heading, place);
}
