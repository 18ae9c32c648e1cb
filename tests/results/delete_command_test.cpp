// Deleting the selected row's file.

#include "tests/results/result_commands_test.h"

namespace {

DWORD failureCode = 0;

BOOL FailToDelete(const wchar_t*) {
    SetLastError(failureCode);
    return FALSE;
}

using Names = std::vector<std::wstring>;

}  // namespace

class DeleteCommand : public ResultCommandsTest {
  protected:
    DeleteCommand() {
        AddFileRow(L"a.txt");
        AddFileRow(L"b.txt");
        AddFileRow(L"c.txt");
        List().SelectRow(1);
    }
    void ExpectNothingGone() {
        EXPECT_TRUE(Stands(L"a.txt") && Stands(L"b.txt") && Stands(L"c.txt"));
        EXPECT_EQ(RowNames(), (Names{L"a.txt", L"b.txt", L"c.txt"}));
    }
};

TEST_F(DeleteCommand, asks_and_on_yes_takes_the_file_and_its_row) {
    const AnsweredBoxes boxes{IDYES};
    Commands().Delete();
    ASSERT_EQ(boxes.Seen().size(), 1u);
    EXPECT_EQ(boxes.Seen()[0].caption, L"Confirm File Delete");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"Are you sure you want to delete 'b.txt'?"));
    EXPECT_EQ(boxes.Seen()[0].owner, OwnerHandle());
    EXPECT_FALSE(Stands(L"b.txt"));
    EXPECT_TRUE(Stands(L"a.txt") && Stands(L"c.txt"));
    EXPECT_EQ(RowNames(), (Names{L"a.txt", L"c.txt"}));
}

TEST_F(DeleteCommand, leaves_the_other_rows_their_numbers) {
    const AnsweredBoxes boxes{IDYES};
    Commands().Delete();
    EXPECT_EQ(RowNumberOf(List().Handle(), 0), 0);
    EXPECT_EQ(RowNumberOf(List().Handle(), 1), 2);
}

TEST_F(DeleteCommand, does_nothing_on_any_answer_but_yes) {
    for (const int answer : {IDNO, IDCANCEL, IDOK, 20}) {
        const AnsweredBoxes boxes{answer};
        Commands().Delete();
        EXPECT_EQ(boxes.Seen().size(), 1u);
        ExpectNothingGone();
    }
}

TEST_F(DeleteCommand, keeps_the_row_of_a_file_that_cannot_be_deleted) {
    const Replaced failing(ce::fileCalls.deleteFile, &FailToDelete);
    failureCode = ERROR_SHARING_VIOLATION;
    const AnsweredBoxes boxes{IDYES, IDOK};
    Commands().Delete();
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(boxes.Seen()[1].caption, L"Error");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"Error DeleteFile 32"));
    EXPECT_EQ(boxes.Seen()[1].owner, OwnerHandle());
    ExpectNothingGone();
}

TEST_F(DeleteCommand, asks_and_reports_in_japanese_on_a_japanese_surface) {
    const Replaced failing(ce::fileCalls.deleteFile, &FailToDelete);
    failureCode = ERROR_ACCESS_DENIED;
    UseJapanese();
    const AnsweredBoxes boxes{IDYES, IDOK};
    Commands().Delete();
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(boxes.Seen()[0].caption, L"ﾌｧｲﾙの削除の確認");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"'b.txt' を削除してもよろしいですか?"));
    EXPECT_EQ(boxes.Seen()[1].caption, L"ｴﾗｰ");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"ﾌｧｲﾙにｱｸｾｽできません"));
    ExpectNothingGone();
}

TEST_F(DeleteCommand, reports_a_file_that_vanished_and_keeps_its_row) {
    ASSERT_TRUE(DeleteFileW(tree_.Path(L"b.txt").c_str()));
    const AnsweredBoxes boxes{IDYES, IDOK};
    Commands().Delete();
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"Error DeleteFile 2"));
    EXPECT_EQ(RowNames(), (Names{L"a.txt", L"b.txt", L"c.txt"}));
}

TEST_F(DeleteCommand, fails_for_a_folder_and_says_so) {
    tree_.AddFile(L"folder\\inside.txt");
    AddRow(L"folder");
    List().SelectRow(3);
    const AnsweredBoxes boxes{IDYES, IDOK};
    Commands().Delete();
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"Access denied"));
    EXPECT_TRUE(Stands(L"folder\\inside.txt"));
    EXPECT_EQ(RowNames(), (Names{L"a.txt", L"b.txt", L"c.txt", L"folder"}));
}
