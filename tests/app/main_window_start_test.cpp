// The main window as it stands at the start.

#include "app/product.h"
#include "app/run.h"
#include "framework/property_set.h"
#include "tests/app/main_window_test.h"

namespace {

Texts TabCaptions(HWND tab) {
    Texts captions;
    for (int i = 0; i < TabCtrl_GetItemCount(tab); ++i) {
        wchar_t text[64] = L"";
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 64;
        SendMessageW(tab, TCM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        captions.push_back(text);
    }
    return captions;
}

Texts PopUpTexts(HMENU menu) {
    Texts texts;
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        wchar_t text[64] = L"";
        GetMenuStringW(menu, static_cast<UINT>(i), text, 64, MF_BYPOSITION);
        texts.push_back(text);
    }
    return texts;
}

TBBUTTONINFOW ButtonInfo(HWND bar, int command) {
    TBBUTTONINFOW info = {};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_IMAGE | TBIF_STATE | TBIF_STYLE;
    EXPECT_GE(
        SendMessageW(bar, TB_GETBUTTONINFOW, static_cast<WPARAM>(command), reinterpret_cast<LPARAM>(&info)),
        0)
        << command;
    return info;
}

}  // namespace

class MainWindowStart : public MainWindowTest {};

TEST_F(MainWindowStart, the_window_bears_the_products_name_as_class_and_title) {
    Open();
    wchar_t text[64] = L"";
    GetClassNameW(Handle(), text, 64);
    EXPECT_EQ(std::wstring(text), L"QuorinSearch");
    GetWindowTextW(Handle(), text, 64);
    EXPECT_EQ(std::wstring(text), L"QuorinSearch");
    EXPECT_TRUE(IsWindowVisible(Handle()));
    EXPECT_NE(SendMessageW(Handle(), WM_GETICON, ICON_SMALL, 0), 0);
}

TEST_F(MainWindowStart, commands_on_results_and_save_result_are_gray_and_no_others) {
    Open();
    for (const int command :
         {COMMAND_OPEN, COMMAND_DELETE, COMMAND_RENAME, COMMAND_PROPERTIES, COMMAND_SAVE_RESULT})
        EXPECT_TRUE(IsGray(command)) << command;
    for (const int command : {COMMAND_EXIT, COMMAND_LARGE_ICON, COMMAND_SMALL_ICON, COMMAND_DETAILS,
                              COMMAND_ABOUT, COMMAND_CHECK_CASE, COMMAND_NEW_CONDITION}) {
        EXPECT_FALSE(IsGray(command)) << command;
    }
}

TEST_F(MainWindowStart, details_has_the_radio_mark_and_the_case_option_its_check_mark) {
    Open();
    EXPECT_TRUE(IsMarked(COMMAND_DETAILS));
    EXPECT_FALSE(IsMarked(COMMAND_LARGE_ICON));
    EXPECT_FALSE(IsMarked(COMMAND_SMALL_ICON));
    EXPECT_TRUE(IsMarked(COMMAND_CHECK_CASE));
    EXPECT_FALSE(IsMarked(COMMAND_SAVE_RESULT));
    EXPECT_FALSE(IsMarked(COMMAND_NEW_CONDITION));
    MENUITEMINFOW item = {};
    item.cbSize = sizeof item;
    item.fMask = MIIM_FTYPE;
    ASSERT_TRUE(GetMenuItemInfoW(Window().Menu(), COMMAND_DETAILS, FALSE, &item));
    EXPECT_NE(item.fType & MFT_RADIOCHECK, 0U);
}

TEST_F(MainWindowStart, commands_without_a_menu_item_stand_in_no_menu) {
    Open();
    for (const int command : {COMMAND_ADD_TO_START_MENU, COMMAND_VIEW_BAR_FIRST, COMMAND_VIEW_BAR_LAST,
                              COMMAND_VIEW_STATUS, COMMAND_FIND}) {
        EXPECT_EQ(MenuState(command), UINT(-1)) << command;
    }
}

TEST_F(MainWindowStart, tabs_and_menus_speak_english) {
    Open(UiLanguage::English);
    EXPECT_EQ(TabCaptions(Tab()), (Texts{L"Name", L"Date", L"Etc"}));
    EXPECT_EQ(PopUpTexts(Window().Menu()), (Texts{L"File", L"&View", L"Option"}));
}

TEST_F(MainWindowStart, tabs_and_menus_speak_japanese) {
    Open(UiLanguage::Japanese);
    EXPECT_EQ(TabCaptions(Tab()), (Texts{L"名前と場所", L"日付", L"その他"}));
    EXPECT_EQ(PopUpTexts(Window().Menu()), (Texts{L"ﾌｧｲﾙ", L"表示", L"ｵﾌﾟｼｮﾝ(&O)"}));
    EXPECT_TRUE(IsGray(COMMAND_OPEN));
    EXPECT_TRUE(IsMarked(COMMAND_CHECK_CASE));
}

TEST_F(MainWindowStart, the_bar_has_the_find_and_the_properties_picture_both_enabled) {
    Open();
    const HWND bar = Window().MenuBar()->Handle();
    EXPECT_EQ(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0), 5) << "three menus and two pictures";
    const TBBUTTONINFOW find = ButtonInfo(bar, COMMAND_FIND);
    EXPECT_EQ(find.iImage, 12);
    EXPECT_NE(find.fsState & TBSTATE_ENABLED, 0);
    const TBBUTTONINFOW showProperties = ButtonInfo(bar, COMMAND_PROPERTIES);
    EXPECT_EQ(showProperties.iImage, 10);
    EXPECT_NE(showProperties.fsState & TBSTATE_ENABLED, 0);
}

TEST_F(MainWindowStart, the_name_page_is_shown_and_the_tab_control_has_the_focus) {
    Open();
    EXPECT_EQ(ShownPage(), NamePageIndex);
    EXPECT_EQ(TabCtrl_GetCurSel(Tab()), 0);
    EXPECT_EQ(GetFocus(), Tab());
}

TEST_F(MainWindowStart, without_a_history_the_name_shows_log) {
    Open();
    EXPECT_EQ(TextOf(NamePageIndex, COMBO_NAME), L"*.log");
    EXPECT_EQ(TextOf(NamePageIndex, COMBO_LOCATION), L"");
}

TEST_F(MainWindowStart, what_the_last_run_saved_is_there_again) {
    Open();
    SetText(NamePageIndex, COMBO_LOCATION, L"\\no such folder");
    SetFocus(EditOf(COMBO_LOCATION));
    Key(EditOf(COMBO_LOCATION), VK_RETURN);
    Send(NamePageIndex, CHECK_SUBFOLDERS, BM_CLICK);
    EXPECT_EQ(RunToTheEnd(COMMAND_EXIT), 0);
    Discard();
    Open();
    EXPECT_EQ(TextOf(NamePageIndex, COMBO_LOCATION), L"\\no such folder");
    EXPECT_EQ(TextOf(NamePageIndex, COMBO_NAME), L"*.log");
    EXPECT_EQ(Send(NamePageIndex, CHECK_SUBFOLDERS, BM_GETCHECK), BST_CHECKED);
}

TEST_F(MainWindowStart, without_a_menu_bar_the_window_stands_and_its_commands_do_no_harm) {
    PropertySet withoutBar;
    DescribeMainWindow(withoutBar);
    constexpr int NoSuchBar = 999;
    withoutBar.Set(property::MenuBar, NoSuchBar);
    MainWindow bare(ProductName, withoutBar, world_.TheApplication());
    EXPECT_NE(bare.Handle(), nullptr);
    EXPECT_EQ(bare.MenuBar(), nullptr);
    EXPECT_EQ(bare.Menu(), nullptr);
    for (const int command : {COMMAND_LARGE_ICON, COMMAND_CHECK_CASE, COMMAND_NEW_CONDITION})
        SendMessageW(bare.Handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    const HWND list = FindWindowExW(bare.Handle(), nullptr, WC_LISTVIEWW, nullptr);
    EXPECT_EQ(GetWindowLongW(list, GWL_STYLE) & LVS_TYPEMASK, LVS_ICON);
}
