// Deleting the selected row's file, with its question.

#include "resources/resource_ids.h"
#include "tests/program/results_test.h"
#include "tests/support/user_input.h"

class DeleteRow : public ResultsTest {
  protected:
    void SetUp() override {
        ResultsTest::SetUp();
        AddFile(L"a & b.qsa");
        AddFile(L"c.qsb");
        Find();
        SelectRow(L"a & b.qsa");
    }
    bool RowsAre(const Names& names) {
        return HoldsWithin(StepDeadline, [&] { return Sorted(Program().RowNames()) == names; });
    }
};

TEST_F(DeleteRow, asks_in_the_middle_of_the_screen_in_the_programs_language) {
    const ProgramDialog question = Opened(COMMAND_DELETE);
    EXPECT_EQ(question.Caption(), Shown(L"Confirm File Delete", L"ﾌｧｲﾙの削除の確認"));
    EXPECT_EQ(question.Text(STATIC_QUESTION), Shown(L"Are you sure you want to delete 'a & b.qsa'?",
                                                    L"'a & b.qsa' を削除してもよろしいですか?"));
    EXPECT_EQ(question.Text(IDYES), Shown(L"&Yes", L"はい(&Y)"));
    EXPECT_EQ(question.Text(IDNO), Shown(L"&No", L"いいえ(&N)"));
    const RECT place = question.Place();
    EXPECT_GE(place.left, 0);
    EXPECT_GE(place.top, 0);
    EXPECT_LE(place.right, World().screenWidth);
    EXPECT_LE(place.bottom, World().screenHeight);
    question.Press(IDNO);
    EXPECT_TRUE(RowsAre({L"a & b.qsa", L"c.qsb"}));
    EXPECT_TRUE(Stands(L"a & b.qsa"));
}

TEST_F(DeleteRow, takes_the_file_and_its_row_on_yes) {
    const long long kept = Row(L"c.qsb").parameter;
    Opened(COMMAND_DELETE).Press(IDYES);
    EXPECT_TRUE(RowsAre({L"c.qsb"}));
    EXPECT_FALSE(Stands(L"a & b.qsa"));
    EXPECT_TRUE(Stands(L"c.qsb"));
    EXPECT_EQ(Row(L"c.qsb").parameter, kept);
}

TEST_F(DeleteRow, of_the_last_row_grays_the_commands) {
    Opened(COMMAND_DELETE).Press(IDYES);
    ASSERT_TRUE(RowsAre({L"c.qsb"}));
    SelectRow(L"c.qsb");
    EXPECT_FALSE(Program().MenuItem(COMMAND_DELETE).Grayed());
    Opened(COMMAND_DELETE).Press(IDYES);
    ASSERT_TRUE(RowsAre({}));
    for (const int command : {COMMAND_OPEN, COMMAND_DELETE, COMMAND_RENAME, COMMAND_PROPERTIES})
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] {
            return Program().MenuItem(static_cast<UINT>(command)).Grayed();
        })) << command;
}

TEST_F(DeleteRow, by_the_keyboard_alone_with_each_answer) {
    struct Answer {
        const char* what;
        WORD key;
        std::vector<WORD> modifiers;
        bool deleted;
    };
    for (const Answer& answer : {Answer{"Esc", VK_ESCAPE, {}, false}, Answer{"Alt+N", 'N', {VK_MENU}, false},
                                 Answer{"Alt+Y", 'Y', {VK_MENU}, true}}) {
        TakeFileMenuItem(2);
        const ProgramDialog question = Dialog();
        if (answer.modifiers.empty()) {
            PressKey(answer.key);
        } else {
            PressKey(answer.key, {VK_MENU});
        }
        ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return !IsWindow(question.Window()); })) << answer.what;
        EXPECT_TRUE(RowsAre(answer.deleted ? Names{L"c.qsb"} : Names{L"a & b.qsa", L"c.qsb"})) << answer.what;
        EXPECT_EQ(Stands(L"a & b.qsa"), !answer.deleted) << answer.what;
    }
}

TEST_F(DeleteRow, by_the_mouse_alone) {
    ClickAt(PlaceOf(L"c.qsb"));
    ClickAt(CentreOf(Program().Bar().at(0).rectangle));
    ASSERT_TRUE(HoldsWithin(StepDeadline, [] { return FindWindowW(L"#32768", nullptr) != nullptr; }));
    RECT menu = {};
    GetWindowRect(FindWindowW(L"#32768", nullptr), &menu);
    // Five items and two separators, each half as high: the second item follows the first separator.
    const LONG sixth = (menu.bottom - menu.top) / 6;
    ClickAt({(menu.left + menu.right) / 2, menu.top + 2 * sixth});
    const ProgramDialog question = Dialog();
    EXPECT_EQ(question.Caption(), Shown(L"Confirm File Delete", L"ﾌｧｲﾙの削除の確認"));
    RECT yes = {};
    GetWindowRect(question.Control(IDYES), &yes);
    ClickAt(CentreOf(yes));
    EXPECT_TRUE(RowsAre({L"a & b.qsa"}));
    EXPECT_FALSE(Stands(L"c.qsb"));
}

TEST_F(DeleteRow, that_fails_tells_why_and_keeps_the_row) {
    const HANDLE held =
        CreateFileW(Real(L"c.qsb").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    SelectRow(L"c.qsb");
    Opened(COMMAND_DELETE).Press(IDYES);
    const ProgramDialog box = Dialog();
    EXPECT_EQ(box.Caption(), Shown(L"Error", L"ｴﾗｰ"));
    EXPECT_TRUE(box.HasText(L"Error DeleteFile 32"));
    box.Press(IDOK);
    CloseHandle(held);
    EXPECT_TRUE(RowsAre({L"a & b.qsa", L"c.qsb"}));
    EXPECT_TRUE(Stands(L"c.qsb"));
}

TEST_F(DeleteRow, of_a_folder_fails_and_tells_why) {
    AddFile(L"folder\\inside.qsa");
    Find(L"folder");
    SelectRow(L"folder");
    Opened(COMMAND_DELETE).Press(IDYES);
    const ProgramDialog box = Dialog();
    EXPECT_TRUE(box.HasText(Shown(L"Access denied", L"ﾌｧｲﾙにｱｸｾｽできません")));
    box.Press(IDOK);
    EXPECT_TRUE(RowsAre({L"folder"}));
    EXPECT_TRUE(Stands(L"folder\\inside.qsa"));
}
