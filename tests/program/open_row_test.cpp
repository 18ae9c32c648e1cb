// Opening rows and adding them to the Start menu, with the real shell; what it starts is the recorder.

#include <windows.h>

#include <shellapi.h>

#include "resources/resource_ids.h"
#include "tests/program/results_test.h"
#include "tests/support/user_input.h"

class OpenRow : public ResultsTest {
  protected:
    void SetUp() override {
        ResultsTest::SetUp();
        Tree().AddFolder(StartMenu().substr(1));
    }
    static std::wstring StartMenu() {
        return Shown(L"\\Windows\\Start Menu\\Programs", L"\\Windows\\ｽﾀｰﾄ ﾒﾆｭｰ\\ﾌﾟﾛｸﾞﾗﾑ");
    }
    // The one argument of what was started, as a path on the device.
    std::wstring OpenedFile() {
        std::wstring argument = Started(1).at(0);
        if (argument.size() >= 2 && argument.front() == L'"')
            argument = argument.substr(1, argument.size() - 2);
        if (argument.rfind(Drive().Letter(), 0) == 0) argument = argument.substr(Drive().Letter().size());
        return argument;
    }
    void Open(const std::wstring& name) {
        SelectRow(name);
        Program().SendMenuCommand(COMMAND_OPEN);
    }
};

TEST_F(OpenRow, by_the_menus_command) {
    AddFile(L"a b.qsa");
    AddFile(L"other.qsb");
    Find();
    Open(L"a b.qsa");
    EXPECT_EQ(OpenedFile(), Path(L"a b.qsa"));
}

TEST_F(OpenRow, by_enter) {
    AddFile(L"日報.qsb");
    Find();
    PressKey(VK_RETURN);
    EXPECT_EQ(OpenedFile(), Path(L"日報.qsb"));
}

TEST_F(OpenRow, by_a_double_click) {
    AddFile(L"a.qsc");
    Find();
    DoubleClickAt(PlaceOf(L"a.qsc"));
    EXPECT_EQ(OpenedFile(), Path(L"a.qsc"));
    EXPECT_EQ(Program().RowNames(), (Names{L"a.qsc"}));
}

TEST_F(OpenRow, that_is_a_program_starts_it) {
    AddProgram(L"my recorder.exe");
    Find();
    Open(L"my recorder.exe");
    EXPECT_EQ(Started(1), (Names{L""}));
}

TEST_F(OpenRow, that_is_a_shortcut_starts_its_quoted_program_with_the_quotes_doubled) {
    AddProgram(L"my recorder.exe");
    AddShortcut(L"s.lnk", L"\"" + Path(L"my recorder.exe") + L"\" /o \"a b.txt\"");
    Find(L"s.lnk");
    PressKey(VK_RETURN);
    EXPECT_EQ(Started(1), (Names{L"/o \"\"a b.txt\"\""}));
}

TEST_F(OpenRow, that_is_a_shortcut_to_a_document_opens_it) {
    AddFile(L"a b.qsa");
    AddShortcut(L"s.lnk", L"\"" + Path(L"a b.qsa") + L"\"");
    Find(L"s.lnk");
    Open(L"s.lnk");
    EXPECT_EQ(OpenedFile(), Path(L"a b.qsa"));
}

TEST_F(OpenRow, that_is_a_folder_or_a_shortcut_to_one_does_nothing) {
    Tree().AddFolder(Path(L"a folder").substr(1));
    AddShortcut(L"s.lnk", L"\"" + Path(L"a folder") + L"\"");
    Find();
    Open(L"a folder");
    Open(L"s.lnk");
    EXPECT_TRUE(NothingStarted());
    EXPECT_TRUE(NoDialogOpen());
}

TEST_F(OpenRow, that_is_no_real_shortcut_is_silent) {
    AddFile(L"empty.lnk", "");
    AddFile(L"short.lnk", "9#");
    AddFile(L"binary.lnk", std::string(5000, '\x90'));
    AddFile(L"header.lnk", std::string("L\0\0\0\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46\xFF\xFF", 22));
    for (const std::wstring& name : Find()) {
        Open(name);
        EXPECT_TRUE(NoDialogOpen()) << testing::PrintToString(name);
    }
    EXPECT_TRUE(NothingStarted());
    EXPECT_TRUE(Program().IsRunning());
}

TEST_F(OpenRow, that_is_a_shortcut_to_a_shortcut_or_to_nothing_harms_nothing) {
    AddFile(L"a.qsa");
    AddShortcut(L"text.lnk", Path(L"a.qsa"));
    AddFile(L"damaged.lnk", std::string("L\0\0\0\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46\xFF\xFF", 22) +
                                std::string(500, '\xFF'));
    AddShortcut(L"to text.lnk", Path(L"text.lnk"));
    AddShortcut(L"to damaged.lnk", Path(L"damaged.lnk"));
    AddShortcut(L"to nothing.lnk", Path(L"nothing.exe"));
    for (const std::wstring& name : Find(L"to *")) {
        SCOPED_TRACE(testing::PrintToString(name));
        Open(name);
        // The shell may tell what it could not do.
        if (const std::optional<ProgramDialog> told = OpenDialogOf(Program().Window())) told->Press(IDOK);
        EXPECT_TRUE(Program().IsRunning());
    }
    EXPECT_EQ(Sorted(Program().RowNames()), (Names{L"to damaged.lnk", L"to nothing.lnk", L"to text.lnk"}));
}

TEST_F(OpenRow, added_to_the_start_menu_three_times_gives_three_shortcuts_that_work) {
    AddProgram(L"my recorder.exe");
    Find();
    SelectRow(L"my recorder.exe");
    for (int i = 0; i < 3; ++i)
        Program().SendMenuCommand(COMMAND_ADD_TO_START_MENU);
    SHFILEINFOW info = {};
    SHGetFileInfoW(Real(L"my recorder.exe").c_str(), 0, &info, sizeof(info), SHGFI_DISPLAYNAME);
    const std::wstring name = info.szDisplayName;
    const Names expected = {name + L" (2).lnk", name + L" (3).lnk", name + L".lnk"};
    EXPECT_EQ(Sorted(NamesFoundBy(Where(StartMenu()))), expected);
    Open(name + L" (3).lnk");
    EXPECT_EQ(Started(1), (Names{L""}));
    for (const std::wstring& shortcut : expected)
        DeleteFileW((Drive().Letter() + StartMenu() + L"\\" + shortcut).c_str());
}

TEST_F(OpenRow, that_is_a_shortcut_added_to_the_start_menu_points_to_its_target) {
    AddProgram(L"recorder.exe");
    AddShortcut(L"s.lnk", Path(L"recorder.exe"));
    Find(L"s.lnk");
    SelectRow(L"s.lnk");
    Program().SendMenuCommand(COMMAND_ADD_TO_START_MENU);
    const Names made = NamesFoundBy(Where(StartMenu()));
    ASSERT_EQ(made.size(), 1u);
    // Its target is the program, not the first shortcut.
    DeleteFileW(Real(L"s.lnk").c_str());
    Open(made[0]);
    EXPECT_EQ(Started(1), (Names{L""}));
    DeleteFileW((Drive().Letter() + StartMenu() + L"\\" + made[0]).c_str());
}
