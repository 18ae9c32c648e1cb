// Everything that opens lies inside the work area, whatever opens it: lists, calendars, menus, tooltips,
// dialogs, questions and error boxes, with long names.

#include <commctrl.h>

#include <string>
#include <vector>

#include "tests/hands/hands_test.h"

namespace {

struct SeenWindow {
    HWND window;
    std::wstring className;
    RECT place;
};

struct WindowSearch {
    DWORD process;
    std::vector<SeenWindow> found;
};

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return name;
}

BOOL CALLBACK TakeVisibleWindow(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<WindowSearch*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    RECT place = {};
    GetWindowRect(window, &place);
    if (process == search.process && IsWindowVisible(window) && !IsRectEmpty(&place))
        search.found.push_back({window, ClassOf(window), place});
    return TRUE;
}

BOOL CALLBACK TakeChild(HWND window, LPARAM parameter) {
    auto& children = *reinterpret_cast<std::vector<HWND>*>(parameter);
    if (IsWindowVisible(window)) children.push_back(window);
    return TRUE;
}

RECT WorkArea() {
    RECT area = {};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

bool Holds(const RECT& area, const RECT& place) {
    return place.left >= area.left && place.top >= area.top && place.right <= area.right &&
           place.bottom <= area.bottom;
}

std::string InWords(const RECT& place) {
    return std::to_string(place.left) + ", " + std::to_string(place.top) + " to " +
           std::to_string(place.right) + ", " + std::to_string(place.bottom);
}

// 76 units, most of them wide.
const std::wstring LongName =
    L"四半期営業報告書二千八年第三四半期北支店四半期営業報告書二千八年第三四半期北支店"
    L"四半期営業報告書二千八年第三四半期北支店四半期営業報告書.qsa";

}  // namespace

class Edges : public HandsTest {
  protected:
    // The program's windows on the screen, lists of combo boxes, menus and tooltips among them.
    [[nodiscard]] static std::vector<SeenWindow> VisibleWindows() {
        WindowSearch search = {};
        GetWindowThreadProcessId(Program().Window(), &search.process);
        EnumWindows(TakeVisibleWindow, reinterpret_cast<LPARAM>(&search));
        return search.found;
    }
    [[nodiscard]] static HWND VisibleOfClass(const std::wstring& className) {
        for (const SeenWindow& seen : VisibleWindows())
            if (seen.className == className) return seen.window;
        return nullptr;
    }
    static HWND WaitForClass(const std::wstring& className) {
        WaitUntil("a window to open", [&] { return VisibleOfClass(className) != nullptr; });
        Program().WaitForQueue();
        return VisibleOfClass(className);
    }
    static void ExpectWindowsInside() {
        const RECT area = WorkArea();
        for (const SeenWindow& seen : VisibleWindows())
            EXPECT_TRUE(Holds(area, seen.place))
                << testing::PrintToString(seen.className) << " at " << InWords(seen.place);
    }
    // No control, at whatever depth, reaches beyond its parent or under the dialog's bar.
    static void ExpectControlsInside(HWND dialog) {
        std::vector<HWND> controls;
        EnumChildWindows(dialog, TakeChild, reinterpret_cast<LPARAM>(&controls));
        EXPECT_FALSE(controls.empty());
        const HWND bar = FindWindowExW(dialog, nullptr, L"QuorinMenuBar", nullptr);
        for (const HWND control : controls) {
            if (control == bar || IsChild(bar, control)) continue;
            RECT room = {};
            RECT place = {};
            GetClientRect(GetParent(control), &room);
            if (bar != nullptr && GetParent(control) == dialog) room.bottom -= 26;
            GetWindowRect(control, &place);
            MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
            EXPECT_TRUE(Holds(room, place))
                << testing::PrintToString(ClassOf(control)) << " " << GetDlgCtrlID(control) << " at "
                << InWords(place) << " in " << InWords(room);
        }
    }
    void ExpectDialogInside(const ProgramDialog& dialog) {
        ExpectWindowsInside();
        ExpectControlsInside(dialog.Window());
    }
    // The place of the button at the right end of a combo box or a date picker.
    [[nodiscard]] POINT DropButton(int page, int id) {
        const RECT place = Program().Control(page, id).rectangle;
        return {place.right - 8, (place.top + place.bottom) / 2};
    }
    void ExpectListInside(int page, int id) {
        Program().ShowPage(page);
        ClickAt(DropButton(page, id));
        WaitForClass(L"ComboLBox");
        ExpectWindowsInside();
        PressKey(VK_ESCAPE);
        WaitUntil("the list to close", [] { return VisibleOfClass(L"ComboLBox") == nullptr; });
    }
    RECT DropCalendar(int picker) {
        Program().ShowPage(DatePage);
        ClickAt(PlaceOf(DatePage, RADIO_BETWEEN));
        WaitUntil("the picker", [&] { return Program().Control(DatePage, picker).enabled; });
        ClickAt(DropButton(DatePage, picker));
        RECT place = {};
        GetWindowRect(WaitForClass(L"SysMonthCal32"), &place);
        return place;
    }
    // There may be no place beside it.
    static void CloseCalendar() {
        PressKey(VK_ESCAPE);
        WaitUntil("the calendar to close", [] { return VisibleOfClass(L"SysMonthCal32") == nullptr; });
    }
    void FindLongName() {
        AddFile(LongName);
        Find();
        SelectRow(LongName);
    }
};

TEST_F(Edges, the_lists_of_the_name_page_lie_inside) {
    for (int entry = 0; entry < 9; ++entry) {
        Program().Fill(Named(std::wstring(60, static_cast<wchar_t>(L'a' + entry)), Folder()));
        Program().FocusControl(NamePage, COMBO_NAME);
        PressKey(VK_RETURN);
        Program().WaitForEndOfSearch();
    }
    ExpectListInside(NamePage, COMBO_NAME);
    ExpectListInside(NamePage, COMBO_LOCATION);
}

TEST_F(Edges, the_lists_of_the_page_etc_lie_inside) {
    ExpectListInside(SizePage, COMBO_FILE_TYPE);
    ExpectListInside(SizePage, COMBO_FILE_SIZE);
}

TEST_F(Edges, the_calendars_and_their_list_of_months_lie_inside) {
    for (const int picker : {PICKER_FROM, PICKER_TO}) {
        const RECT calendar = DropCalendar(picker);
        ExpectWindowsInside();
        // The month is named before the year in English and behind it in Japanese.
        const LONG side = World().japaneseSystem ? 14 : -20;
        ClickAt({(calendar.left + calendar.right) / 2 + side, calendar.top + 12});
        WaitForClass(L"#32768");
        ExpectWindowsInside();
        CloseMenus();
        CloseCalendar();
    }
}

TEST_F(Edges, a_day_of_the_next_month_is_picked_with_the_pointer) {
    for (const int picker : {PICKER_FROM, PICKER_TO}) {
        const int month = Program().Picker(DatePage, picker).time.wMonth;
        const RECT calendar = DropCalendar(picker);
        ClickAt({calendar.right - 16, calendar.top + 12});
        Program().WaitForQueue();
        // A day in the middle of the month.
        ClickAt({(calendar.left + calendar.right) / 2, (calendar.top + 2 * calendar.bottom) / 3});
        EXPECT_TRUE(HoldsWithin(
            StepDeadline, [&] { return Program().Picker(DatePage, picker).time.wMonth == month % 12 + 1; }));
        CloseCalendar();
    }
}

TEST_F(Edges, menus_lie_inside_by_pointer_and_by_keys) {
    for (const MenuIndex menu : {FileMenu, ViewMenu, OptionMenu}) {
        OpenMenuByPointer(menu);
        ExpectWindowsInside();
        CloseMenus();
        OpenMenuByKeys(menu);
        ExpectWindowsInside();
        CloseMenus();
    }
}

TEST_F(Edges, the_about_box_lies_inside) {
    PressKey(VK_F1);
    ExpectDialogInside(Dialog());
    PressKey(VK_ESCAPE);
}

TEST_F(Edges, the_folder_browser_lies_inside) {
    ClickAt(PlaceOf(NamePage, BUTTON_BROWSE));
    ExpectDialogInside(Dialog());
    PressKey(VK_ESCAPE);
}

TEST_F(Edges, the_tooltips_of_a_dialogs_bar_lie_inside) {
    ClickAt(PlaceOf(NamePage, BUTTON_BROWSE));
    const ProgramDialog browser = Dialog();
    for (const int button : {IDCANCEL, IDOK}) {
        MovePointerTo(PlaceOfDialogButton(browser.Window(), button));
        WaitForClass(TOOLTIPS_CLASSW);
        ExpectWindowsInside();
        // Away from the bar, so that the next one is a new one.
        MovePointerTo(CentreOf(browser.Place()));
        WaitUntil("the tooltip to go", [] { return VisibleOfClass(TOOLTIPS_CLASSW) == nullptr; });
    }
    PressKey(VK_ESCAPE);
}

TEST_F(Edges, the_boxes_about_a_name_that_is_taken_lie_inside) {
    AddFile(L"taken.qsb");
    FindLongName();
    PostMessageW(Program().Window(), WM_COMMAND, COMMAND_RENAME, 0);
    WaitUntil("the edit of the name", [] { return ClassOf(FocusWindow()) == L"Edit"; });
    TypeText(L"taken.qsb");
    PressKey(VK_RETURN);
    // The failed move, and that the name could not be changed.
    for (int box = 0; box < 2; ++box) {
        const ProgramDialog error = Dialog();
        EXPECT_EQ(error.Caption(), Shown(L"Error", L"ｴﾗｰ"));
        ExpectDialogInside(error);
        PressKey(VK_RETURN);
        WaitUntil("the box to close", [&] { return !IsWindow(error.Window()); });
    }
}

TEST_F(Edges, the_properties_of_a_long_name_lie_inside) {
    FindLongName();
    ClickBarButton(COMMAND_PROPERTIES);
    const ProgramDialog sheet = Dialog();
    ExpectDialogInside(sheet);
    PressKey(VK_ESCAPE);
}

TEST_F(Edges, the_properties_of_a_shortcut_lie_inside) {
    const std::wstring target = L"\\" + std::wstring(76, L'W');
    AddShortcut(L"s.lnk", target);
    Find();
    SelectRow(L"s.lnk");
    ClickBarButton(COMMAND_PROPERTIES);
    const ProgramDialog sheet = Dialog();
    ASSERT_EQ(sheet.PageCount(), 2);
    sheet.TurnTo(1);
    ASSERT_EQ(sheet.Text(EDIT_TARGET), target);
    ExpectDialogInside(sheet);
    PressKey(VK_ESCAPE);
}

TEST_F(Edges, the_question_about_deleting_a_long_name_lies_inside) {
    FindLongName();
    PostMessageW(Program().Window(), WM_COMMAND, COMMAND_DELETE, 0);
    const ProgramDialog question = Dialog();
    ExpectDialogInside(question);
    question.Press(IDNO);
}

TEST_F(Edges, the_finding_dialog_lies_inside) {
    Program().BringForward();
    Program().Fill(Where(L"\\", true));
    ASSERT_TRUE(Program().FindAndHold(0));
    ExpectDialogInside(Dialog());
    Program().Release();
    Program().WaitForEndOfSearch();
}
