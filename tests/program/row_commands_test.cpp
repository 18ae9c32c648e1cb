// The commands on rows as a whole: without a row, in the other views, and all the way by one device alone.

#include "resources/resource_ids.h"
#include "tests/program/results_test.h"
#include "tests/support/user_input.h"

class RowCommands : public ResultsTest {
  protected:
    bool RowsAre(const Names& names) {
        return HoldsWithin(StepDeadline, [&] { return Sorted(Program().RowNames()) == names; });
    }
};

TEST_F(RowCommands, do_nothing_without_a_selected_row) {
    AddFile(L"a.qsa");
    Find();
    Program().SelectRow(0, false);
    for (const int command :
         {COMMAND_OPEN, COMMAND_ADD_TO_START_MENU, COMMAND_DELETE, COMMAND_RENAME, COMMAND_PROPERTIES}) {
        Program().SendMenuCommand(static_cast<UINT>(command));
        EXPECT_TRUE(NoDialogOpen()) << command;
    }
    PressKey(VK_RETURN);
    PressKey(VK_RETURN, {VK_MENU});
    Program().WaitForQueue();
    EXPECT_TRUE(NoDialogOpen());
    EXPECT_TRUE(NothingStarted());
    EXPECT_TRUE(Program().ListHasFocus()) << "an edit was opened";
    EXPECT_TRUE(Stands(L"a.qsa"));
}

TEST_F(RowCommands, work_in_every_view) {
    for (const int view : {COMMAND_LARGE_ICON, COMMAND_SMALL_ICON, COMMAND_DETAILS}) {
        AddFile(L"a.qsa");
        Program().SendMenuCommand(static_cast<UINT>(view));
        Find();
        SelectRow(L"a.qsa");
        const ProgramDialog sheet = Opened(COMMAND_PROPERTIES);
        EXPECT_EQ(sheet.Text(STATIC_LOCATION), Folder());
        sheet.Press(IDCANCEL);
        Opened(COMMAND_DELETE).Press(IDYES);
        EXPECT_TRUE(RowsAre({})) << view;
        EXPECT_FALSE(Stands(L"a.qsa")) << view;
    }
}

TEST_F(RowCommands, by_a_search_for_a_registered_type_find_its_files_alone) {
    AddFile(L"a.qsa");
    AddFile(L"b.qsb");
    Find();
    const std::vector<std::wstring> types = Program().Combo(SizePage, COMBO_FILE_TYPE).entries;
    int alpha = -1;
    for (std::size_t i = 0; i < types.size(); ++i)
        if (types[i].find(L"Alpha kind") != std::wstring::npos) alpha = static_cast<int>(i);
    ASSERT_GE(alpha, 0) << "the kind is not offered";
    Program().SelectEntry(SizePage, COMBO_FILE_TYPE, alpha);
    EXPECT_EQ(Find(), (Names{L"a.qsa"}));
}

TEST_F(RowCommands, can_all_be_given_by_the_keyboard_alone) {
    AddFile(L"a.qsa", "of a");
    AddFile(L"b.qsb", "of b");
    Program().Fill(Where(Folder()));
    Program().FocusControl(NamePage, COMBO_NAME);
    PressKey(VK_RETURN);
    ASSERT_TRUE(RowsAre({L"a.qsa", L"b.qsb"}));
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().ListHasFocus(); }));
    // By type, "Alpha kind" comes first.
    PressKey('4', {VK_CONTROL});
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().RowNames() == Names{L"a.qsa", L"b.qsb"}; }));
    PressKey(VK_HOME);
    PressKey(VK_DOWN);
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().List().selected == 1; }));
    TakeFileMenuItem(3);
    ASSERT_TRUE(NameIsEdited());
    TypeText(L"c.qsb");
    PressKey(VK_RETURN);
    ASSERT_TRUE(RowsAre({L"a.qsa", L"c.qsb"}));
    PressKey(VK_UP);
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().List().selected == 0; }));
    TakeFileMenuItem(2);
    const HWND question = Dialog().Window();
    PressKey(VK_RETURN);
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return !IsWindow(question); }));
    EXPECT_TRUE(RowsAre({L"c.qsb"}));
    EXPECT_FALSE(Stands(L"a.qsa"));
    EXPECT_EQ(ContentOf(L"c.qsb"), "of b");
}
