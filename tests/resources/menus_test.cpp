#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

#include <commctrl.h>

#include "platform/desktop/menu_bar_layout.h"
#include "tests/resources/program_module.h"

namespace {

struct Item {
    UINT command;  // 0 for a separator
    std::wstring text;
    bool operator==(const Item&) const = default;
};

struct PopUp {
    std::wstring text;
    std::vector<Item> items;
};

void PrintTo(const Item& item, std::ostream* out) {
    *out << item.command << " \"" << testing::PrintToString(item.text) << '"';
}

std::wstring TextAt(HMENU menu, int position) {
    wchar_t text[MAX_PATH] = {};
    GetMenuStringW(menu, static_cast<UINT>(position), text, MAX_PATH, MF_BYPOSITION);
    return text;
}

std::vector<Item> ItemsOf(HMENU menu) {
    std::vector<Item> items;
    for (int position = 0; position < GetMenuItemCount(menu); ++position) {
        const bool separator =
            (GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION) & MF_SEPARATOR) != 0;
        items.push_back(
            {separator ? 0 : GetMenuItemID(menu, position), separator ? L"" : TextAt(menu, position)});
    }
    return items;
}

void ExpectMenu(int id, const std::vector<PopUp>& expected) {
    const HMENU menu = LoadMenuW(ProgramModule(), MAKEINTRESOURCEW(id));
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(GetMenuItemCount(menu), static_cast<int>(expected.size()));
    for (int position = 0; position < GetMenuItemCount(menu); ++position) {
        const PopUp& popUp = expected[static_cast<std::size_t>(position)];
        EXPECT_EQ(TextAt(menu, position), popUp.text);
        ASSERT_NE(GetSubMenu(menu, position), nullptr);
        EXPECT_EQ(ItemsOf(GetSubMenu(menu, position)), popUp.items);
    }
    DestroyMenu(menu);
}

TEST(Menus, the_english_menu_reads_as_written) {
    ExpectMenu(101,
               {{L"File",
                 {{40101, L"Open"},
                  {0, L""},
                  {40103, L"Delete"},
                  {40104, L"Rename"},
                  {40105, L"Properties"},
                  {0, L""},
                  {40107, L"Exit"}}},
                {L"&View",
                 {{40204, L"Large Icon"},
                  {40205, L"Small Icon"},
                  {40206, L"Details"},
                  {0, L""},
                  {40901, L"About..."}}},
                {L"Option",
                 {{40301, L"Check Upper/Lower Cases"}, {40302, L"Save Result"}, {40303, L"New condition"}}}});
}

TEST(Menus, the_japanese_menu_reads_as_written) {
    ExpectMenu(102, {{L"ﾌｧｲﾙ",
                      {{40101, L"開く"},
                       {0, L""},
                       {40103, L"削除"},
                       {40104, L"名前の変更"},
                       {40105, L"ﾌﾟﾛﾊﾟﾃｨ"},
                       {0, L""},
                       {40107, L"終了"}}},
                     {L"表示",
                      {{40204, L"大きいｱｲｺﾝ"},
                       {40205, L"小さいｱｲｺﾝ"},
                       {40206, L"詳細"},
                       {0, L""},
                       {40901, L"ﾊﾞｰｼﾞｮﾝ情報..."}}},
                     {L"ｵﾌﾟｼｮﾝ(&O)",
                      {{40301, L"大文字/小文字を区別"}, {40302, L"結果を保存"}, {40303, L"新しい条件"}}}});
}

// The bar as it stands in the resources; a block of another length is a failure.
void ReadMenuBar(int id, ce::MenuBarResource& bar, std::vector<ce::MenuBarResourceButton>& buttons) {
    const std::vector<unsigned char> bytes = ResourceBytes(MAKEINTRESOURCEW(id), RT_RCDATA);
    ASSERT_GE(bytes.size(), sizeof(bar));
    std::memcpy(&bar, bytes.data(), sizeof(bar));
    ASSERT_EQ(bytes.size(), sizeof(bar) + bar.buttonCount * sizeof(ce::MenuBarResourceButton));
    buttons.resize(bar.buttonCount);
    if (!buttons.empty()) std::memcpy(buttons.data(), bytes.data() + sizeof(bar), bytes.size() - sizeof(bar));
}

void ExpectThreeDropDowns(int id, WORD firstString) {
    ce::MenuBarResource bar = {};
    std::vector<ce::MenuBarResourceButton> buttons;
    ASSERT_NO_FATAL_FAILURE(ReadMenuBar(id, bar, buttons));
    EXPECT_EQ(bar.menuId, id);
    ASSERT_EQ(buttons.size(), 3u);
    const WORD commands[] = {100, 200, 300};
    for (WORD index = 0; index < 3; ++index) {
        const ce::MenuBarResourceButton& button = buttons[index];
        EXPECT_EQ(button.image, ce::MenuBarNoImage);
        EXPECT_EQ(button.command, commands[index]);
        EXPECT_EQ(button.state, TBSTATE_ENABLED);
        EXPECT_EQ(button.style & TBSTYLE_DROPDOWN, TBSTYLE_DROPDOWN);
        EXPECT_EQ(button.stringId, firstString + index);
        EXPECT_EQ(button.subMenu, index);
    }
}

TEST(MenuBars, the_english_bar_opens_the_three_menus) {
    ExpectThreeDropDowns(101, 10101);
}

TEST(MenuBars, the_japanese_bar_opens_the_three_menus) {
    ExpectThreeDropDowns(102, 10001);
}

TEST(MenuBars, the_bar_of_dialogs_has_no_buttons) {
    ce::MenuBarResource bar = {};
    std::vector<ce::MenuBarResourceButton> buttons;
    ASSERT_NO_FATAL_FAILURE(ReadMenuBar(28701, bar, buttons));
    EXPECT_EQ(bar.menuId, 28701);
    EXPECT_TRUE(buttons.empty());
}

TEST(Accelerators, f1_shows_the_about_box_and_control_q_exits) {
    const HACCEL table = LoadAcceleratorsW(ProgramModule(), MAKEINTRESOURCEW(101));
    ASSERT_NE(table, nullptr);
    ACCEL keys[8] = {};
    ASSERT_EQ(CopyAcceleratorTableW(table, keys, 8), 2);
    EXPECT_EQ(keys[0].fVirt & (FVIRTKEY | FCONTROL | FALT | FSHIFT), FVIRTKEY);
    EXPECT_EQ(keys[0].key, VK_F1);
    EXPECT_EQ(keys[0].cmd, 40901);
    EXPECT_EQ(keys[1].fVirt & (FVIRTKEY | FCONTROL | FALT | FSHIFT), FVIRTKEY | FCONTROL);
    EXPECT_EQ(keys[1].key, 'Q');
    EXPECT_EQ(keys[1].cmd, 40107);
    DestroyAcceleratorTable(table);
}

}  // namespace
