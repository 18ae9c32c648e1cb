// The folder browser over the device of these tests, and the search in what was chosen there.

#include <algorithm>

#include "resources/resource_ids.h"
#include "tests/program/program_dialogs.h"
#include "tests/program/program_test.h"
#include "tests/program/registry_reading.h"
#include "tests/support/temp_tree.h"
#include "tests/support/user_input.h"

namespace {

constexpr const wchar_t* RootClass = L"{000214A0-0000-0000-C000-000000000046}";

std::wstring RootNameOfWorld() {
    const bool pocketPc = World().screenWidth == 240 && World().screenHeight == 320;
    return pocketPc ? Shown(L"My Pocket PC", L"ﾏｲ ﾎﾟｹｯﾄ PC") : Shown(L"My Handheld PC", L"ﾏｲ ﾊﾝﾄﾞﾍﾙﾄﾞ PC");
}

// Depth and name of all folders below this one: of each level the last that the system lists comes first.
void AddFoldersBelow(const std::wstring& folder, int depth,
                     std::vector<std::pair<int, std::wstring>>& found) {
    Names names;
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((folder + L"*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const std::wstring name = data.cFileName;
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && name != L"." && name != L"..")
            names.push_back(name);
    } while (FindNextFileW(search, &data));
    FindClose(search);
    std::reverse(names.begin(), names.end());
    for (const std::wstring& name : names) {
        found.emplace_back(depth, name);
        AddFoldersBelow(folder + name + L"\\", depth + 1, found);
    }
}

}  // namespace

class Browser : public ProgramTest {
  protected:
    void SetUp() override {
        StartFresh();
        Program().BringForward();
    }

    ProgramDialog OpenBrowser() {
        PostMessageW(BrowseButton(), BM_CLICK, 0, 0);
        return WaitForDialog(Program().Window());
    }
    HWND BrowseButton() {
        for (HWND page = nullptr;;) {
            const HWND tab = FindWindowExW(Program().Window(), nullptr, L"SysTabControl32", nullptr);
            page = FindWindowExW(tab, page, L"#32770", nullptr);
            if (page == nullptr) throw DriverError("there is no name page");
            if (GetDlgItem(page, CHECK_SUBFOLDERS) != nullptr) return GetDlgItem(page, BUTTON_BROWSE);
        }
    }
    // Selects the item that stands at the end of these names.
    void Select(const Names& names) {
        const std::vector<TreeItemState> items = Program().Tree();
        std::size_t place = 0;
        for (std::size_t level = 0; level < names.size(); ++level) {
            const int depth = static_cast<int>(level) + 1;
            for (++place; place < items.size(); ++place) {
                if (items[place].depth == depth && items[place].text == names[level]) break;
                ASSERT_GE(items[place].depth, depth) << "no such folder";
            }
            ASSERT_LT(place, items.size()) << "no such folder";
        }
        Program().SelectTreeItem(static_cast<int>(place));
    }
    void WaitForClose(const ProgramDialog& dialog) {
        WaitUntil("the browser to close", [&] { return !IsWindow(dialog.Window()); });
        Program().WaitForQueue();
    }
    std::wstring Location() { return Program().Control(NamePage, COMBO_LOCATION).text; }
    Names LocationEntries() { return Program().Combo(NamePage, COMBO_LOCATION).entries; }
};

TEST_F(Browser, shows_the_devices_whole_tree_below_its_name) {
    const ProgramDialog browser = OpenBrowser();
    EXPECT_EQ(browser.Caption(), Shown(L"Select Folder", L"ﾌｫﾙﾀﾞ選択"));
    EXPECT_EQ(browser.Text(STATIC_TITLE), Shown(L"Browse folder", L"ﾌｫﾙﾀﾞの参照"));

    std::vector<std::pair<int, std::wstring>> expected = {{0, RootNameOfWorld()}};
    AddFoldersBelow(Drive().Root(), 1, expected);
    ASSERT_GE(expected.size(), 8u);
    const std::vector<TreeItemState> items = Program().Tree();
    ASSERT_EQ(items.size(), expected.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        EXPECT_EQ(items[i].depth, expected[i].first) << i;
        EXPECT_EQ(items[i].text, expected[i].second) << i;
        EXPECT_EQ(items[i].image, i == 0 ? 0 : 1) << i;
        EXPECT_EQ(items[i].selectedImage, i == 0 ? 0 : 2) << i;
        EXPECT_EQ(items[i].Expanded(), i == 0) << i;
    }
}

TEST_F(Browser, fills_the_screens_height_above_its_bar) {
    const ProgramDialog browser = OpenBrowser();
    RECT place = {};
    GetWindowRect(browser.Control(TREE_FOLDERS), &place);
    EXPECT_GE(place.left, 0);
    EXPECT_LE(place.right, World().screenWidth);
    EXPECT_LE(place.bottom, World().screenHeight - 26);
    EXPECT_GT(place.bottom - place.top, World().screenHeight / 2);
}

TEST_F(Browser, gives_a_deep_folder_to_the_location_and_the_search_starts_there) {
    const ProgramDialog browser = OpenBrowser();
    Select({L"walk", L"a deeper", L"a match folder"});
    PostMessageW(browser.Window(), WM_COMMAND, IDOK, 0);
    WaitForClose(browser);
    EXPECT_EQ(Location(), L"\\walk\\a deeper\\a match folder");
    EXPECT_EQ(LocationEntries(), Names{L"\\walk\\a deeper\\a match folder"});
    Program().SetText(NamePage, COMBO_NAME, L"");
    Program().Find();
    EXPECT_EQ(Program().RowPaths(), Names{L"\\walk\\a deeper\\a match folder\\three.txt"});
    CloseProgram();
    EXPECT_EQ(ValuesOf(LocationKey)[L"0"], StoredText(L"\\walk\\a deeper\\a match folder"));
}

// Of 259 units, the most that a path may have, and one of 260 beside it.
TEST_F(Browser, gives_a_path_that_just_fits_and_stays_open_on_a_longer_one) {
    const std::wstring parent(200, L'p');
    const std::wstring fits(57, L'f');
    const std::wstring tooLong(58, L't');
    const std::wstring onDisk = L"\\\\?\\" + Tree().Root() + L"\\" + parent;
    ASSERT_TRUE(CreateDirectoryW(onDisk.c_str(), nullptr));
    for (const std::wstring& name : {fits, tooLong})
        ASSERT_TRUE(CreateDirectoryW((onDisk + L"\\" + name).c_str(), nullptr));

    const ProgramDialog browser = OpenBrowser();
    Select({parent, tooLong});
    PostMessageW(browser.Window(), WM_COMMAND, IDOK, 0);
    Program().WaitForQueue();
    EXPECT_TRUE(IsWindow(browser.Window()));
    Select({parent, fits});
    PostMessageW(browser.Window(), WM_COMMAND, IDOK, 0);
    WaitForClose(browser);
    for (const std::wstring& name : {fits, tooLong})
        EXPECT_TRUE(RemoveDirectoryW((onDisk + L"\\" + name).c_str()));
    EXPECT_TRUE(RemoveDirectoryW(onDisk.c_str()));

    const std::wstring path = L"\\" + parent + L"\\" + fits;
    ASSERT_EQ(path.size(), 259u);
    EXPECT_EQ(Location(), path);
    EXPECT_EQ(LocationEntries(), Names{path});
    CloseProgram();
    EXPECT_EQ(ValuesOf(LocationKey)[L"0"], StoredText(path));
    StartAgain();
    EXPECT_EQ(Location(), path);
}

TEST_F(Browser, gives_a_backslash_for_the_root) {
    const ProgramDialog browser = OpenBrowser();
    Select({});
    PostMessageW(browser.Window(), WM_COMMAND, IDOK, 0);
    WaitForClose(browser);
    EXPECT_EQ(Location(), L"\\");
    EXPECT_EQ(LocationEntries(), Names{L"\\"});
}

TEST_F(Browser, is_opened_used_and_closed_by_keys_alone) {
    Program().FocusControl(NamePage, COMBO_LOCATION);
    PressKey(VK_TAB);
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().HasFocus(NamePage, BUTTON_BROWSE); }));
    PressKey(VK_RETURN);
    const ProgramDialog browser = WaitForDialog(Program().Window());
    ASSERT_TRUE(
        HoldsWithin(StepDeadline, [&] { return Program().FocusPath().rfind(L"systreeview32:", 0) == 0; }));
    PressKey(VK_HOME);
    PressKey(VK_DOWN);
    const std::wstring first = Program().Tree().at(1).text;
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().Tree().at(1).Selected(); }));
    PressKey(VK_RETURN);
    WaitForClose(browser);
    EXPECT_EQ(Location(), L"\\" + first);
    EXPECT_TRUE(Program().HasFocus(NamePage, BUTTON_BROWSE)) << testing::PrintToString(Program().FocusPath());
}

TEST_F(Browser, that_is_left_without_ok_changes_nothing) {
    Program().SetText(NamePage, COMBO_LOCATION, L"\\before");
    const auto leave = [&](const std::function<void(const ProgramDialog&)>& way) {
        const ProgramDialog browser = OpenBrowser();
        Select({L"walk"});
        way(browser);
        WaitForClose(browser);
        EXPECT_EQ(Location(), L"\\before");
        EXPECT_TRUE(LocationEntries().empty());
    };
    leave([](const ProgramDialog& browser) { PostMessageW(browser.Window(), WM_COMMAND, IDCANCEL, 0); });
    leave([](const ProgramDialog& browser) { PostMessageW(browser.Window(), WM_SYSCOMMAND, SC_CLOSE, 0); });
    leave([](const ProgramDialog& browser) {
        WaitUntil("the browser in front", [&] { return GetForegroundWindow() == browser.Window(); });
        PressKey(VK_ESCAPE);
    });
}

TEST_F(Browser, stays_open_on_ok_with_nothing_selected_and_alone_on_f1) {
    const ProgramDialog browser = OpenBrowser();
    Program().SelectTreeItem(10000);
    PostMessageW(browser.Window(), WM_COMMAND, IDOK, 0);
    Program().WaitForQueue();
    EXPECT_TRUE(IsWindow(browser.Window()));
    WaitUntil("the browser in front", [&] { return GetForegroundWindow() == browser.Window(); });
    PressKey(VK_F1);
    // The key is through when one that comes after it has done its work.
    PressKey(VK_ESCAPE);
    WaitForClose(browser);
    EXPECT_TRUE(Program().Dialogs().empty());
    EXPECT_EQ(Location(), L"");
}

TEST_F(Browser, shows_links_that_lead_back_up_and_does_not_follow_them) {
    TempTree folders;
    folders.AddFolder(L"a\\b");
    if (!folders.AddFolderLink(L"a\\b\\loop", L"")) GTEST_SKIP() << "this system makes no links";
    const DeviceDrive looping(folders.Root());
    CloseProgram();
    ProgramStart start;
    start.path = ProgramPath();
    start.workingFolder = looping.Root();
    Program().Start(start);

    const ProgramDialog browser = OpenBrowser();
    std::vector<std::pair<int, std::wstring>> shown;
    for (const TreeItemState& item : Program().Tree())
        shown.emplace_back(item.depth, item.text);
    EXPECT_EQ(shown, (std::vector<std::pair<int, std::wstring>>{
                         {0, RootNameOfWorld()}, {1, L"a"}, {2, L"b"}, {3, L"loop"}}));
    Select({L"a", L"b", L"loop"});
    PostMessageW(browser.Window(), WM_COMMAND, IDOK, 0);
    WaitForClose(browser);
    EXPECT_EQ(Location(), L"\\a\\b\\loop");
    CloseProgram();
}

TEST_F(Browser, is_headed_by_the_name_that_the_registry_gives_the_device) {
    const wchar_t name[] = L"Anna's 手帳";
    RegSetKeyValueW(HKEY_CLASSES_ROOT, RootClass, L"DisplayName", REG_SZ, name, sizeof name);
    OpenBrowser();
    const std::wstring shown = Program().Tree().at(0).text;
    RegDeleteTreeW(HKEY_CLASSES_ROOT, RootClass);
    EXPECT_EQ(shown, name);
}
