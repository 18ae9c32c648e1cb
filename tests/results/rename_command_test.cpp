// Renaming the selected row's file: whatever happens, the file stands under exactly one name and the row
// tells which.

#include "tests/results/rename_test.h"

namespace {

DWORD failureCode = 0;

BOOL FailToMove(const wchar_t*, const wchar_t*) {
    SetLastError(failureCode);
    return FALSE;
}

}  // namespace

class RenameCommand : public RenameTest {
  protected:
    // As the list tells it when the editing of the first row ends with this text.
    void EndWith(const std::wstring& newName) {
        std::wstring text = newName;
        NMLVDISPINFOW edited = {};
        edited.item.mask = LVIF_TEXT;
        edited.item.pszText = text.data();
        Commands().EndRename(edited);
    }
    int ImageOfFirstRow() {
        LVITEMW item = {};
        item.mask = LVIF_IMAGE;
        SendMessageW(List().Handle(), LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return item.iImage;
    }
    // The rename is refused with these two boxes and the row has not changed.
    void ExpectRefused(const std::wstring& newName, const wchar_t* reason) {
        const AnsweredBoxes boxes{IDOK};
        EndWith(newName);
        ExpectRefusal(boxes, reason);
    }
};

TEST_F(RenameCommand, moves_the_file_and_shows_its_new_name) {
    const AnsweredBoxes boxes{IDOK};
    EndWith(L"b.doc");
    EXPECT_TRUE(boxes.Seen().empty());
    EXPECT_EQ(Files(), (Names{L"b.doc"}));
    EXPECT_EQ(ContentOf(L"b.doc"), "of a");
    EXPECT_EQ(RowNames(), (Names{L"b.doc"}));
}

TEST_F(RenameCommand, leaves_the_other_cells_and_the_icon_even_when_the_ending_changed) {
    const std::vector<std::wstring> before = CellsOf(List().Handle(), 0);
    const int imageBefore = ImageOfFirstRow();
    // An application would have an icon of its own.
    EndWith(L"a.exe");
    std::vector<std::wstring> expected = before;
    expected[0] = L"a.exe";
    EXPECT_EQ(CellsOf(List().Handle(), 0), expected);
    EXPECT_EQ(ImageOfFirstRow(), imageBefore);
}

TEST_F(RenameCommand, that_was_cancelled_does_nothing) {
    std::wstring text = L"b.txt";
    NMLVDISPINFOW edited = {};
    edited.item.pszText = text.data();
    Commands().EndRename(edited);
    edited.item.mask = LVIF_TEXT;
    edited.item.pszText = nullptr;
    Commands().EndRename(edited);
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
    EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
}

TEST_F(RenameCommand, onto_an_existing_file_keeps_both) {
    tree_.AddFile(L"b.txt", "of b");
    ExpectRefused(L"b.txt", L"Error Move file 183");
    EXPECT_EQ(ContentOf(L"a.txt"), "of a");
    EXPECT_EQ(ContentOf(L"b.txt"), "of b");
}

TEST_F(RenameCommand, to_nothing_is_refused) {
    const AnsweredBoxes boxes{IDOK};
    EndWith(L"");
    EXPECT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
    EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
}

TEST_F(RenameCommand, into_a_missing_folder_is_refused) {
    ExpectRefused(L"missing\\b.txt", L"Error Move file 3");
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
}

TEST_F(RenameCommand, into_an_existing_folder_moves_the_file_there) {
    tree_.AddFolder(L"sub");
    EndWith(L"sub\\b.txt");
    EXPECT_EQ(ContentOf(L"sub\\b.txt"), "of a");
    EXPECT_EQ(Files(), (Names{L"sub"}));
    wchar_t path[MAX_PATH] = L"";
    List().SelectRow(0);
    EXPECT_EQ(List().SelectedPath(path), 0);
    EXPECT_EQ(path, tree_.Path(L"sub\\b.txt"));
}

TEST_F(RenameCommand, to_a_name_that_makes_the_path_too_long_is_refused) {
    ExpectRefused(std::wstring(259, L'n'), L"Error Move file 206");
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
}

TEST_F(RenameCommand, of_a_file_that_vanished_is_refused) {
    ASSERT_TRUE(DeleteFileW(tree_.Path(L"a.txt").c_str()));
    ExpectRefused(L"b.txt", L"Error Move file 2");
    EXPECT_EQ(Files(), Names());
}

TEST_F(RenameCommand, of_a_file_in_use_tells_its_path) {
    const Replaced failing(ce::fileCalls.moveFile, &FailToMove);
    failureCode = ERROR_SHARING_VIOLATION;
    ExpectRefused(L"b.txt", (tree_.Path(L"a.txt") + L" is in use").c_str());
}

TEST_F(RenameCommand, is_refused_in_japanese_on_a_japanese_surface) {
    const Replaced failing(ce::fileCalls.moveFile, &FailToMove);
    failureCode = ERROR_DISK_FULL;
    UseJapanese();
    const AnsweredBoxes boxes{IDOK};
    EndWith(L"b.txt");
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(boxes.Seen()[1].caption, L"ｴﾗｰ");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"ﾃﾞｨｽｸがいっぱいです"));
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"名前の変更に失敗しました"));
    EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
}

TEST_F(RenameCommand, to_the_same_name_changes_nothing) {
    const AnsweredBoxes boxes{IDOK};
    EndWith(L"a.txt");
    EXPECT_TRUE(boxes.Seen().empty());
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
    EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
}

TEST_F(RenameCommand, of_a_read_only_file_moves_it) {
    ASSERT_TRUE(SetFileAttributesW(tree_.Path(L"a.txt").c_str(), FILE_ATTRIBUTE_READONLY));
    EndWith(L"b.txt");
    EXPECT_EQ(Files(), (Names{L"b.txt"}));
    EXPECT_EQ(RowNames(), (Names{L"b.txt"}));
    EXPECT_NE(GetFileAttributesW(tree_.Path(L"b.txt").c_str()) & FILE_ATTRIBUTE_READONLY, 0u);
}

TEST_F(RenameCommand, of_a_file_that_another_program_holds_is_refused) {
    const HANDLE held =
        CreateFileW(tree_.Path(L"a.txt").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    ExpectRefused(L"b.txt", (tree_.Path(L"a.txt") + L" is in use").c_str());
    CloseHandle(held);
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
    EXPECT_EQ(ContentOf(L"a.txt"), "of a");
}

TEST_F(RenameCommand, onto_a_folder_is_refused) {
    tree_.AddFile(L"sub\\inside.txt", "inside");
    ExpectRefused(L"sub", L"Error Move file 183");
    EXPECT_EQ(ContentOf(L"a.txt"), "of a");
    EXPECT_EQ(ContentOf(L"sub\\inside.txt"), "inside");
}

TEST_F(RenameCommand, that_changes_only_the_case_keeps_the_one_file) {
    EndWith(L"A.TXT");
    // Whether the case follows is the file system's business.
    EXPECT_EQ(Files().size(), 1u);
    EXPECT_EQ(ContentOf(L"A.TXT"), "of a");
    EXPECT_EQ(RowNames(), (Names{L"A.TXT"}));
}

TEST_F(RenameCommand, to_a_name_that_no_file_can_have_is_refused) {
    for (const wchar_t* name : {L"a?.txt", L"a*", L"a|b", L"<a>", L"a\"b", L"c:b.txt"}) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(name)));
        const AnsweredBoxes boxes{IDOK};
        EndWith(name);
        EXPECT_EQ(boxes.Seen().size(), 2u);
        EXPECT_EQ(Files(), (Names{L"a.txt"}));
        EXPECT_EQ(ContentOf(L"a.txt"), "of a");
        EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
    }
}

TEST_F(RenameCommand, of_a_folder_moves_it_with_what_it_holds) {
    tree_.AddFile(L"sub\\inside.txt", "inside");
    AddRow(L"sub");
    std::wstring text = L"other";
    NMLVDISPINFOW edited = {};
    edited.item.mask = LVIF_TEXT;
    edited.item.iItem = 1;
    edited.item.pszText = text.data();
    Commands().EndRename(edited);
    EXPECT_EQ(ContentOf(L"other\\inside.txt"), "inside");
    EXPECT_FALSE(Stands(L"sub"));
    EXPECT_EQ(RowNames(), (Names{L"a.txt", L"other"}));
}
