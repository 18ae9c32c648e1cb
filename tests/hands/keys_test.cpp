// Keys that are pressed many times, held, or pressed at the wrong moment.

#include <commctrl.h>

#include "tests/hands/hands_test.h"

namespace {

// Longer than the presses of a hand that hurries.
constexpr DWORD Pause = 900;

}  // namespace

class Keys : public HandsTest {
  protected:
    // A search of about a second: few entries, each with much to read.
    void PrepareSlowSearch() {
        constexpr int Files = 60;
        constexpr long long FileSize = 24LL << 20;
        for (int i = 0; i < Files; ++i)
            Tree().AddFileOfSize(Path(L"slow" + std::to_wstring(100 + i) + L".qsa").substr(1), FileSize);
        AddFile(L"zlast.qsa", "needle");
        Program().Fill(Containing(L"needle", Folder()));
    }
    void BeginByEnter() {
        const int before = Program().SearchesBegun();
        Program().FocusControl(NamePage, EDIT_CONTENT);
        PressKey(VK_RETURN);
        WaitUntil("the search to begin", [&] { return Program().SearchesBegun() > before; });
    }
    void ExpectSlowSearchWhole() {
        Program().WaitForEndOfSearch();
        EXPECT_EQ(Program().RowNames(), (Names{L"zlast.qsa"}));
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().ListHasFocus(); }));
    }
    [[nodiscard]] bool ListIsOpen(int id) {
        const HWND combo = GetAncestor(FocusWindow(), GA_PARENT);
        return GetDlgCtrlID(combo) == id && SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0;
    }
    [[nodiscard]] bool NoMenuOpens() {
        return !HoldsWithin(600, [] { return IsMenuOpen(); });
    }
};

TEST_F(Keys, enter_pressed_many_times_in_a_field_starts_one_search_and_opens_nothing) {
    AddFile(L"a.qsa");
    Program().Fill(Where(Folder()));
    const int before = Program().SearchesBegun();
    Program().FocusControl(NamePage, COMBO_NAME);
    for (int press = 0; press < 6; ++press) {
        PressKey(VK_RETURN);
        Sleep(60);
    }
    EXPECT_TRUE(NothingStarted());
    EXPECT_EQ(Program().SearchesBegun(), before + 1);
    EXPECT_EQ(Program().RowNames(), (Names{L"a.qsa"}));
}

TEST_F(Keys, enter_held_in_a_field_starts_one_search_and_opens_nothing) {
    AddFile(L"a.qsa");
    Program().Fill(Where(Folder()));
    for (const int field : {COMBO_NAME, EDIT_CONTENT, COMBO_LOCATION}) {
        const int before = Program().SearchesBegun();
        Program().FocusControl(NamePage, field);
        for (int time = 0; time < 30; ++time) {
            HoldKey(VK_RETURN);
            Sleep(30);
        }
        ReleaseKey(VK_RETURN);
        EXPECT_TRUE(NothingStarted());
        EXPECT_EQ(Program().SearchesBegun(), before + 1);
    }
}

TEST_F(Keys, enter_in_the_middle_of_a_search_aborts_nothing) {
    PrepareSlowSearch();
    BeginByEnter();
    for (int press = 0; press < 3; ++press)
        PressKey(VK_RETURN);
    RepeatKey(VK_RETURN, 10);
    ExpectSlowSearchWhole();
    EXPECT_TRUE(NothingStarted());
}

TEST_F(Keys, escape_and_space_in_the_middle_of_a_search_abort_it) {
    PrepareSlowSearch();
    for (const int key : {VK_ESCAPE, VK_SPACE}) {
        BeginByEnter();
        PressKey(static_cast<WORD>(key));
        Program().WaitForEndOfSearch();
        EXPECT_EQ(Program().RowNames(), (Names{})) << "key " << key;
    }
}

TEST_F(Keys, other_keys_in_the_middle_of_a_search_do_nothing_then_or_later) {
    PrepareSlowSearch();
    BeginByEnter();
    TypeText(L"x1");
    for (const int key : {VK_F1, VK_F10, VK_TAB, VK_DOWN, VK_RIGHT, VK_DELETE, VK_CANCEL, VK_MENU, VK_F10})
        PressKey(static_cast<WORD>(key));
    PressKey('Q', {VK_CONTROL});
    PressKey('2', {VK_CONTROL});
    PressKey('F', {VK_MENU});
    PressKey(VK_RETURN, {VK_MENU});
    PressKey(VK_DOWN, {VK_MENU});
    ExpectSlowSearchWhole();
    EXPECT_TRUE(NoMenuOpens());
    EXPECT_TRUE(NoDialogOpen());
    EXPECT_TRUE(Program().IsRunning());
    EXPECT_EQ(Program().Control(NamePage, EDIT_CONTENT).text, L"needle");
    EXPECT_EQ(Program().List().selected, 0);
}

TEST_F(Keys, enter_in_the_list_opens_the_file_once_however_long_it_is_held) {
    AddFile(L"a.qsa");
    Find();
    Program().SelectRow(0);
    Sleep(Pause);
    for (int time = 0; time < 20; ++time) {
        HoldKey(VK_RETURN);
        Sleep(30);
    }
    ReleaseKey(VK_RETURN);
    EXPECT_EQ(Started(1).size(), 1u);
    Program().BringForward();
    Sleep(Pause);
    EXPECT_EQ(Started(1).size(), 1u);
}

TEST_F(Keys, enter_in_the_list_opens_the_file_some_time_after_a_search_by_enter) {
    AddFile(L"a.qsa");
    Program().Fill(Where(Folder()));
    BeginByEnter();
    Program().WaitForEndOfSearch();
    Sleep(Pause);
    PressKey(VK_RETURN);
    EXPECT_EQ(Started(1).size(), 1u);
}

TEST_F(Keys, alt_and_enter_without_a_row_open_neither_properties_nor_a_menu) {
    Find(L"nothing has this name");
    ASSERT_EQ(Program().List().count, 0);
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().ListHasFocus(); }));
    PressKey(VK_RETURN, {VK_MENU});
    EXPECT_TRUE(NoMenuOpens());
    EXPECT_TRUE(NoDialogOpen());
    EXPECT_TRUE(Program().ListHasFocus());
}

TEST_F(Keys, alt_and_down_open_the_list_of_a_combo_box_and_no_menu) {
    for (const int field : {COMBO_NAME, COMBO_LOCATION}) {
        Program().FocusControl(NamePage, field);
        PressKey(VK_DOWN, {VK_MENU});
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return ListIsOpen(field); }));
        EXPECT_TRUE(NoMenuOpens());
        EXPECT_TRUE(ListIsOpen(field));
        PressKey(VK_UP, {VK_MENU});
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return !ListIsOpen(field); }));
        EXPECT_TRUE(NoMenuOpens());
    }
}

TEST_F(Keys, alt_alone_and_f10_open_the_first_menu_and_escape_gives_the_focus_back) {
    Program().FocusControl(NamePage, EDIT_CONTENT);
    for (const int key : {VK_MENU, VK_F10}) {
        PressKey(static_cast<WORD>(key));
        EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return IsMenuOpen(); })) << "key " << key;
        CloseMenus();
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().HasFocus(NamePage, EDIT_CONTENT); }));
    }
}

TEST_F(Keys, alt_after_a_key_that_it_was_held_for_opens_the_menu_again) {
    Program().FocusControl(NamePage, COMBO_NAME);
    PressKey(VK_DOWN, {VK_MENU});
    PressKey(VK_DOWN, {VK_MENU});
    ASSERT_TRUE(NoMenuOpens());
    PressKey(VK_MENU);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return IsMenuOpen(); }));
    CloseMenus();
}

TEST_F(Keys, ctrl_and_break_leave_every_page_as_it_is) {
    struct Place {
        int page, control;
    };
    constexpr Place Places[] = {{NamePage, COMBO_NAME},       {NamePage, EDIT_CONTENT},
                                {NamePage, CHECK_SUBFOLDERS}, {DatePage, RADIO_ALL_FILES},
                                {SizePage, COMBO_FILE_TYPE},  {SizePage, EDIT_KILOBYTES}};
    for (const Place& place : Places) {
        if (Program().CurrentPage() != place.page) Program().ShowPage(place.page);
        Program().FocusControl(place.page, place.control);
        for (const int key : {VK_CANCEL, VK_ESCAPE}) {
            PressKey(static_cast<WORD>(key), {VK_CONTROL});
            Program().WaitForQueue();
            EXPECT_TRUE(Program().Control(place.page, place.control).visible) << "control " << place.control;
            EXPECT_TRUE(Program().HasFocus(place.page, place.control)) << "control " << place.control;
        }
    }
}

TEST_F(Keys, escape_in_the_main_window_changes_nothing) {
    AddFile(L"a.qsa");
    Program().Fill(Named(L"a*", Folder()));
    for (const int field : {COMBO_NAME, EDIT_CONTENT, COMBO_LOCATION, BUTTON_BROWSE, CHECK_SUBFOLDERS}) {
        Program().FocusControl(NamePage, field);
        PressKey(VK_ESCAPE);
        Program().WaitForQueue();
        EXPECT_TRUE(Program().HasFocus(NamePage, field)) << "control " << field;
    }
    EXPECT_EQ(Program().Control(NamePage, COMBO_NAME).text, L"a*");
    Program().FocusTab();
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(Program().TabHasFocus());
    EXPECT_TRUE(Program().IsRunning());
}

TEST_F(Keys, tab_goes_through_the_page_from_the_tabs_in_both_directions) {
    Program().FocusTab();
    PressKey(VK_TAB);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().HasFocus(NamePage, COMBO_NAME); }));
    Program().FocusTab();
    PressKey(VK_TAB, {VK_SHIFT});
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().HasFocus(NamePage, CHECK_SUBFOLDERS); }))
        << testing::PrintToString(Program().FocusPath());
}
