// The main window: bars, menus, tabs, list, layout, commands.

#include <windows.h>

#include <commctrl.h>

#include "resources/resource_ids.h"
#include "tests/program/program_test.h"
#include "tests/support/user_input.h"

namespace {

constexpr int TabHeight = 126;
constexpr int BarHeight = 26;

RECT ClientOf(HWND window) {
    RECT client = {};
    GetClientRect(window, &client);
    return client;
}

POINT CentreOf(const RECT& rectangle) {
    return {(rectangle.left + rectangle.right) / 2, (rectangle.top + rectangle.bottom) / 2};
}

}  // namespace

class MainWindowAtStart : public ProgramTest {
  protected:
    void SetUp() override {
        if (!Program().IsRunning()) StartFresh();
    }
};

class MainWindowCommands : public ProgramTest {};

TEST_F(MainWindowAtStart, the_tabs_carry_their_captions_and_the_name_page_is_shown) {
    const std::vector<TabState> tabs = Program().Tabs();
    ASSERT_EQ(tabs.size(), 3u);
    EXPECT_EQ(tabs[0].caption, Shown(L"Name", L"名前と場所"));
    EXPECT_EQ(tabs[1].caption, Shown(L"Date", L"日付"));
    EXPECT_EQ(tabs[2].caption, Shown(L"Etc", L"その他"));
    EXPECT_EQ(Program().CurrentPage(), NamePage);
    EXPECT_TRUE(Program().Control(NamePage, COMBO_NAME).visible);
    EXPECT_FALSE(Program().Control(DatePage, RADIO_ALL_FILES).visible);
    EXPECT_FALSE(Program().Control(SizePage, COMBO_FILE_SIZE).visible);
}

TEST_F(MainWindowAtStart, the_tab_control_has_the_focus) {
    Program().BringForward();
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().TabHasFocus(); }))
        << "the focus is at " << testing::PrintToString(Program().FocusPath());
}

TEST_F(MainWindowAtStart, the_menus_hold_their_items_in_order) {
    struct Expected {
        int depth;
        UINT id;  // 0 for a pop-up and for a separator
        std::wstring text;
    };
    const Expected expected[] = {
        {0, 0, Shown(L"File", L"ﾌｧｲﾙ")},
        {1, 40101, Shown(L"Open", L"開く")},
        {1, 0, L""},
        {1, 40103, Shown(L"Delete", L"削除")},
        {1, 40104, Shown(L"Rename", L"名前の変更")},
        {1, 40105, Shown(L"Properties", L"ﾌﾟﾛﾊﾟﾃｨ")},
        {1, 0, L""},
        {1, 40107, Shown(L"Exit", L"終了")},
        {0, 0, Shown(L"&View", L"表示")},
        {1, 40204, Shown(L"Large Icon", L"大きいｱｲｺﾝ")},
        {1, 40205, Shown(L"Small Icon", L"小さいｱｲｺﾝ")},
        {1, 40206, Shown(L"Details", L"詳細")},
        {1, 0, L""},
        {1, 40901, Shown(L"About...", L"ﾊﾞｰｼﾞｮﾝ情報...")},
        {0, 0, Shown(L"Option", L"ｵﾌﾟｼｮﾝ(&O)")},
        {1, 40301, Shown(L"Check Upper/Lower Cases", L"大文字/小文字を区別")},
        {1, 40302, Shown(L"Save Result", L"結果を保存")},
        {1, 40303, Shown(L"New condition", L"新しい条件")},
    };
    const std::vector<MenuItemState> items = Program().Menu();
    ASSERT_EQ(items.size(), std::size(expected));
    for (std::size_t i = 0; i < items.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(items[i].depth, expected[i].depth);
        EXPECT_EQ(items[i].id, expected[i].id);
        EXPECT_EQ(items[i].text, expected[i].text);
        EXPECT_EQ(items[i].Separator(), expected[i].text.empty());
    }
}

TEST_F(MainWindowAtStart, the_result_commands_and_save_result_are_gray_and_the_others_are_not) {
    for (const MenuItemState& item : Program().Menu()) {
        if (item.id == 0) continue;
        const bool gray = (item.id >= 40101 && item.id <= 40105) || item.id == 40302;
        EXPECT_EQ(item.Grayed(), gray) << item.id;
    }
}

TEST_F(MainWindowAtStart, details_carries_the_radio_mark_and_the_case_option_the_check_mark) {
    EXPECT_FALSE(Program().MenuItem(COMMAND_LARGE_ICON).Checked());
    EXPECT_FALSE(Program().MenuItem(COMMAND_SMALL_ICON).Checked());
    EXPECT_TRUE(Program().MenuItem(COMMAND_DETAILS).RadioMarked());
    EXPECT_TRUE(Program().MenuItem(COMMAND_CHECK_CASE).Checked());
    EXPECT_FALSE(Program().MenuItem(COMMAND_CHECK_CASE).RadioMarked());
    EXPECT_FALSE(Program().MenuItem(COMMAND_SAVE_RESULT).Checked());
}

TEST_F(MainWindowAtStart, the_bar_has_three_menus_and_the_find_and_properties_pictures) {
    const std::vector<ButtonState> buttons = Program().Bar();
    ASSERT_EQ(buttons.size(), 5u);
    EXPECT_EQ(buttons[0].command, 100);
    EXPECT_EQ(buttons[0].text, Shown(L"File", L"ﾌｧｲﾙ"));
    EXPECT_EQ(buttons[1].command, 200);
    EXPECT_EQ(buttons[1].text, Shown(L"View", L"表示"));
    EXPECT_EQ(buttons[2].command, 300);
    EXPECT_EQ(buttons[2].text, Shown(L"Option", L"ｵﾌﾟｼｮﾝ"));
    EXPECT_EQ(buttons[3].command, 40100);
    EXPECT_EQ(buttons[3].image, STD_FIND);
    EXPECT_EQ(buttons[4].command, 40105);
    EXPECT_EQ(buttons[4].image, STD_PROPERTIES);
    for (const ButtonState& button : buttons)
        EXPECT_NE(0, button.state & TBSTATE_ENABLED) << button.command;
}

TEST_F(MainWindowAtStart, every_button_of_the_bar_lies_within_the_screen) {
    for (const ButtonState& button : Program().Bar()) {
        EXPECT_GE(button.rectangle.left, 0) << button.command;
        EXPECT_LE(button.rectangle.right, World().screenWidth) << button.command;
        EXPECT_LE(button.rectangle.bottom, World().screenHeight) << button.command;
        EXPECT_LT(button.rectangle.left, button.rectangle.right) << button.command;
    }
}

TEST_F(MainWindowAtStart, the_columns_have_their_headings_widths_and_alignment) {
    struct Expected {
        std::wstring heading;
        int width;
        int format;
    };
    const Expected expected[] = {
        {Shown(L"Name", L"名前"), 100, LVCFMT_LEFT},         {Shown(L"Folder", L"ﾌｫﾙﾀﾞ名"), 140, LVCFMT_LEFT},
        {Shown(L"Size", L"ｻｲｽﾞ"), 40, LVCFMT_RIGHT},         {Shown(L"Type", L"種類"), 74, LVCFMT_LEFT},
        {Shown(L"Modified", L"更新日時"), 104, LVCFMT_LEFT},
    };
    const std::vector<ColumnState> columns = Program().Columns();
    ASSERT_EQ(columns.size(), std::size(expected));
    for (std::size_t i = 0; i < columns.size(); ++i) {
        EXPECT_EQ(columns[i].heading, expected[i].heading);
        EXPECT_EQ(columns[i].width, expected[i].width);
        EXPECT_EQ(columns[i].format, expected[i].format);
    }
}

TEST_F(MainWindowAtStart, the_list_shows_details_of_one_selected_row_with_the_full_row_marked) {
    const ListState list = Program().List();
    EXPECT_EQ(list.style & LVS_TYPEMASK, static_cast<DWORD>(LVS_REPORT));
    EXPECT_NE(0u, list.style & LVS_SINGLESEL);
    EXPECT_NE(0u, list.style & LVS_AUTOARRANGE);
    EXPECT_NE(0u, list.style & LVS_EDITLABELS);
    EXPECT_NE(0u, list.style & WS_TABSTOP);
    EXPECT_NE(0u, list.extendedStyle & LVS_EX_FULLROWSELECT);
    EXPECT_EQ(list.count, 0);
}

TEST_F(MainWindowAtStart, the_window_fills_the_handhelds_screen) {
    RECT window = {};
    GetWindowRect(Program().Window(), &window);
    EXPECT_EQ(window.left, 0);
    EXPECT_EQ(window.top, 0);
    EXPECT_EQ(window.right, World().screenWidth);
    EXPECT_EQ(window.bottom, World().screenHeight);
}

TEST_F(MainWindowAtStart, tabs_stand_at_the_top_the_list_below_and_the_bar_at_the_bottom) {
    const RECT client = ClientOf(Program().Window());
    const HWND tab = FindWindowExW(Program().Window(), nullptr, WC_TABCONTROLW, nullptr);
    RECT tabs = {};
    GetWindowRect(tab, &tabs);
    MapWindowPoints(HWND_DESKTOP, Program().Window(), reinterpret_cast<POINT*>(&tabs), 2);
    EXPECT_EQ(tabs.left, 0);
    EXPECT_EQ(tabs.top, 0);
    EXPECT_EQ(tabs.right, client.right);
    EXPECT_EQ(tabs.bottom, TabHeight);
    const RECT list = Program().List().rectangle;
    EXPECT_EQ(list.left, 0);
    EXPECT_EQ(list.top, TabHeight);
    EXPECT_EQ(list.right, client.right);
    EXPECT_EQ(list.bottom, client.bottom - BarHeight);
}

TEST_F(MainWindowAtStart, resizing_the_window_moves_neither_the_tabs_nor_the_list) {
    const RECT listBefore = Program().List().rectangle;
    const HWND tab = FindWindowExW(Program().Window(), nullptr, WC_TABCONTROLW, nullptr);
    const RECT tabBefore = ClientOf(tab);
    SetWindowPos(Program().Window(), nullptr, 0, 0, 200, 220, SWP_NOZORDER | SWP_NOACTIVATE);
    Program().WaitForQueue();
    RECT window = {};
    GetWindowRect(Program().Window(), &window);
    EXPECT_EQ(window.right, 200) << "the window was not resized";
    const RECT listAfter = Program().List().rectangle;
    EXPECT_TRUE(EqualRect(&listBefore, &listAfter));
    const RECT tabAfter = ClientOf(tab);
    EXPECT_TRUE(EqualRect(&tabBefore, &tabAfter));
    Program().Kill();
}

TEST_F(MainWindowCommands, a_click_on_a_tab_shows_its_page_alone_and_focuses_the_tabs) {
    Program().BringForward();
    for (const int page : {DatePage, SizePage, NamePage}) {
        Program().ShowPage(page);
        EXPECT_EQ(Program().Control(NamePage, COMBO_NAME).visible, page == NamePage);
        EXPECT_EQ(Program().Control(DatePage, RADIO_ALL_FILES).visible, page == DatePage);
        EXPECT_EQ(Program().Control(SizePage, COMBO_FILE_SIZE).visible, page == SizePage);
        EXPECT_TRUE(Program().TabHasFocus());
    }
}

TEST_F(MainWindowCommands, the_view_commands_change_the_style_and_carry_the_radio_mark) {
    struct View {
        UINT command;
        DWORD style;
    };
    for (const View& view : {View{COMMAND_LARGE_ICON, LVS_ICON}, View{COMMAND_SMALL_ICON, LVS_SMALLICON},
                             View{COMMAND_DETAILS, LVS_REPORT}}) {
        Program().SendMenuCommand(view.command);
        EXPECT_EQ(Program().List().style & LVS_TYPEMASK, view.style);
        for (const UINT command : {40204u, 40205u, 40206u}) {
            EXPECT_EQ(Program().MenuItem(command).RadioMarked(), command == view.command) << command;
        }
    }
}

TEST_F(MainWindowCommands, the_case_option_is_switched_by_its_command) {
    Program().SendMenuCommand(COMMAND_CHECK_CASE);
    EXPECT_FALSE(Program().MenuItem(COMMAND_CHECK_CASE).Checked());
    Program().SendMenuCommand(COMMAND_CHECK_CASE);
    EXPECT_TRUE(Program().MenuItem(COMMAND_CHECK_CASE).Checked());
}

TEST_F(MainWindowCommands, save_result_changes_nothing_and_stays_gray) {
    Program().Fill(Named(L"abc", L"\\names"));
    Program().Find();
    Program().SendMenuCommand(COMMAND_SAVE_RESULT);
    EXPECT_TRUE(Program().MenuItem(COMMAND_SAVE_RESULT).Grayed());
    EXPECT_FALSE(Program().MenuItem(COMMAND_SAVE_RESULT).Checked());
    EXPECT_EQ(Program().List().count, 2);
    EXPECT_TRUE(Program().Dialogs().empty());
}

TEST_F(MainWindowCommands, commands_of_no_menu_change_nothing) {
    const auto before = Program().Menu();
    for (const UINT command : {40207u, 40201u, 40106u, 1u, 2u, 65535u})
        Program().SendMenuCommand(command);
    const auto after = Program().Menu();
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i)
        EXPECT_EQ(after[i].state, before[i].state) << before[i].id;
    EXPECT_TRUE(Program().IsRunning());
    EXPECT_EQ(Program().Dialogs().size(), 0u);
}

TEST_F(MainWindowCommands, selecting_a_row_enables_the_result_commands_and_deselecting_grays_them) {
    Program().Fill(Named(L"abc", L"\\names"));
    Program().Find();
    for (const UINT command : {40101u, 40103u, 40104u, 40105u}) {
        EXPECT_FALSE(Program().MenuItem(command).Grayed()) << command;
    }
    Program().SelectRow(0, false);
    for (const UINT command : {40101u, 40103u, 40104u, 40105u}) {
        EXPECT_TRUE(Program().MenuItem(command).Grayed()) << command;
    }
    Program().SelectRow(1);
    for (const UINT command : {40101u, 40103u, 40104u, 40105u}) {
        EXPECT_FALSE(Program().MenuItem(command).Grayed()) << command;
    }
}

TEST_F(MainWindowCommands, the_exit_command_ends_the_program) {
    PostMessageW(Program().Window(), WM_COMMAND, COMMAND_EXIT, 0);
    EXPECT_EQ(Program().WaitForEnd(), 0u);
}

TEST_F(MainWindowCommands, a_click_on_the_find_button_runs_a_search) {
    Program().Fill(Named(L"abc", L"\\names"));
    Program().BringForward();
    const int before = Program().SearchesBegun();
    ClickAt(CentreOf(Program().Bar().at(3).rectangle));
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().SearchesBegun() > before; }));
    Program().WaitForEndOfSearch();
    EXPECT_EQ(Program().List().count, 2);
}

TEST_F(MainWindowCommands, a_click_on_a_bar_menu_opens_it_and_its_item_is_done) {
    Program().BringForward();
    ClickAt(CentreOf(Program().Bar().at(1).rectangle));
    ASSERT_TRUE(HoldsWithin(StepDeadline, [] { return FindWindowW(L"#32768", nullptr) != nullptr; }))
        << "no menu opened";
    // Large Icon, Small Icon.
    PressKey(VK_DOWN);
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    EXPECT_TRUE(
        HoldsWithin(StepDeadline, [&] { return (Program().List().style & LVS_TYPEMASK) == LVS_SMALLICON; }));
    EXPECT_TRUE(Program().MenuItem(COMMAND_SMALL_ICON).RadioMarked());
    Program().SendMenuCommand(COMMAND_DETAILS);
}
