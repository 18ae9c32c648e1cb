#include "framework/dialog_squeeze.h"

#include <algorithm>
#include <climits>
#include <utility>
#include <vector>

#include "framework/layout.h"
#include "platform/handles.h"

namespace {

// The first row below the title line.
constexpr LONG FirstRow = 26;
constexpr LONG SmallGap = 1;
constexpr LONG AnyGap = 1000;
constexpr LONG ButtonBorders = 4;
constexpr LONG GroupBorder = 2;
// Places and sizes in dialog units are rounded one by one, so neighbours may overlap by a pixel.
constexpr LONG Rounding = 1;
constexpr LONG SmallestLetters = 8;

struct Row {
    HWND control;
    RECT before;
    RECT after;
    LONG highest;  // where there is no room for more
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

// In the order of their places, equal ones in that of the controls. A sort of the library's would be 2 KB of
// program for a dozen rows.
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

// All dialogs share these, as long as the program runs: their templates have one font, in two weights.
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

// The top that the row has to keep away from this earlier one.
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

// The longest text loses its end.
void CutLongestText(std::vector<Row>& rows, LONG excess) {
    const auto longest = std::max_element(rows.begin(), rows.end(), [](const Row& one, const Row& other) {
        return std::pair(IsText(one.control), HeightOf(one.after)) <
               std::pair(IsText(other.control), HeightOf(other.after));
    });
    if (longest != rows.end()) longest->highest = std::max(HeightOf(longest->after) - excess, LONG{0});
}

}  // namespace

LONG HeightForText(HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    if (!IsText(control)) return HeightOf(place);
    const bool isOneLine = (StyleOf(control) & SS_ELLIPSISMASK) != 0;
    return isOneLine ? LineHeight(control)
                     : std::max(TextHeight(control, place.right - place.left), LineHeight(control));
}

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
