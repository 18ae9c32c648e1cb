// The lists that the combo boxes drop, seen and used with the pointer: wide enough for what is in them.

#include <algorithm>
#include <string>

#include "tests/hands/hands_test.h"

namespace {

constexpr const wchar_t* WideKind = L"A kind of document with a long name";

RECT WorkArea() {
    RECT area = {};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

RECT PlaceOfWindow(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return place;
}

LONG WidthOf(const RECT& place) {
    return place.right - place.left;
}

// In the letters of the program's pages, 9 points of Tahoma.
LONG WidthOfText(const std::wstring& text) {
    const HDC surface = GetDC(nullptr);
    LOGFONTW letters = {};
    letters.lfHeight = -MulDiv(9, GetDeviceCaps(surface, LOGPIXELSY), 72);
    letters.lfCharSet = DEFAULT_CHARSET;
    lstrcpyW(letters.lfFaceName, L"Tahoma");
    const HFONT font = CreateFontIndirectW(&letters);
    const HGDIOBJ before = SelectObject(surface, font);
    SIZE size = {};
    GetTextExtentPoint32W(surface, text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(surface, before);
    DeleteObject(font);
    ReleaseDC(nullptr, surface);
    return size.cx;
}

BOOL CALLBACK TakeOpenList(HWND window, LPARAM parameter) {
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    if (!IsWindowVisible(window) || lstrcmpiW(name, L"ComboLBox") != 0) return TRUE;
    *reinterpret_cast<HWND*>(parameter) = window;
    return FALSE;
}

HWND OpenList() {
    HWND list = nullptr;
    EnumWindows(TakeOpenList, reinterpret_cast<LPARAM>(&list));
    return list;
}

}  // namespace

class DroppedLists : public HandsTest {
  protected:
    // The text becomes the top entry of the list.
    void EnterName(const std::wstring& name) {
        Program().Fill(Named(name, Folder()));
        Program().FocusControl(NamePage, COMBO_NAME);
        PressKey(VK_RETURN);
        Program().WaitForEndOfSearch();
    }
    // Its place on the screen.
    RECT Drop(int page, int id) {
        Program().ShowPage(page);
        const RECT field = Program().Control(page, id).rectangle;
        ClickAt({field.right - 8, (field.top + field.bottom) / 2});
        WaitUntil("the list to open", [] { return OpenList() != nullptr; });
        Program().WaitForQueue();
        return PlaceOfWindow(OpenList());
    }
    static void Close() {
        PressKey(VK_ESCAPE);
        WaitUntil("the list to close", [] { return OpenList() == nullptr; });
    }
    // Where the screen is too narrow, it is used from edge to edge.
    static void ExpectRoomFor(const std::wstring& text, const RECT& list) {
        const RECT area = WorkArea();
        EXPECT_TRUE(list.left >= area.left && list.right <= area.right) << list.left << " to " << list.right;
        EXPECT_GE(WidthOf(list), std::min(WidthOfText(text), WidthOf(area)));
    }
};

TEST_F(DroppedLists, a_name_that_its_field_cuts_is_whole_in_the_list) {
    const std::wstring name(24, L'W');
    EnterName(name);
    ExpectRoomFor(name, Drop(NamePage, COMBO_NAME));
    Close();
}

TEST_F(DroppedLists, a_name_that_no_screen_is_wide_enough_for_gets_all_of_it) {
    const std::wstring name(250, L'W');
    EnterName(name);
    ExpectRoomFor(name, Drop(NamePage, COMBO_NAME));
    Close();
}

TEST_F(DroppedLists, every_type_is_whole) {
    RegSetValueW(HKEY_CLASSES_ROOT, L".qsw", REG_SZ, L"quorin.wide", 0);
    RegSetValueW(HKEY_CLASSES_ROOT, L"quorin.wide", REG_SZ, WideKind, 0);
    StartFresh();
    const RECT list = Drop(SizePage, COMBO_FILE_TYPE);
    bool listed = false;
    for (const std::wstring& entry : Program().Combo(SizePage, COMBO_FILE_TYPE).entries) {
        ExpectRoomFor(entry, list);
        listed |= entry.find(WideKind) != std::wstring::npos;
    }
    EXPECT_TRUE(listed);
    Close();
    RegDeleteKeyW(HKEY_CLASSES_ROOT, L".qsw");
    RegDeleteKeyW(HKEY_CLASSES_ROOT, L"quorin.wide");
    StartFresh();
}

TEST_F(DroppedLists, an_entry_is_taken_by_a_click_beside_the_field) {
    EnterName(L"other");
    EnterName(std::wstring(250, L'W'));
    const RECT list = Drop(NamePage, COMBO_NAME);
    const RECT field = Program().Control(NamePage, COMBO_NAME).rectangle;
    ASSERT_LT(list.left + 8, field.left);
    const auto height = static_cast<LONG>(SendMessageW(OpenList(), LB_GETITEMHEIGHT, 0, 0));
    // The second of the entries.
    ClickAt({list.left + 4, list.top + height + height / 2});
    EXPECT_TRUE(
        HoldsWithin(StepDeadline, [] { return Program().Control(NamePage, COMBO_NAME).text == L"other"; }));
}
