#include "platform/ce_controls.h"

#include <commctrl.h>

#include <cstddef>
#include <cwchar>
#include <iterator>

namespace {

constexpr int TextCapacity = 20;
constexpr int EntryCapacity = 1024;
constexpr std::size_t FormatCapacity = 32;
constexpr std::size_t LettersOfShortYear = 3;
constexpr unsigned long LargestPosition = 0xFFFF;
constexpr DWORD NoNumber = 0x10000;

// Of a key's lParam: it was down already, and repeats itself.
constexpr LPARAM KeyWasDown = 1L << 30;

// What stands between the thousands of a number on this system.
wchar_t ThousandsSeparator() {
    wchar_t separator[2];
    return GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator, 2) == 2 ? separator[0] : L',';
}

bool IsDigit(wchar_t unit) {
    return unit >= L'0' && unit <= L'9';
}

bool PositionIn(const wchar_t* text, WORD& position) {
    const wchar_t separator = ThousandsSeparator();
    unsigned long number = 0;
    bool hasDigit = false;
    for (; *text != L'\0'; ++text) {
        if (*text == separator) continue;
        if (!IsDigit(*text)) return false;
        number = number * 10 + static_cast<unsigned long>(*text - L'0');
        if (number > LargestPosition) return false;
        hasDigit = true;
    }
    position = static_cast<WORD>(number);
    return hasDigit;
}

bool EntryBeginsWith(HWND combo, int index, const wchar_t* text, int textLength) {
    wchar_t entry[EntryCapacity];
    const LRESULT length = SendMessageW(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0);
    if (length < textLength || length >= EntryCapacity) return false;
    SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(entry));
    return CompareStringOrdinal(entry, textLength, text, textLength, TRUE) == CSTR_EQUAL;
}

// A format that would no longer fit stays as it is, cut to the room.
void SpellOutYear(const wchar_t* format, wchar_t (&result)[FormatCapacity]) {
    const wchar_t* const year = std::wcschr(format, L'y');
    const std::size_t before = year != nullptr ? static_cast<std::size_t>(year - format) : 0;
    const bool isShort = year != nullptr && std::wcsspn(year, L"y") == LettersOfShortYear;
    if (isShort && std::wcslen(format) + 1 < FormatCapacity) {
        std::wmemcpy(result, format, before);
        result[before] = L'y';
        std::wcscpy(result + before + 1, year);
    } else {
        lstrcpynW(result, format, FormatCapacity);
    }
}

}  // namespace

DWORD ce::SpinPosition(HWND spin) {
    // Asked in any case: the control takes over what it accepts.
    const auto answer = static_cast<DWORD>(SendMessageW(spin, UDM_GETPOS, 0, 0));
    const auto buddy = reinterpret_cast<HWND>(SendMessageW(spin, UDM_GETBUDDY, 0, 0));
    if (buddy == nullptr) return answer;
    wchar_t text[TextCapacity] = L"";
    GetWindowTextW(buddy, text, static_cast<int>(std::size(text)));
    WORD position = 0;
    // QUIRK: typed-numbers-are-not-clamped
    if (PositionIn(text, position)) return position;
    // Not every system's control groups the thousands as the system does; it knows its own groups. One that
    // takes an empty text for a number is not believed.
    return HIWORD(answer) == 0 && IsDigit(text[0]) ? answer : LOWORD(answer) | NoNumber;
}

UINT ce::MenuItemState(HMENU menu, UINT command) {
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STATE;
    GetMenuItemInfoW(menu, command, FALSE, &item);
    return item.fState & ~static_cast<UINT>(MFS_HILITE);
}

void ce::SelectTab(HWND tabs, int index) {
    SendMessageW(tabs, TCM_SETCURSEL, static_cast<WPARAM>(index), 0);
    TCITEMW unmarked{};
    unmarked.mask = TCIF_STATE;
    unmarked.dwStateMask = TCIS_BUTTONPRESSED;
    const auto count = static_cast<int>(SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
    for (int each = 0; each < count; ++each) {
        if (each != index)
            SendMessageW(tabs, TCM_SETITEMW, static_cast<WPARAM>(each), reinterpret_cast<LPARAM>(&unmarked));
    }
}

void ce::SetPickerFormat(HWND picker, const wchar_t* format) {
    wchar_t changeable[FormatCapacity];
    SpellOutYear(format, changeable);
    SendMessageW(picker, DTM_SETFORMATW, 0, reinterpret_cast<LPARAM>(changeable));
}

void ce::SetListView(HWND list, DWORD view) {
    const LONG style = GetWindowLongW(list, GWL_STYLE);
    SetWindowLongW(list, GWL_STYLE, (style & ~LONG{LVS_TYPEMASK}) | static_cast<LONG>(view));
    if (list != nullptr) InvalidateRect(list, nullptr, TRUE);
}

UniqueFont ce::ListFont() {
    LOGFONTW description{};
    if (!SystemParametersInfoW(SPI_GETICONTITLELOGFONT, sizeof description, &description, 0)) return {};
    std::wcscpy(description.lfFaceName, L"Tahoma");
    description.lfCharSet = DEFAULT_CHARSET;
    return UniqueFont(CreateFontIndirectW(&description));
}

HFONT ce::ControlFont() {
    return static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

bool ce::TakeAltEnter(HWND list, UINT message, WPARAM key, LPARAM state) {
    if (key != VK_RETURN) return false;
    if (message != WM_SYSKEYDOWN || (state & KeyWasDown) != 0) return true;
    NMLVKEYDOWN press{};
    press.hdr = {list, static_cast<UINT_PTR>(GetDlgCtrlID(list)), static_cast<UINT>(LVN_KEYDOWN)};
    press.wVKey = VK_RETURN;
    SendMessageW(GetParent(list), WM_NOTIFY, press.hdr.idFrom, reinterpret_cast<LPARAM>(&press));
    return true;
}

UniqueImageList ce::CreateIconList(int size, int initial, int growth) {
    return UniqueImageList(ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, initial, growth));
}

int ce::FindComboEntry(HWND combo, int start, const wchar_t* text) {
    const auto count = static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));
    const auto textLength = static_cast<int>(std::wcslen(text));
    for (int step = 1; step <= count; ++step) {
        const int index = (start + step) % count;
        if (EntryBeginsWith(combo, index, text, textLength)) return index;
    }
    return CB_ERR;
}
