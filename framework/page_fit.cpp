#include "framework/page_fit.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

#include "framework/combo_box.h"
#include "framework/layout.h"
#include "platform/ce_windows.h"
#include "platform/handles.h"

namespace {

constexpr LONG GapBehindLabel = 5;
// If the text needs the room.
constexpr LONG SmallestGap = 2;
// The last letter may overhang.
constexpr LONG LeaningLetter = 1;
// Resizing a combo box takes some milliseconds of the start, too many for a few pixels.
constexpr LONG WorthWidening = 8;

LONG RightEdgeOf(HWND page) {
    return ClientSizeOf(page).cx - RightMargin;
}

// The height set on a combo box is the one with its list open. Some systems take the field off it once more:
// what the list has lost is then added.
void PlaceComboBox(HWND control, RECT place) {
    const ComboBox box(control);
    const LONG withList = box.HeightWithList();
    place.bottom = place.top + withList;
    Place(control, place);
    const LONG lost = withList - box.HeightWithList();
    if (lost <= 0) return;
    place.bottom += lost;
    Place(control, place);
}

bool IsOneLine(HWND control) {
    return (GetWindowLongW(control, GWL_STYLE) & SS_ELLIPSISMASK) != 0;
}

LONG WidthOnOneLine(HWND control) {
    return TextWidth(control) + LeaningLetter;
}

LONG HeightInLines(HWND control) {
    return TextHeight(control, PlaceOf(control).right - PlaceOf(control).left);
}

HWND LabelOf(HWND page, int id) {
    const HWND control = GetDlgItem(page, id);
    return control != nullptr ? GetWindow(control, GW_HWNDPREV) : nullptr;
}

LONG EndOfLabel(HWND label) {
    return PlaceOf(label).left + WidthOnOneLine(label);
}

void AlignBehindLabel(HWND value, HWND label, LONG column, LONG right) {
    RECT labelPlace = PlaceOf(label);
    labelPlace.right = EndOfLabel(label);
    Place(label, labelPlace);
    RECT place = PlaceOf(value);
    const LONG needed = right - WidthOnOneLine(value);
    const LONG leftmost = labelPlace.right + SmallestGap;
    place.left = needed < column && needed >= leftmost ? needed : column;
    place.right = right;
    Place(value, place);
}

bool IsShown(HWND control) {
    return (GetWindowLongW(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

LONG LowestShown(HWND page) {
    LONG lowest = 0;
    ForEachControl(page, [&](HWND control) {
        if (IsShown(control)) lowest = std::max(lowest, PlaceOf(control).bottom);
    });
    return lowest;
}

// Whether all of the static's text is visible, on one line or wrapped, depending on its style.
bool IsTextWhole(HWND control) {
    const SIZE room = ClientSizeOf(control);
    return IsOneLine(control) ? TextWidth(control) <= room.cx : HeightInLines(control) <= room.cy;
}

constexpr LONG ScreenMargin = 20;
constexpr LONG WidestLine = 400;

LONG WidthOfLine() {
    const RECT screen = ce::ScreenArea();
    return std::min(screen.right - screen.left - ScreenMargin, WidestLine);
}

// The longest text of a page, and the same with room for line breaks.
constexpr std::size_t LongestText = 1024;
using TipText = wchar_t[LongestText + LongestText / 8];

// How many of the units that fit go on this line: up to the last blank, if there is one.
std::size_t EndOfLine(const wchar_t* text, std::size_t length, std::size_t fitting) {
    if (fitting >= length) return length;
    for (std::size_t units = fitting + 1; units > 1; --units) {
        if (text[units - 1] == L' ') return std::min(units, fitting);
    }
    return fitting;
}

// A tooltip wraps its text only at blanks, which a path need not have. What does not fit is cut.
void BreakIntoLines(HWND window, const wchar_t* text, TipText& lines) {
    const WindowContext context(window);
    const SelectedObject font(context.Get(), FontOf(window));
    std::size_t used = 0;
    for (std::size_t rest = std::wcslen(text); rest > 0;) {
        int fitting = 0;
        SIZE size{};
        GetTextExtentExPointW(context.Get(), text, static_cast<int>(rest), WidthOfLine(), &fitting, nullptr,
                              &size);
        const std::size_t taken = EndOfLine(text, rest, static_cast<std::size_t>(std::max(fitting, 1)));
        if (used + taken + 3 > std::size(lines)) break;
        std::wmemcpy(lines + used, text, taken);
        used += taken;
        text += taken;
        rest -= taken;
        if (rest > 0) {
            std::wmemcpy(lines + used, L"\r\n", 2);
            used += 2;
        }
    }
    lines[used] = L'\0';
}

}  // namespace

void WidenToRightEdge(HWND page, int id) {
    const HWND control = GetDlgItem(page, id);
    if (control == nullptr) return;
    RECT place = PlaceOf(control);
    const LONG growth = RightEdgeOf(page) - place.right;
    if (growth >= 0 && growth < WorthWidening) return;
    place.right += growth;
    if (IsOfClass(control, L"ComboBox")) {
        PlaceComboBox(control, place);
    } else {
        Place(control, place);
    }
}

void MoveToRightEdge(HWND page, int id) {
    const HWND control = GetDlgItem(page, id);
    if (control == nullptr) return;
    RECT place = PlaceOf(control);
    if (RightEdgeOf(page) - place.right < WorthWidening) return;
    OffsetRect(&place, RightEdgeOf(page) - place.right, 0);
    Place(control, place);
}

void AlignBehindLabels(HWND page, std::span<const int> ids) {
    LONG column = 0;
    for (const int id : ids) {
        if (const HWND label = LabelOf(page, id))
            column = std::max(column, EndOfLabel(label) + GapBehindLabel);
    }
    for (const int id : ids) {
        const HWND label = LabelOf(page, id);
        if (label != nullptr) AlignBehindLabel(GetDlgItem(page, id), label, column, RightEdgeOf(page));
    }
}

void GrowDown(HWND page, int id) {
    const HWND control = GetDlgItem(page, id);
    if (control == nullptr) return;
    RECT place = PlaceOf(control);
    const LONG wanted = HeightInLines(control) - (place.bottom - place.top);
    const LONG growth = std::min(wanted, ClientSizeOf(page).cy - LowestShown(page));
    if (growth <= 0) return;
    MoveControlsBelow(page, place.bottom, 0, growth);
    place.bottom += growth;
    Place(control, place);
}

void WholeTextTips::Add(HWND page, std::span<const int> ids) {
    for (const int id : ids) {
        const HWND control = GetDlgItem(page, id);
        if (control != nullptr && !IsTextWhole(control) && HasWindow(page)) Add(page, control);
    }
}

void WholeTextTips::Remove() {
    if (window_ != nullptr) DestroyWindow(window_);
    window_ = nullptr;
}

bool WholeTextTips::HasWindow(HWND page) {
    if (window_ != nullptr) return true;
    window_ =
        ce::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                            0, 0, 0, 0, page, nullptr, nullptr, nullptr);
    if (window_ == nullptr) return false;
    // Without a maximum width a tooltip has only one line.
    SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, WidthOfLine() + ScreenMargin);
    return true;
}

// Mouse messages pass through a static to the page, so the page is the tool's window.
void WholeTextTips::Add(HWND page, HWND control) {
    wchar_t text[LongestText] = L"";
    GetWindowTextW(control, text, static_cast<int>(std::size(text)));
    TipText lines;
    BreakIntoLines(window_, text, lines);
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = page;
    tool.uId = static_cast<UINT_PTR>(GetDlgCtrlID(control));
    tool.lpszText = lines;
    GetWindowRect(control, &tool.rect);
    MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&tool.rect), 2);
    SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}
