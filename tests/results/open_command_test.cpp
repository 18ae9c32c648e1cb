// Opening the selected row and adding it to the Start menu.

#include "tests/results/result_commands_test.h"

class OpenCommand : public ResultCommandsTest {
  protected:
    // Opens a shortcut with this target and returns what was started.
    StartedFile OpenShortcutTo(const std::wstring& target) {
        AddFileRow(L"a.lnk");
        List().SelectRow(0);
        Shell().target = target;
        Commands().Open();
        EXPECT_EQ(Shell().started.size(), 1u);
        return Shell().started.empty() ? StartedFile{} : Shell().started[0];
    }
};

TEST_F(OpenCommand, starts_a_file_by_its_path_with_the_default_action) {
    AddFileRow(L"first.txt");
    AddFileRow(L"a b.txt");
    List().SelectRow(1);
    Commands().Open();
    ASSERT_EQ(Shell().started.size(), 1u);
    const StartedFile& started = Shell().started[0];
    EXPECT_EQ(started.file, tree_.Path(L"a b.txt"));
    EXPECT_EQ(started.info.cbSize, sizeof(SHELLEXECUTEINFOW));
    EXPECT_EQ(started.info.fMask, 0u);
    EXPECT_EQ(started.info.hwnd, OwnerHandle());
    EXPECT_EQ(started.info.lpVerb, nullptr);
    EXPECT_EQ(started.info.lpParameters, nullptr);
    EXPECT_EQ(started.info.lpDirectory, nullptr);
    EXPECT_EQ(started.info.nShow, SW_SHOWNORMAL);
}

TEST_F(OpenCommand, starts_a_file_that_has_vanished_and_leaves_the_failure_to_the_shell) {
    AddRow(L"vanished.txt");
    List().SelectRow(0);
    Commands().Open();
    ASSERT_EQ(Shell().started.size(), 1u);
    EXPECT_EQ(Shell().started[0].file, tree_.Path(L"vanished.txt"));
}

TEST_F(OpenCommand, runs_a_shortcuts_quoted_program_with_the_quotes_of_its_argument_doubled) {
    const StartedFile started = OpenShortcutTo(L"\"\\Program Files\\my app.exe\" /o \"a b.txt\"");
    EXPECT_EQ(started.file, L"\\Program Files\\my app.exe");
    EXPECT_EQ(started.arguments, L"/o \"\"a b.txt\"\"");
    EXPECT_EQ(started.info.hwnd, nullptr);
    EXPECT_EQ(started.info.lpVerb, nullptr);
    EXPECT_EQ(started.info.lpDirectory, nullptr);
    EXPECT_EQ(started.info.nShow, SW_SHOWNORMAL);
    EXPECT_EQ(Shell().targetCapacities, (std::vector<int>{1040}));
}

TEST_F(OpenCommand, runs_a_shortcuts_program_up_to_the_first_blank) {
    const StartedFile started = OpenShortcutTo(L" \t\\Windows\\calc.exe \t one two");
    EXPECT_EQ(started.file, L"\\Windows\\calc.exe");
    EXPECT_EQ(started.arguments, L"one two");
}

TEST_F(OpenCommand, passes_an_empty_text_where_a_shortcut_has_no_arguments) {
    const StartedFile started = OpenShortcutTo(L"\"\\My Documents\\a.txt\"");
    EXPECT_EQ(started.file, L"\\My Documents\\a.txt");
    EXPECT_EQ(started.arguments, L"");
}

TEST_F(OpenCommand, reads_a_shortcut_whatever_the_case_of_its_ending) {
    AddFileRow(L"a.LNK");
    List().SelectRow(0);
    Shell().target = L"\\b.exe";
    Commands().Open();
    ASSERT_EQ(Shell().started.size(), 1u);
    EXPECT_EQ(Shell().started[0].file, L"\\b.exe");
}

TEST_F(OpenCommand, does_nothing_with_a_folder) {
    tree_.AddFolder(L"folder");
    AddRow(L"folder");
    List().SelectRow(0);
    Commands().Open();
    EXPECT_TRUE(Shell().started.empty());
}

TEST_F(OpenCommand, does_nothing_with_a_shortcut_to_a_folder) {
    tree_.AddFolder(L"a folder");
    AddFileRow(L"a.lnk");
    List().SelectRow(0);
    Shell().target = L"\"" + tree_.Path(L"a folder") + L"\"";
    Commands().Open();
    EXPECT_EQ(Shell().targetCapacities.size(), 1u);
    EXPECT_TRUE(Shell().started.empty());
}

TEST_F(OpenCommand, is_silent_about_a_shortcut_that_cannot_be_read) {
    const AnsweredBoxes boxes{IDOK};
    AddFileRow(L"a.lnk");
    List().SelectRow(0);
    Commands().Open();
    EXPECT_EQ(Shell().targetCapacities.size(), 1u);
    EXPECT_TRUE(Shell().started.empty());
    EXPECT_TRUE(boxes.Seen().empty());
}

class StartMenuCommand : public ResultCommandsTest {
  protected:
    // Every shortcut that was made is there the next time.
    static DWORD AttributesOf(const wchar_t* path) {
        for (const MadeShortcut& made : Shell().made) {
            if (made.shortcut == path) return FILE_ATTRIBUTE_NORMAL;
        }
        return INVALID_FILE_ATTRIBUTES;
    }

    std::vector<std::wstring> ShortcutsMadeBy(int times) {
        AddFileRow(L"notes.txt");
        List().SelectRow(0);
        const Replaced attributes(ce::fileCalls.getFileAttributes, &AttributesOf);
        for (int i = 0; i < times; ++i)
            Commands().AddToStartMenu();
        std::vector<std::wstring> shortcuts;
        for (const MadeShortcut& made : Shell().made)
            shortcuts.push_back(made.shortcut);
        return shortcuts;
    }
};

TEST_F(StartMenuCommand, numbers_the_second_and_the_third_shortcut_to_the_same_file) {
    EXPECT_EQ(ShortcutsMadeBy(3),
              (std::vector<std::wstring>{L"\\Windows\\Start Menu\\Programs\\Notes.lnk",
                                         L"\\Windows\\Start Menu\\Programs\\Notes (2).lnk",
                                         L"\\Windows\\Start Menu\\Programs\\Notes (3).lnk"}));
    for (const MadeShortcut& made : Shell().made)
        EXPECT_EQ(made.target, tree_.Path(L"notes.txt"));
}

TEST_F(StartMenuCommand, uses_the_japanese_folder_on_a_japanese_surface) {
    UseJapanese();
    EXPECT_EQ(ShortcutsMadeBy(1), (std::vector<std::wstring>{L"\\Windows\\ｽﾀｰﾄ ﾒﾆｭｰ\\ﾌﾟﾛｸﾞﾗﾑ\\Notes.lnk"}));
}

class CommandsWithoutSelection : public ResultCommandsTest {};

TEST_F(CommandsWithoutSelection, do_nothing) {
    AddFileRow(L"a.txt");
    const AnsweredBoxes boxes{IDYES};
    Commands().Open();
    Commands().AddToStartMenu();
    Commands().Delete();
    Commands().BeginRename();
    Commands().ShowProperties();
    EXPECT_TRUE(Shell().started.empty());
    EXPECT_TRUE(Shell().made.empty());
    EXPECT_TRUE(boxes.Seen().empty());
    EXPECT_EQ(SendMessageW(List().Handle(), LVM_GETEDITCONTROL, 0, 0), 0);
    EXPECT_TRUE(Stands(L"a.txt"));
    EXPECT_EQ(RowNames(), (std::vector<std::wstring>{L"a.txt"}));
}
