#include <gtest/gtest.h>

#include <string>

#include "tests/platform/bar_ids.h"
#include "tests/platform/test_parent.h"

namespace {

constexpr int FindCommand = 40100;
constexpr int PropertiesCommand = 40105;

RECT InParent(HWND child) {
    RECT rectangle{};
    GetWindowRect(child, &rectangle);
    MapWindowPoints(HWND_DESKTOP, GetParent(child), reinterpret_cast<POINT*>(&rectangle), 2);
    return rectangle;
}

void ExpectRectangle(const RECT& actual, int left, int top, int right, int bottom) {
    EXPECT_EQ(actual.left, left);
    EXPECT_EQ(actual.top, top);
    EXPECT_EQ(actual.right, right);
    EXPECT_EQ(actual.bottom, bottom);
}

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    ::GetClassNameW(window, name, 64);
    return name;
}

std::wstring CaptionOf(HWND bar, int command) {
    wchar_t text[64] = L"";
    SendMessageW(bar, TB_GETBUTTONTEXTW, static_cast<WPARAM>(command), reinterpret_cast<LPARAM>(text));
    return text;
}

LRESULT AddStandardPictures(HWND bar, UINT_PTR which, int count) {
    const TBADDBITMAP bitmap{HINST_COMMCTRL, which};
    return SendMessageW(bar, TB_ADDBITMAP, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(&bitmap));
}

void AddPictureButton(HWND bar, int image, int command) {
    TBBUTTON button{};
    button.iBitmap = image;
    button.idCommand = command;
    button.fsState = TBSTATE_ENABLED;
    button.fsStyle = BTNS_BUTTON;
    ASSERT_TRUE(SendMessageW(bar, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button)));
}

// What the main window adds to its bar.
void AddFindAndProperties(HWND bar) {
    ASSERT_EQ(AddStandardPictures(bar, IDB_STD_SMALL_COLOR, 15), 0);
    ASSERT_EQ(AddStandardPictures(bar, IDB_VIEW_SMALL_COLOR, 12), 15);
    AddPictureButton(bar, 12, FindCommand);
    AddPictureButton(bar, 10, PropertiesCommand);
}

// The pixels of one picture of a tool bar, drawn on white.
std::vector<COLORREF> PictureOf(HWND toolBar, int index) {
    auto images = reinterpret_cast<HIMAGELIST>(SendMessageW(toolBar, TB_GETIMAGELIST, 0, 0));
    const HDC screen = GetDC(nullptr);
    const HDC device = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 16, 16);
    const HGDIOBJ before = SelectObject(device, bitmap);
    PatBlt(device, 0, 0, 16, 16, WHITENESS);
    ImageList_Draw(images, index, device, 0, 0, ILD_NORMAL);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x)
            pixels.push_back(GetPixel(device, x, y));
    }
    SelectObject(device, before);
    DeleteObject(bitmap);
    DeleteDC(device);
    ReleaseDC(nullptr, screen);
    return pixels;
}

TEST(MenuBar, lies_at_the_bottom_of_its_parent_full_width_and_26_high) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_ENGLISH);
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(GetParent(bar), parent.Handle());
    EXPECT_TRUE(IsWindowVisible(bar));
    ExpectRectangle(InParent(bar), 0, 274, 240, 300);
}

TEST(MenuBar, goes_back_to_the_bottom_when_the_parent_passes_its_new_size_on) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_ENGLISH);
    parent.onSize = [bar](WPARAM wParam, LPARAM lParam) { SendMessageW(bar, WM_SIZE, wParam, lParam); };
    MoveWindow(parent.Handle(), 0, 0, 200, 220, TRUE);
    ExpectRectangle(InParent(bar), 0, 194, 200, 220);
}

TEST(MenuBar, has_a_tool_bar_as_its_first_child) {
    TestParent parent(240, 300);
    EXPECT_EQ(ClassOf(ToolBarOf(parent.MakeBar(BAR_ENGLISH))), L"ToolbarWindow32");
}

TEST(MenuBar, holds_the_english_buttons_of_its_resource) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_ENGLISH);
    EXPECT_EQ(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0), 3);
    EXPECT_EQ(SendMessageW(bar, TB_COMMANDTOINDEX, BUTTON_FILE, 0), 0);
    EXPECT_EQ(SendMessageW(bar, TB_COMMANDTOINDEX, BUTTON_VIEW, 0), 1);
    EXPECT_EQ(SendMessageW(bar, TB_COMMANDTOINDEX, BUTTON_OPTION, 0), 2);
    EXPECT_EQ(CaptionOf(bar, BUTTON_FILE), L"File");
    EXPECT_EQ(CaptionOf(bar, BUTTON_VIEW), L"View");
    EXPECT_EQ(CaptionOf(bar, BUTTON_OPTION), L"Option");
    for (const int command : {BUTTON_FILE, BUTTON_VIEW, BUTTON_OPTION}) {
        EXPECT_NE(SendMessageW(bar, TB_ISBUTTONENABLED, static_cast<WPARAM>(command), 0), 0);
    }
}

TEST(MenuBar, holds_the_japanese_buttons_of_its_resource) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_JAPANESE);
    EXPECT_EQ(CaptionOf(bar, BUTTON_FILE), L"ﾌｧｲﾙ");
    EXPECT_EQ(CaptionOf(bar, BUTTON_VIEW), L"表示");
    EXPECT_EQ(CaptionOf(bar, BUTTON_OPTION), L"ｵﾌﾟｼｮﾝ");
}

class MenuBarInBothLanguages : public testing::TestWithParam<UINT> {};

TEST_P(MenuBarInBothLanguages, shows_three_captions_and_two_pictures_whole_within_240_pixels) {
    TestParent parent(234, 300);
    const HWND bar = parent.MakeBar(GetParam());
    AddFindAndProperties(bar);
    RECT barArea{};
    GetClientRect(bar, &barArea);
    const RECT toolBar = InParent(ToolBarOf(bar));
    EXPECT_GE(toolBar.top, 1);
    EXPECT_LE(toolBar.bottom, barArea.bottom);
    int right = 0;
    for (const int command : {BUTTON_FILE, BUTTON_VIEW, BUTTON_OPTION, FindCommand, PropertiesCommand}) {
        const RECT button = ButtonRectangle(bar, command);
        EXPECT_GE(button.left, right) << command;
        EXPECT_GT(button.right, button.left) << command;
        EXPECT_GE(button.top, 0) << command;
        EXPECT_LE(button.bottom, toolBar.bottom - toolBar.top) << command;
        right = button.right;
    }
    EXPECT_LE(right, 234);
}

TEST_P(MenuBarInBothLanguages, has_buttons_as_wide_as_their_captions) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(GetParam());
    const HDC device = GetDC(ToolBarOf(bar));
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(ToolBarOf(bar), WM_GETFONT, 0, 0));
    const HGDIOBJ before = SelectObject(device, font);
    for (const int command : {BUTTON_FILE, BUTTON_VIEW, BUTTON_OPTION}) {
        const std::wstring caption = CaptionOf(bar, command);
        SIZE extent{};
        GetTextExtentPoint32W(device, caption.c_str(), static_cast<int>(caption.size()), &extent);
        const RECT button = ButtonRectangle(bar, command);
        EXPECT_GE(button.right - button.left, extent.cx + 4) << command;
        EXPECT_GE(button.bottom - button.top, extent.cy + 2) << command;
    }
    SelectObject(device, before);
    ReleaseDC(ToolBarOf(bar), device);
}

INSTANTIATE_TEST_SUITE_P(Languages, MenuBarInBothLanguages, testing::Values(BAR_ENGLISH, BAR_JAPANESE));

TEST(MenuBar, shows_the_standard_pictures_under_the_indices_that_the_program_asks_for) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_ENGLISH);
    AddFindAndProperties(bar);
    TBBUTTON button{};
    ASSERT_TRUE(SendMessageW(bar, TB_GETBUTTON, 3, reinterpret_cast<LPARAM>(&button)));
    EXPECT_EQ(button.iBitmap, 12);
    EXPECT_EQ(button.idCommand, FindCommand);
    ASSERT_TRUE(SendMessageW(bar, TB_GETBUTTON, 4, reinterpret_cast<LPARAM>(&button)));
    EXPECT_EQ(button.iBitmap, 10);
    EXPECT_EQ(button.idCommand, PropertiesCommand);

    const HWND plain = ::CreateWindowExW(0, TOOLBARCLASSNAMEW, L"", WS_CHILD, 0, 0, 100, 30, parent.Handle(),
                                         nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(plain, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    ASSERT_EQ(AddStandardPictures(plain, IDB_STD_SMALL_COLOR, 15), 0);
    EXPECT_EQ(PictureOf(ToolBarOf(bar), 12), PictureOf(plain, STD_FIND));
    EXPECT_EQ(PictureOf(ToolBarOf(bar), 10), PictureOf(plain, STD_PROPERTIES));
    EXPECT_NE(PictureOf(plain, STD_FIND), PictureOf(plain, STD_PROPERTIES));
}

TEST(MenuBar, shows_its_own_bitmap_under_the_indices_from_0) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_EMPTY, BAR_PICTURES, 5);
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0), 0);
    const COLORREF squares[] = {RGB(255, 0, 0), RGB(0, 128, 0), RGB(0, 0, 255), RGB(128, 0, 128),
                                RGB(0, 0, 0)};
    for (int index = 0; index < 5; ++index) {
        const std::vector<COLORREF> picture = PictureOf(ToolBarOf(bar), index);
        EXPECT_EQ(picture[8 * 16 + 8], squares[index]) << index;
        EXPECT_EQ(picture[0], RGB(255, 255, 255)) << "light grey is not drawn: " << index;
    }
}

TEST(MenuBar, sends_a_button_s_command_to_the_parent_without_a_control_handle) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_ENGLISH);
    AddFindAndProperties(bar);
    Click(bar, FindCommand);
    ASSERT_TRUE(PumpUntil([&] { return !parent.commands.empty(); }));
    Click(bar, PropertiesCommand);
    ASSERT_TRUE(PumpUntil([&] { return parent.commands.size() == 2; }));
    const std::vector<TestParent::Command> expected{{FindCommand, 0}, {PropertiesCommand, 0}};
    EXPECT_EQ(parent.commands, expected);
}

TEST(MenuBar, keeps_a_button_enabled_whose_command_is_greyed_in_the_menu) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_ENGLISH);
    AddPictureButton(bar, 0, ITEM_DELETE);
    const auto menu = reinterpret_cast<HMENU>(SendMessageW(bar, ce::MenuBarGetMenu, 0, 0));
    EnableMenuItem(menu, ITEM_DELETE, MF_BYCOMMAND | MF_GRAYED);
    EXPECT_NE(SendMessageW(bar, TB_ISBUTTONENABLED, ITEM_DELETE, 0), 0);
}

TEST(MenuBar, answers_its_menu_and_the_sub_menu_of_each_button) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_ENGLISH);
    const auto menu = reinterpret_cast<HMENU>(SendMessageW(bar, ce::MenuBarGetMenu, 0, 0));
    ASSERT_EQ(GetMenuItemCount(menu), 3);
    const auto subMenu = [bar](LPARAM command) {
        return reinterpret_cast<HMENU>(SendMessageW(bar, ce::MenuBarGetSubMenu, 0, command));
    };
    EXPECT_EQ(subMenu(BUTTON_FILE), GetSubMenu(menu, 0));
    EXPECT_EQ(subMenu(BUTTON_VIEW), GetSubMenu(menu, 1));
    EXPECT_EQ(subMenu(BUTTON_OPTION), GetSubMenu(menu, 2));
    EXPECT_EQ(subMenu(999), nullptr);
}

TEST(MenuBar, takes_its_menu_along_when_it_is_destroyed) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_ENGLISH);
    const auto menu = reinterpret_cast<HMENU>(SendMessageW(bar, ce::MenuBarGetMenu, 0, 0));
    ASSERT_TRUE(IsMenu(menu));
    DestroyWindow(bar);
    EXPECT_FALSE(IsMenu(menu));
}

TEST(MenuBar, survives_a_command_whose_handler_destroys_it) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_EMPTY, BAR_PICTURES, 5);
    AddPictureButton(bar, 0, IDCANCEL);
    Click(bar, IDCANCEL);
    ASSERT_TRUE(PumpUntil([&] {
        if (!parent.commands.empty()) DestroyWindow(bar);
        return !IsWindow(bar);
    }));
    EXPECT_EQ(parent.commands.front(), (TestParent::Command{IDCANCEL, 0}));
}

TEST(MenuBar, names_its_buttons_in_order_by_the_tool_tips_it_was_given) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_EMPTY, BAR_PICTURES, 5);
    AddPictureButton(bar, 0, IDCANCEL);
    AddPictureButton(bar, 1, IDOK);
    const wchar_t* const texts[] = {L"Cancel", L"OK"};
    SendMessageW(bar, ce::ToolBarSetToolTips, 2, reinterpret_cast<LPARAM>(texts));
    const auto tipOf = [bar](UINT_PTR command) -> std::wstring {
        NMTTDISPINFOW question{};
        question.hdr.idFrom = command;
        question.hdr.code = TTN_GETDISPINFOW;
        SendMessageW(bar, WM_NOTIFY, command, reinterpret_cast<LPARAM>(&question));
        return question.lpszText != nullptr ? question.lpszText : L"(none)";
    };
    EXPECT_EQ(tipOf(IDCANCEL), L"Cancel");
    EXPECT_EQ(tipOf(IDOK), L"OK");
    EXPECT_EQ(tipOf(999), L"(none)");
}

TEST(MenuBar, stays_out_of_the_tab_order_and_of_groups) {
    TestParent parent(240, 300);
    const HWND bar = parent.MakeBar(BAR_EMPTY, BAR_PICTURES, 5);
    EXPECT_EQ(GetWindowLongPtrW(bar, GWL_STYLE) & WS_TABSTOP, 0);
    EXPECT_EQ(GetWindowLongPtrW(bar, GWL_STYLE) & WS_GROUP, WS_GROUP);
    EXPECT_EQ(GetWindowLongPtrW(bar, GWL_EXSTYLE) & WS_EX_CONTROLPARENT, 0);
    EXPECT_EQ(SendMessageW(bar, WM_GETDLGCODE, 0, 0), DLGC_STATIC);
}

TEST(MenuBar, is_not_made_from_a_resource_that_is_missing_or_too_short) {
    TestParent parent(240, 300);
    EXPECT_EQ(parent.MakeBar(BAR_MISSING), nullptr);
    EXPECT_EQ(parent.MakeBar(BAR_TRUNCATED), nullptr);
    EXPECT_EQ(GetWindow(parent.Handle(), GW_CHILD), nullptr);
}

TEST(MenuBar, is_not_made_without_a_parent_or_with_a_record_of_another_size) {
    TestParent parent(240, 300);
    ce::MenuBarInfo info{};
    info.cbSize = sizeof(info);
    info.nToolBarId = BAR_ENGLISH;
    info.hInstRes = GetModuleHandleW(nullptr);
    EXPECT_FALSE(ce::SHCreateMenuBar(&info));
    info.hwndParent = parent.Handle();
    info.cbSize = sizeof(info) - 1;
    EXPECT_FALSE(ce::SHCreateMenuBar(&info));
    EXPECT_FALSE(ce::SHCreateMenuBar(nullptr));
    EXPECT_EQ(GetWindow(parent.Handle(), GW_CHILD), nullptr);
}

}  // namespace
