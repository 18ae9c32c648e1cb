// Renaming in place: by the menu, by keys, and whatever is typed into the edit.

#include "resources/resource_ids.h"
#include "tests/program/results_test.h"
#include "tests/support/user_input.h"

class RenameRow : public ResultsTest {
  protected:
    void SetUp() override {
        ResultsTest::SetUp();
        AddFile(L"a.qsa", "of a");
        AddFile(L"b.qsb", "of b");
        Find();
        SelectRow(L"a.qsa");
    }
    // Begins by the command and types the text.
    void Type(const std::wstring& text) {
        Program().SendMenuCommand(COMMAND_RENAME);
        ASSERT_TRUE(NameIsEdited()) << testing::PrintToString(Program().FocusPath());
        if (text.empty()) {
            PressKey(VK_DELETE);
        } else {
            TypeText(text);
        }
    }
    bool RowsAre(const Names& names) {
        return HoldsWithin(StepDeadline, [&] { return Sorted(Program().RowNames()) == names; });
    }
    // The two boxes of a rename that failed, in order.
    void ExpectRefusal(const std::wstring& reason) {
        for (const std::wstring& text :
             {reason, Shown(L"Can't rename the file", L"名前の変更に失敗しました")}) {
            const ProgramDialog box = Dialog();
            EXPECT_EQ(box.Caption(), Shown(L"Error", L"ｴﾗｰ"));
            EXPECT_TRUE(box.HasText(text)) << testing::PrintToString(text);
            box.Press(IDOK);
        }
        EXPECT_TRUE(RowsAre({L"a.qsa", L"b.qsb"}));
        EXPECT_EQ(ContentOf(L"a.qsa"), "of a");
        EXPECT_EQ(ContentOf(L"b.qsb"), "of b");
        EXPECT_TRUE(NothingStarted()) << "Enter in the edit opened a file";
    }
};

TEST_F(RenameRow, by_the_menus_command_and_enter) {
    Type(L"日報.qsc");
    PressKey(VK_RETURN);
    EXPECT_TRUE(RowsAre({L"b.qsb", L"日報.qsc"}));
    EXPECT_EQ(ContentOf(L"日報.qsc"), "of a");
    EXPECT_FALSE(Stands(L"a.qsa"));
    // Type and icon stay what they were.
    EXPECT_EQ(Row(L"日報.qsc").type, L"Alpha kind");
    EXPECT_TRUE(NothingStarted()) << "Enter in the edit opened a file";
    EXPECT_TRUE(NoDialogOpen());
}

TEST_F(RenameRow, by_the_keyboard_alone) {
    TakeFileMenuItem(3);
    ASSERT_TRUE(NameIsEdited()) << testing::PrintToString(Program().FocusPath());
    TypeText(L"c.qsa");
    PressKey(VK_RETURN);
    EXPECT_TRUE(RowsAre({L"b.qsb", L"c.qsa"}));
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().ListHasFocus(); }));
}

TEST_F(RenameRow, is_given_up_with_escape) {
    Type(L"c.qsa");
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().ListHasFocus(); }));
    EXPECT_TRUE(RowsAre({L"a.qsa", L"b.qsb"}));
    EXPECT_EQ(ContentOf(L"a.qsa"), "of a");
    EXPECT_FALSE(Stands(L"c.qsa"));
}

TEST_F(RenameRow, is_taken_by_a_click_elsewhere) {
    Type(L"c.qsa");
    ClickAt(PlaceOf(L"b.qsb"));
    EXPECT_TRUE(RowsAre({L"b.qsb", L"c.qsa"}));
    EXPECT_EQ(ContentOf(L"c.qsa"), "of a");
}

TEST_F(RenameRow, to_the_name_of_another_file_is_refused_with_two_boxes) {
    Type(L"b.qsb");
    PressKey(VK_RETURN);
    ExpectRefusal(L"Error Move file 183");
}

TEST_F(RenameRow, into_a_missing_folder_is_refused_with_two_boxes) {
    Type(L"no\\a.qsa");
    PressKey(VK_RETURN);
    ExpectRefusal(L"Error Move file 3");
}

TEST_F(RenameRow, to_nothing_is_refused_with_two_boxes) {
    Type(L"");
    PressKey(VK_RETURN);
    ExpectRefusal(L"Error Move file 183");
}

TEST_F(RenameRow, of_a_file_in_use_tells_its_path) {
    const HANDLE held =
        CreateFileW(Real(L"a.qsa").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    Type(L"c.qsa");
    PressKey(VK_RETURN);
    const ProgramDialog box = Dialog();
    EXPECT_TRUE(box.HasText(Path(L"a.qsa") + Shown(L" is in use", L" は使用中です")));
    box.Press(IDOK);
    Dialog().Press(IDOK);
    CloseHandle(held);
    EXPECT_TRUE(RowsAre({L"a.qsa", L"b.qsb"}));
    EXPECT_EQ(ContentOf(L"a.qsa"), "of a");
}

TEST_F(RenameRow, then_opens_the_file_under_its_new_name) {
    Type(L"c.qsa");
    PressKey(VK_RETURN);
    ASSERT_TRUE(RowsAre({L"b.qsb", L"c.qsa"}));
    PressKey(VK_RETURN);
    const std::wstring started = Started(1).at(0);
    EXPECT_NE(std::wstring::npos, started.find(Path(L"c.qsa"))) << testing::PrintToString(started);
}
