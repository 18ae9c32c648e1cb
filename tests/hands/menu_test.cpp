// The menu bar: its menus and buttons, taken with pointer and keys.

#include <commctrl.h>

#include "tests/hands/hands_test.h"

class Menus : public HandsTest {
  protected:
    [[nodiscard]] bool CaseIsChecked() { return Program().MenuItem(COMMAND_CHECK_CASE).Checked(); }
};

TEST_F(Menus, a_search_ignores_case_after_the_option_was_unticked_with_the_pointer) {
    AddFile(L"a.txt", "one TWO three");
    OpenMenuByPointer(OptionMenu);
    ClickMenuItem(COMMAND_CHECK_CASE);
    Program().WaitForQueue();
    ASSERT_FALSE(CaseIsChecked());
    EXPECT_EQ(NamesFoundBy(Containing(L"two", Folder())), (Names{L"a.txt"}));
}

TEST_F(Menus, a_highlight_that_was_left_on_the_unticked_option_changes_nothing) {
    AddFile(L"a.txt", "one TWO three");
    Program().SendMenuCommand(COMMAND_CHECK_CASE);
    OpenMenuByPointer(OptionMenu);
    MovePointerTo(CentreOf(Program().MenuItem(COMMAND_CHECK_CASE).rectangle));
    CloseMenus();
    ASSERT_FALSE(CaseIsChecked());
    EXPECT_EQ(NamesFoundBy(Containing(L"two", Folder())), (Names{L"a.txt"}));
}

TEST_F(Menus, a_search_ignores_case_after_the_option_was_unticked_with_keys) {
    AddFile(L"a.txt", "one TWO three");
    OpenMenuByKeys(OptionMenu);
    TakeMenuItemByKeys(COMMAND_CHECK_CASE);
    Program().WaitForQueue();
    ASSERT_FALSE(CaseIsChecked());
    EXPECT_EQ(NamesFoundBy(Containing(L"two", Folder())), (Names{L"a.txt"}));
}

TEST_F(Menus, left_and_right_go_from_menu_to_menu_while_the_pointer_rests_on_a_bar_button) {
    OpenMenuByPointer(FileMenu);
    CloseMenus();
    OpenMenuByKeys(OptionMenu);
    CloseMenus();
}

TEST_F(Menus, a_pointer_that_rests_where_a_menu_opens_marks_none_of_its_items) {
    OpenMenuByPointer(FileMenu);
    const RECT item = Program().MenuItem(COMMAND_EXIT).rectangle;
    CloseMenus();
    MovePointerTo(CentreOf(item));
    OpenMenuByKeys(FileMenu);
    TellPointerAgain(CentreOf(item));
    EXPECT_FALSE(
        HoldsWithin(400, [&] { return (Program().MenuItem(COMMAND_EXIT).state & MFS_HILITE) != 0; }));
    CloseMenus();
}

TEST_F(Menus, the_pointer_goes_from_menu_to_menu_and_a_click_on_the_open_ones_button_closes_it) {
    const auto isOpen = [&](UINT command) {
        const RECT place = Program().MenuItem(command).rectangle;
        return !IsRectEmpty(&place);
    };
    // A hand is never quite still, and goes on until the menu follows.
    const auto followsTo = [&](int button, UINT command) {
        return HoldsWithin(StepDeadline, [&] {
            if (isOpen(command)) return true;
            GlidePointerTo(PlaceOfBarButton(button));
            Sleep(200);
            return isOpen(command);
        });
    };
    OpenMenuByPointer(FileMenu);
    EXPECT_TRUE(followsTo(OptionButton, COMMAND_CHECK_CASE));
    EXPECT_TRUE(followsTo(ViewButton, COMMAND_DETAILS));
    ClickAt(PlaceOfBarButton(ViewButton));
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return !IsMenuOpen(); }));
    EXPECT_FALSE(HoldsWithin(400, [] { return IsMenuOpen(); }));
}

TEST_F(Menus, a_pointer_that_rests_on_a_bar_button_or_passes_it_does_nothing) {
    Program().FocusControl(NamePage, EDIT_CONTENT);
    const int searches = Program().SearchesBegun();
    for (const ButtonState& button : Program().Bar())
        RestPointerAt(CentreOf(button.rectangle), 900);
    EXPECT_FALSE(IsMenuOpen());
    EXPECT_TRUE(NoDialogOpen());
    EXPECT_EQ(Program().SearchesBegun(), searches);
    EXPECT_TRUE(Program().HasFocus(NamePage, EDIT_CONTENT));
}

TEST_F(Menus, the_find_and_properties_buttons_do_their_work) {
    AddFile(L"a.qsa");
    Program().Fill(Where(Folder()));
    ClickBarButton(COMMAND_FIND);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().RowNames() == Names{L"a.qsa"}; }));
    Program().WaitForEndOfSearch();
    ClickBarButton(COMMAND_PROPERTIES);
    EXPECT_EQ(Dialog().Text(STATIC_TYPE), L"Alpha kind");
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return NoDialogOpen(); }));
}

// Every item of every menu, once by the pointer and once by keys.
class MenuItems : public Menus {
  protected:
    enum class Way { Pointer, Keys };

    void Take(Way way, MenuIndex menu, UINT command) {
        if (way == Way::Pointer) {
            OpenMenuByPointer(menu);
            ClickMenuItem(command);
        } else {
            OpenMenuByKeys(menu);
            TakeMenuItemByKeys(command);
        }
        if (command != COMMAND_EXIT) Program().WaitForQueue();
    }
    void LeaveDialog() {
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return NoDialogOpen(); }));
    }
    [[nodiscard]] bool ShowsView(DWORD view, UINT command) {
        return HoldsWithin(StepDeadline, [&] {
            return (Program().List().style & LVS_TYPEMASK) == view &&
                   Program().MenuItem(command).RadioMarked();
        });
    }

    void TakeEachOnARow(Way way) {
        AddFile(L"a.qsa");
        Find();
        Take(way, FileMenu, COMMAND_OPEN);
        EXPECT_EQ(Started(1).size(), 1u);
        Program().BringForward();

        Take(way, FileMenu, COMMAND_DELETE);
        EXPECT_EQ(Dialog().Caption(), Shown(L"Confirm File Delete", L"ﾌｧｲﾙの削除の確認"));
        LeaveDialog();
        EXPECT_TRUE(Stands(L"a.qsa"));

        Take(way, FileMenu, COMMAND_RENAME);
        EXPECT_TRUE(NameIsEdited()) << testing::PrintToString(Program().FocusPath());
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().ListHasFocus(); }));

        Take(way, FileMenu, COMMAND_PROPERTIES);
        EXPECT_EQ(Dialog().Text(STATIC_TYPE), L"Alpha kind");
        LeaveDialog();
    }
    void TakeEachOther(Way way) {
        Take(way, ViewMenu, COMMAND_LARGE_ICON);
        EXPECT_TRUE(ShowsView(LVS_ICON, COMMAND_LARGE_ICON));
        Take(way, ViewMenu, COMMAND_SMALL_ICON);
        EXPECT_TRUE(ShowsView(LVS_SMALLICON, COMMAND_SMALL_ICON));
        Take(way, ViewMenu, COMMAND_DETAILS);
        EXPECT_TRUE(ShowsView(LVS_REPORT, COMMAND_DETAILS));

        Take(way, ViewMenu, COMMAND_ABOUT);
        EXPECT_EQ(Dialog().Caption(), Shown(L"About", L"ﾊﾞｰｼﾞｮﾝ情報"));
        LeaveDialog();

        for (const bool checked : {false, true}) {
            Take(way, OptionMenu, COMMAND_CHECK_CASE);
            EXPECT_EQ(CaseIsChecked(), checked);
        }

        Program().Fill(Named(L"x", L"\\names"));
        Take(way, OptionMenu, COMMAND_NEW_CONDITION);
        EXPECT_EQ(Program().Control(NamePage, COMBO_NAME).text, L"");
        EXPECT_EQ(Program().Control(NamePage, COMBO_LOCATION).text, L"");

        Take(way, FileMenu, COMMAND_EXIT);
        EXPECT_EQ(Program().WaitForEnd(), 0u);
    }
};

TEST_F(MenuItems, of_a_row_do_their_work_by_pointer) {
    TakeEachOnARow(Way::Pointer);
}

TEST_F(MenuItems, of_a_row_do_their_work_by_keys) {
    TakeEachOnARow(Way::Keys);
}

TEST_F(MenuItems, that_need_no_row_do_their_work_by_pointer) {
    TakeEachOther(Way::Pointer);
}

TEST_F(MenuItems, that_need_no_row_do_their_work_by_keys) {
    TakeEachOther(Way::Keys);
}

TEST_F(MenuItems, that_are_grey_do_nothing_when_they_are_clicked) {
    Find(L"nothing has this name");
    struct Grey {
        MenuIndex menu;
        UINT command;
    };
    for (const Grey& grey :
         {Grey{FileMenu, COMMAND_OPEN}, Grey{FileMenu, COMMAND_DELETE}, Grey{FileMenu, COMMAND_RENAME},
          Grey{FileMenu, COMMAND_PROPERTIES}, Grey{OptionMenu, COMMAND_SAVE_RESULT}}) {
        OpenMenuByPointer(grey.menu);
        ClickAt(CentreOf(Program().MenuItem(grey.command).rectangle));
        Program().WaitForQueue();
        EXPECT_TRUE(Program().MenuItem(grey.command).Grayed());
        CloseMenus();
        EXPECT_TRUE(NoDialogOpen()) << "command " << grey.command;
    }
    EXPECT_TRUE(NothingStarted());
}
