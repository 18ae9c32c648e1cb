// The list of results: its headings, rows and keys, and the name that is being edited while something else is
// done.

#include <commctrl.h>

#include <functional>
#include <utility>

#include "tests/hands/hands_test.h"

// Longer than two clicks of a double click are apart.
constexpr DWORD Pause = 900;

class ListInHands : public HandsTest {
  protected:
    void SetUp() override {
        HandsTest::SetUp();
        AddFile(L"a.qsa", "of a");
        AddFile(L"b.qsb", "of b");
        AddFile(L"c.qsc", "of c");
        constexpr WPARAM FarLeft = static_cast<WPARAM>(-2000);
        SendMessageW(List(), LVM_SCROLL, FarLeft, 0);
        Find();
    }
    [[nodiscard]] HWND List() { return FindWindowExW(Program().Window(), nullptr, WC_LISTVIEWW, nullptr); }
    [[nodiscard]] HWND Edit() { return FindWindowExW(List(), nullptr, WC_EDITW, nullptr); }
    // Begins the editing of the row by the menu and types a name.
    void Type(const std::wstring& row, const std::wstring& name) {
        SelectRow(row);
        OpenMenuByPointer(FileMenu);
        ClickMenuItem(COMMAND_RENAME);
        WaitUntil("the name's edit", [&] { return Edit() != nullptr && FocusWindow() == Edit(); });
        TypeText(name);
        WaitUntil("the name to be typed", [&] {
            wchar_t text[MAX_PATH] = L"";
            SendMessageW(Edit(), WM_GETTEXT, MAX_PATH, reinterpret_cast<LPARAM>(text));
            return text == name;
        });
    }
    // The file a.qsa, and no other, has the new name on the disk and in the list.
    void ExpectRenamed(const std::wstring& name) {
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Edit() == nullptr; }));
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] {
            return Sorted(Program().RowNames()) == Sorted({name, L"b.qsb", L"c.qsc"});
        })) << testing::PrintToString(Program().RowNames());
        EXPECT_EQ(ContentOf(name), "of a");
        EXPECT_EQ(ContentOf(L"b.qsb"), "of b");
        EXPECT_EQ(ContentOf(L"c.qsc"), "of c");
        EXPECT_FALSE(Stands(L"a.qsa"));
    }
    [[nodiscard]] bool RowsBecome(const Names& names) {
        return HoldsWithin(StepDeadline, [&] { return Program().RowNames() == names; });
    }
    [[nodiscard]] RECT ListPlace() {
        RECT place = {};
        GetClientRect(List(), &place);
        MapWindowPoints(List(), nullptr, reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    static bool Lies(const RECT& inner, const RECT& outer) {
        return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
               inner.bottom <= outer.bottom;
    }
};

TEST_F(ListInHands, a_click_on_a_heading_takes_the_name_being_edited_for_its_own_file) {
    StartFresh();
    Program().BringForward();
    Find();
    Type(L"a.qsa", L"z.qsa");
    ClickHeading(0);
    ExpectRenamed(L"z.qsa");
    // The first click on the remembered column turns the order round.
    EXPECT_TRUE(RowsBecome({L"z.qsa", L"c.qsc", L"b.qsb"}));
}

TEST_F(ListInHands, the_delete_command_asks_about_the_file_under_its_new_name) {
    Type(L"a.qsa", L"z.qsa");
    OpenMenuByPointer(FileMenu);
    ClickMenuItem(COMMAND_DELETE);
    const ProgramDialog question = Dialog();
    EXPECT_TRUE(question.HasText(
        Shown(L"Are you sure you want to delete 'z.qsa'?", L"'z.qsa' を削除してもよろしいですか?")));
    PressKey('N');
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return NoDialogOpen(); }));
    ExpectRenamed(L"z.qsa");
}

TEST_F(ListInHands, the_properties_show_the_file_under_its_new_name) {
    Type(L"a.qsa", L"z.qsa");
    ClickBarButton(COMMAND_PROPERTIES);
    const ProgramDialog sheet = Dialog();
    EXPECT_EQ(sheet.Text(STATIC_TYPE), L"Alpha kind");
    EXPECT_EQ(sheet.Text(STATIC_SIZE), L"0.0KB (4 bytes)");
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return NoDialogOpen(); }));
    ExpectRenamed(L"z.qsa");
}

TEST_F(ListInHands, the_open_command_opens_the_file_under_its_new_name) {
    Type(L"a.qsa", L"z.qsa");
    OpenMenuByPointer(FileMenu);
    ClickMenuItem(COMMAND_OPEN);
    EXPECT_NE(std::wstring::npos, Started(1).at(0).find(L"z.qsa"));
    ExpectRenamed(L"z.qsa");
}

TEST_F(ListInHands, a_search_takes_the_name_being_edited_first) {
    Type(L"a.qsa", L"z.qsa");
    const int before = Program().SearchesBegun();
    ClickBarButton(COMMAND_FIND);
    WaitUntil("the search to begin", [&] { return Program().SearchesBegun() > before; });
    Program().WaitForEndOfSearch();
    ExpectRenamed(L"z.qsa");
}

TEST_F(ListInHands, a_change_of_the_view_takes_the_name_being_edited_first) {
    Type(L"a.qsa", L"z.qsa");
    OpenMenuByPointer(ViewMenu);
    ClickMenuItem(COMMAND_LARGE_ICON);
    ExpectRenamed(L"z.qsa");
    OpenMenuByPointer(ViewMenu);
    ClickMenuItem(COMMAND_DETAILS);
    EXPECT_TRUE(
        HoldsWithin(StepDeadline, [&] { return (Program().List().style & LVS_TYPEMASK) == LVS_REPORT; }));
}

TEST_F(ListInHands, about_a_click_elsewhere_and_another_page_take_the_name_being_edited) {
    Type(L"a.qsa", L"z.qsa");
    PressKey(VK_F1);
    EXPECT_EQ(Dialog().Caption(), Shown(L"About", L"ﾊﾞｰｼﾞｮﾝ情報"));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return NoDialogOpen(); }));
    ExpectRenamed(L"z.qsa");
    Type(L"z.qsa", L"y.qsa");
    ClickAt(CentreOf(Program().Tabs().at(1).rectangle));
    ExpectRenamed(L"y.qsa");
}

TEST_F(ListInHands, the_end_of_the_program_takes_the_name_being_edited) {
    Type(L"a.qsa", L"z.qsa");
    PressKey('Q', {VK_CONTROL});
    EXPECT_EQ(Program().WaitForEnd(), 0u);
    EXPECT_TRUE(Stands(L"z.qsa"));
    EXPECT_FALSE(Stands(L"a.qsa"));
}

TEST_F(ListInHands, a_second_click_on_a_name_edits_it_but_not_behind_a_dialog) {
    ClickAt(PlaceOf(L"a.qsa"));
    Sleep(Pause);
    if (Edit() == nullptr) ClickAt(PlaceOf(L"a.qsa"));
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Edit() != nullptr; }));
    PressKey(VK_ESCAPE);
    WaitUntil("the editing to end", [&] { return Edit() == nullptr; });
    Sleep(Pause);
    ClickAt(PlaceOf(L"a.qsa"));
    ClickBarButton(COMMAND_PROPERTIES);
    EXPECT_EQ(Dialog().Text(STATIC_TYPE), L"Alpha kind");
    Sleep(Pause);
    EXPECT_EQ(Edit(), nullptr);
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return NoDialogOpen(); }));
    EXPECT_EQ(Edit(), nullptr);
}

TEST_F(ListInHands, a_click_on_the_selected_name_edits_nothing_after_a_key_a_menu_or_a_search) {
    const std::pair<const char*, std::function<void()>> overtaking[] = {
        {"a key", [] { PressKey(VK_RIGHT); }},
        {"a key for the menus", [] { PressKey(VK_F10); }},
        {"an open menu", [this] { OpenMenuByPointer(FileMenu); }},
        {"a closed menu",
         [this] {
             OpenMenuByPointer(FileMenu);
             CloseMenus();
         }},
        {"a search", [this] { Find(); }},
        {"a dialog",
         [this] {
             PressKey(VK_F1);
             const HWND about = Dialog().Window();
             PressKey(VK_ESCAPE);
             WaitUntil("the About box to close", [about] { return !IsWindow(about); });
         }},
        {"the file being opened", [] { PressKey(VK_RETURN); }},
    };
    SelectRow(L"a.qsa");
    for (const auto& [name, act] : overtaking) {
        Program().BringForward();
        ClickAt(PlaceOf(L"a.qsa"));
        act();
        Sleep(Pause);
        EXPECT_EQ(Edit(), nullptr) << name;
        CloseMenus();
        Sleep(Pause);
        EXPECT_EQ(Edit(), nullptr) << name << ", later";
        if (HasFailure()) return;
        SelectRow(L"a.qsa");
    }
}

TEST_F(ListInHands, escape_after_a_look_into_a_menu_still_gives_the_editing_up) {
    Type(L"a.qsa", L"z.qsa");
    OpenMenuByPointer(FileMenu);
    CloseMenus();
    EXPECT_NE(nullptr, Edit());
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Edit() == nullptr; }));
    EXPECT_TRUE(Stands(L"a.qsa"));
    EXPECT_FALSE(Stands(L"z.qsa"));
}

TEST_F(ListInHands, the_wheel_over_the_list_takes_the_name_being_edited_for_its_own_file) {
    for (int i = 0; i < 40; ++i)
        AddFile(L"more" + std::to_wstring(i) + L".qsb");
    Find();
    Type(L"a.qsa", L"z.qsa");
    TurnWheelAt(CentreOf(ListPlace()), -3);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Edit() == nullptr; }));
    EXPECT_EQ(ContentOf(L"z.qsa"), "of a");
    EXPECT_FALSE(Stands(L"a.qsa"));
}

TEST_F(ListInHands, the_first_row_is_in_sight_after_every_search) {
    for (int i = 0; i < 60; ++i)
        AddFile(L"more" + std::to_wstring(i) + L".qsb");
    for (int search = 0; search < 2; ++search) {
        Find();
        EXPECT_EQ(Program().List().selected, 0);
        const std::vector<RowState> rows = Program().Rows();
        EXPECT_TRUE(Lies(rows.at(0).label, ListPlace())) << "search " << search;
        WaitUntil("the focus on the list", [&] { return Program().ListHasFocus(); });
        PressKey(VK_END);
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().List().focused > 50; }));
    }
}

TEST_F(ListInHands, a_rename_in_a_list_that_is_scrolled_sideways_shows_its_edit) {
    Program().SelectRow(0);
    for (int press = 0; press < 8; ++press)
        PressKey(VK_RIGHT);
    // A wide screen shows every column, and nothing scrolls.
    const bool scrolls = World().screenWidth < 500;
    WaitUntil("the list to scroll",
              [&] { return !scrolls || Program().Columns().at(0).rectangle.right < 0; });
    OpenMenuByKeys(FileMenu);
    TakeMenuItemByKeys(COMMAND_RENAME);
    WaitUntil("the name's edit", [&] { return Edit() != nullptr; });
    TypeText(std::wstring(120, L'w') + L".qsa");
    Program().WaitForQueue();
    Sleep(200);
    RECT place = {};
    GetWindowRect(Edit(), &place);
    EXPECT_TRUE(Lies(place, ListPlace())) << place.left << " to " << place.right;
    PressKey(VK_ESCAPE);
}

TEST_F(ListInHands, left_and_right_bring_every_column_into_view) {
    Program().SelectRow(0);
    const auto isInView = [&](std::size_t column) {
        const RECT heading = Program().Columns().at(column).rectangle;
        const RECT list = ListPlace();
        return heading.left >= list.left && heading.right <= list.right;
    };
    const auto pressUntil = [&](WORD key, std::size_t column) {
        for (int press = 0; press < 20 && !isInView(column); ++press) {
            PressKey(key);
            Program().WaitForQueue();
        }
        return isInView(column);
    };
    for (const std::size_t column : {1u, 2u, 3u, 4u})
        EXPECT_TRUE(pressUntil(VK_RIGHT, column)) << "column " << column;
    EXPECT_TRUE(pressUntil(VK_LEFT, 0));
    EXPECT_EQ(Program().List().selected, 0);
}

TEST_F(ListInHands, a_double_click_opens_a_row_and_with_alt_its_properties) {
    DoubleClickAt(PlaceOf(L"b.qsb"));
    EXPECT_NE(std::wstring::npos, Started(1).at(0).find(L"b.qsb"));
    Program().BringForward();
    DoubleClickAt(PlaceOf(L"c.qsc"), {VK_MENU});
    EXPECT_EQ(Dialog().Text(STATIC_TYPE), L"Gamma kind");
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return NoDialogOpen(); }));
    EXPECT_EQ(Started(1).size(), 1u);
}
