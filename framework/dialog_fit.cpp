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
    ForEachControl(dialog, [&](HWND control) {
        const RECT place = PlaceOf(control);
        if (place.top < line) return;
        part.top = std::min(part.top, place.top);
        part.bottom = std::max(part.bottom, place.bottom);
    });
    return part;
}

bool HasCutText(HWND dialog) {
    bool isCut = false;
    ForEachControl(dialog, [&](HWND control) {
        const RECT place = PlaceOf(control);
        if (place.top >= TitleLineY && HeightForText(control) > place.bottom - place.top) isCut = true;
    });
    return isCut;
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
    ForEachControl(dialog, [=](HWND control) {
        RECT place = PlaceOf(control);
        if (place.right <= right) return;
        place.right = right;
        Place(control, place);
    });
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

}  // namespace

void WidenToText(HWND dialog, int id) {
    const HWND control = GetDlgItem(dialog, id);
    if (control == nullptr) return;
    RECT place = PlaceOf(control);
    const LONG needed = place.left + TextWidth(control);
    const LONG limit = ClientSizeOf(dialog).cx - RightMargin;
    if (needed <= place.right || limit <= place.right) return;
    place.right = std::min(needed, limit);
    Place(control, place);
}

bool ShowsWholeText(HWND dialog, int id) {
    const HWND control = GetDlgItem(dialog, id);
    if (control == nullptr) return true;
    return TextWidth(control) <= ClientSizeOf(control).cx;
}

void GrowToText(HWND dialog, int id) {
    const HWND control = GetDlgItem(dialog, id);
    if (control == nullptr) return;
    RECT place = PlaceOf(control);
    const LONG line = place.bottom - Rounding;
    const LONG needed = place.top + TextHeight(control, place.right - place.left);
    if (needed <= place.bottom) return;

    const LowerPart below = PartBelow(dialog, line);
    const LONG room = RoomFor(dialog).cy;
    // What does not fit below can still move into a second column.
    const LONG spare = HasRoomForTwoColumns(dialog) ? room : below.top - GapBelowText + room - below.bottom;
    place.bottom = std::max(place.bottom, std::min(needed, spare));
    const LONG down = place.bottom + GapBelowText - below.top;
    if (below.bottom > 0 && down > 0) MoveControlsBelow(dialog, line, 0, down);
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
        MoveControlsBelow(dialog, line, client.cx, ColumnTop - PartBelow(dialog, line).top);
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
