#include "framework/dialog_fit.h"

#include <algorithm>
#include <climits>
#include <utility>
#include <vector>

#include "framework/layout.h"
#include "platform/ce_shell.h"
#include "platform/ce_windows.h"
#include "platform/handles.h"
#include "resources/resource_ids.h"

namespace {

constexpr LONG GapBelowText = 4;
// Where a second column starts.
constexpr LONG ColumnTop = TitleLineY + 4;
// Positions and sizes in dialog units are rounded separately, so neighbours may overlap by a pixel.
constexpr LONG Rounding = 1;
constexpr LONG FirstRow = TitleLineY + 2;
constexpr LONG SmallGap = 1;
constexpr LONG AnyGap = 1000;
constexpr LONG ButtonBorders = 4;
constexpr LONG GroupBorder = 2;
constexpr LONG SmallestLetters = 8;

struct Row {
    HWND control;
    RECT before;
    RECT after;
    LONG highest;  // limits its height if the screen has no room for more
};

LONG HeightOf(const RECT& place) {
    return place.bottom - place.top;
}

LONG StyleOf(HWND control) {
    return GetWindowLongW(control, GWL_STYLE);
}

bool IsText(HWND control) {
    return IsOfClass(control, L"Static") && (StyleOf(control) & SS_TYPEMASK) != SS_ICON;
}

bool IsGroup(HWND control) {
    return IsOfClass(control, L"Button") && (StyleOf(control) & BS_TYPEMASK) == BS_GROUPBOX;
}

// Keeps the rows sorted from top to bottom, equal ones in the order of the controls. The library's sort would
// add 2 KB to the program for a dozen rows.
void Insert(std::vector<Row>& rows, const Row& row) {
    auto place = rows.end();
    while (place != rows.begin() && (place - 1)->before.top > row.before.top)
        --place;
    rows.insert(place, row);
}

std::vector<Row> RowsOf(HWND dialog) {
    std::vector<Row> rows;
    ForEachControl(dialog, [&](HWND control) { Insert(rows, {control, PlaceOf(control), {}, LONG_MAX}); });
    return rows;
}

LONG LettersOf(HWND control) {
    LOGFONTW font{};
    GetObjectW(FontOf(control), sizeof font, &font);
    return font.lfHeight < 0 ? -font.lfHeight : font.lfHeight;
}

// Smaller fonts, shared by all dialogs as long as the program runs: their templates have one font in two
// weights.
class SmallLetters {
  public:
    HFONT Like(HFONT model, LONG height) {
        LOGFONTW font{};
        if (GetObjectW(model, sizeof font, &font) == 0) return nullptr;
        font.lfHeight = -height;
        UniqueFont& shared = fonts_[2 * (height - SmallestLetters) + (font.lfWeight >= FW_BOLD ? 1 : 0)];
        if (!shared) shared.Reset(CreateFontIndirectW(&font));
        return shared.Get();
    }

    static constexpr LONG Largest = 16;

  private:
    UniqueFont fonts_[2 * (Largest - SmallestLetters + 1)];
};

void MakeLettersSmaller(const std::vector<Row>& rows, LONG height) {
    static SmallLetters letters;
    for (const Row& row : rows) {
        if (LettersOf(row.control) <= height || height > SmallLetters::Largest) continue;
        const HFONT font = letters.Like(FontOf(row.control), height);
        if (font != nullptr) SetFont(row.control, font);
    }
}

// The height that a control's text needs at the control's width; the control's own height if it has no text.
LONG HeightForText(HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    if (!IsText(control)) return HeightOf(place);
    const bool isOneLine = (StyleOf(control) & SS_ELLIPSISMASK) != 0;
    return isOneLine ? LineHeight(control)
                     : std::max(TextHeight(control, place.right - place.left), LineHeight(control));
}

LONG HeightFor(const Row& row) {
    if (IsGroup(row.control)) return LineHeight(row.control);
    if (IsOfClass(row.control, L"Button"))
        return std::min(HeightOf(row.before), LineHeight(row.control) + ButtonBorders);
    return HeightForText(row.control);
}

bool Holds(const Row& group, const Row& inside) {
    return IsGroup(group.control) && group.before.top < inside.before.top &&
           inside.before.bottom <= group.before.bottom + Rounding;
}

// The top that the row needs to stay clear of this earlier one.
LONG TopBehind(const Row& earlier, const Row& row, LONG largestGap) {
    if (Holds(earlier, row)) return earlier.after.top + LineHeight(earlier.control);
    const LONG gap = row.before.top - earlier.before.bottom;
    if (gap < -Rounding) return FirstRow;
    return earlier.after.bottom + std::clamp(gap, LONG{0}, largestGap);
}

bool IsInSameColumn(const Row& one, const Row& other, LONG columnWidth) {
    return (one.before.left >= columnWidth) == (other.before.left >= columnWidth);
}

LONG Arrange(std::vector<Row>& rows, LONG columnWidth, LONG largestGap) {
    LONG lowest = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        Row& row = rows[i];
        row.after = row.before;
        if (row.before.top < FirstRow - Rounding) continue;
        LONG top = FirstRow;
        for (std::size_t j = 0; j < i; ++j) {
            if (IsInSameColumn(rows[j], row, columnWidth))
                top = std::max(top, TopBehind(rows[j], row, largestGap));
        }
        row.after.top = top;
        row.after.bottom = top + std::min(HeightFor(row), row.highest);
        for (std::size_t j = 0; j < i; ++j) {
            if (Holds(rows[j], row))
                rows[j].after.bottom = std::max(rows[j].after.bottom, row.after.bottom + GroupBorder);
        }
        lowest = std::max(lowest, row.after.bottom);
    }
    for (const Row& row : rows)
        lowest = std::max(lowest, row.after.bottom);
    return lowest;
}

// Cuts the end of the longest text.
void CutLongestText(std::vector<Row>& rows, LONG excess) {
    const auto longest = std::max_element(rows.begin(), rows.end(), [](const Row& one, const Row& other) {
        return std::pair(IsText(one.control), HeightOf(one.after)) <
               std::pair(IsText(other.control), HeightOf(other.after));
    });
    if (longest != rows.end()) longest->highest = std::max(HeightOf(longest->after) - excess, LONG{0});
}

// The extent of all controls that begin at the line or below it.
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

// The width and height of the window's borders and caption.
SIZE FrameOf(HWND dialog) {
    RECT window{};
    GetWindowRect(dialog, &window);
    const SIZE client = ClientSizeOf(dialog);
    return {window.right - window.left - client.cx, window.bottom - window.top - client.cy};
}

// The largest client area that fits on the screen above the dialog's menu bar.
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

void SqueezeRows(HWND dialog, LONG columnWidth, LONG height) {
    std::vector<Row> rows = RowsOf(dialog);
    LONG letters = SmallestLetters;
    for (const Row& row : rows)
        letters = std::max(letters, LettersOf(row.control));
    const LONG gap = Arrange(rows, columnWidth, AnyGap) > height ? SmallGap : AnyGap;
    while (Arrange(rows, columnWidth, gap) > height && letters > SmallestLetters)
        MakeLettersSmaller(rows, --letters);
    const LONG excess = Arrange(rows, columnWidth, gap) - height;
    if (excess > 0) {
        CutLongestText(rows, excess);
        Arrange(rows, columnWidth, gap);
    }
    for (const Row& row : rows)
        MoveWindow(row.control, row.after.left, row.after.top, row.after.right - row.after.left,
                   HeightOf(row.after), FALSE);
}

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
    // Controls that do not fit below can still move into a second column.
    const LONG heightBelow = below.bottom > 0 ? below.bottom - below.top + GapBelowText : 0;
    const LONG spare = HasRoomForTwoColumns(dialog) ? room : room - heightBelow;
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
