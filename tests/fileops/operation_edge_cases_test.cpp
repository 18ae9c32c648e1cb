// Cases in which the operations do what one may not expect.

#include "platform/windows_ce.h"
#include "resources/resource_ids.h"
#include "tests/fileops/operation_test.h"
#include "tests/support/replaced_calls.h"

namespace {

constexpr const char* Recursive = "Error: Source to destination is recursive";

}  // namespace

class OperationEdgeCases : public OperationTest {
  protected:
    // The file's time of last writing: 2 January 2003, 04:05 and these seconds.
    void SetSeconds(const std::string& file, WORD seconds) {
        SetLastWriteTime(PathIn(tree_, file), {2003, 1, 4, 2, 4, 5, seconds, 0});
    }
    void ReadQuestion(HWND box) {
        wchar_t text[600] = L"";
        GetDlgItemTextW(box, STATIC_QUESTION, text, 600);
        question_ = text;
    }
    void CopyOf(const std::string& source, const std::string& destination) {
        Prepare(FileOperationKind::Copy, {source}, destination);
    }

    std::wstring question_;
};

TEST_F(OperationEdgeCases, copying_a_folder_into_the_folder_that_holds_it_is_refused) {
    AddContents(tree_, "a/b/f=1");
    CopyOf("a/b", "a");
    EXPECT_EQ(Run(), Recursive);
    EXPECT_EQ(Contents(), "a/b/f=1");
}

TEST_F(OperationEdgeCases, copying_a_folder_into_itself_is_refused) {
    AddContents(tree_, "a/f=1 a/x/");
    for (const char* const destination : {"a/x", "A", "a/new", "a"}) {
        CopyOf("a", destination);
        EXPECT_EQ(Run(), Recursive) << destination;
        EXPECT_EQ(Contents(), "a/f=1 a/x/");
    }
}

TEST_F(OperationEdgeCases, copying_a_folder_into_one_whose_name_begins_alike_is_allowed) {
    AddContents(tree_, "a/f=1 ab/");
    CopyOf("a", "ab");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), "a/f=1 ab/a/f=1");
}

TEST_F(OperationEdgeCases, the_items_behind_a_refused_one_are_not_processed) {
    AddContents(tree_, "a/f=1 a/x/ b=2 c=3");
    Prepare(FileOperationKind::Copy, {"b", "a", "c"}, "a/x");
    EXPECT_EQ(Run(), Recursive);
    EXPECT_EQ(Contents(), InOrder("a/f=1 a/x/b=2 b=2 c=3"));
}

TEST_F(OperationEdgeCases,
       updating_and_excluding_a_folder_inside_itself_are_refused_too_and_deleting_is_not) {
    AddContents(tree_, "a/f=1 a/x/");
    for (const FileOperationKind kind :
         {FileOperationKind::Update, FileOperationKind::Exclude, FileOperationKind::Move}) {
        Prepare(kind, {"a"}, "a/x");
        EXPECT_EQ(Run(), Recursive);
        EXPECT_EQ(Contents(), InOrder("a/f=1 a/x/"));
    }
    operation_.confirm = false;
    Prepare(FileOperationKind::Delete, {"a"}, "a/x");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), "");
}

TEST_F(OperationEdgeCases, a_folder_that_stands_is_asked_about_even_after_yes_to_all_for_files) {
    AddContents(tree_, "s/a=new s/m/b=new d/s/a=old d/s/m/b=old");
    CopyOf("s", "d");
    EXPECT_EQ(Run({IDYES, 20, IDYES}),
              "Confirm Folder Replace/4; Confirm File Replace/4; Confirm Folder Replace/4");
    EXPECT_EQ(Contents(), InOrder("s/a=new s/m/b=new d/s/a=new d/s/m/b=new"));
    EXPECT_FALSE(operation_.confirm);
}

TEST_F(OperationEdgeCases, an_update_within_the_same_two_seconds_copies_nothing) {
    AddContents(tree_, "s/a=new d/a=old");
    SetSeconds("s/a", 7);
    SetSeconds("d/a", 6);
    Prepare(FileOperationKind::Update, {"s/a"}, "d");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/a=new d/a=old"));
}

TEST_F(OperationEdgeCases, an_update_replaces_a_file_one_step_older) {
    AddContents(tree_, "s/a=new d/a=old");
    SetSeconds("s/a", 8);
    SetSeconds("d/a", 7);
    Prepare(FileOperationKind::Update, {"s/a"}, "d");
    EXPECT_EQ(Run({IDYES}), "Confirm File Replace/4");
    EXPECT_EQ(Contents(), InOrder("s/a=new d/a=new"));
}

TEST_F(OperationEdgeCases, an_update_of_a_missing_file_ends_the_run_without_a_message) {
    AddContents(tree_, "s/b=new d/");
    Prepare(FileOperationKind::Update, {"s/missing", "s/b"}, "d");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/b=new d/"));
}

TEST_F(OperationEdgeCases, excluding_deletes_no_file_and_no_to_its_question_ends_the_run) {
    AddContents(tree_, "s/ d/1/f=1 d/2/f=2 d/file=3");
    Prepare(FileOperationKind::Exclude, {"s"}, "d");
    EXPECT_EQ(Run({IDNO}), "Confirm Folder Delete/4");
    EXPECT_EQ(Contents(), InOrder("s/ d/1/f=1 d/2/f=2 d/file=3"));
    operation_.confirm = false;
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/ d/file=3"));
}

TEST_F(OperationEdgeCases, a_move_onto_an_existing_file_after_yes_to_all_fails_and_ends_the_run) {
    AddContents(tree_, "s/a=new s/b=new s/c=new d/a=old d/b=old");
    Prepare(FileOperationKind::Move, {"s/a", "s/b", "s/c"}, "d");
    EXPECT_EQ(Run({20, IDOK}), "Confirm File Replace/4; Error: Error Move file 183");
    EXPECT_EQ(Contents(), InOrder("s/b=new s/c=new d/a=new d/b=old"));
}

TEST_F(OperationEdgeCases, a_read_only_file_in_a_deleted_folder_is_asked_about_once_and_deleted) {
    AddContents(tree_, "s/a=1");
    ASSERT_TRUE(SetFileAttributesW(PathIn(tree_, "s/a").c_str(), FILE_ATTRIBUTE_READONLY));
    Prepare(FileOperationKind::Delete, {"s"}, "");
    EXPECT_EQ(Run({IDYES}, [this](HWND box) { ReadQuestion(box); }), "Confirm File Delete/4");
    EXPECT_EQ(question_, L"Are you sure you want to delete 'a'?");
    EXPECT_EQ(Contents(), "");
}

// Not every system keeps the attribute of a folder, so it is only told.
TEST_F(OperationEdgeCases, a_file_is_called_read_only_when_its_folder_is) {
    AddContents(tree_, "s/a=1");
    const Replaced<decltype(ce::FileCalls::getFileAttributes)> attributes(
        ce::fileCalls.getFileAttributes, [](const wchar_t* path) {
            const DWORD real = GetFileAttributesW(path);
            return std::wstring(path).ends_with(L"\\s") ? real | FILE_ATTRIBUTE_READONLY : real;
        });
    Prepare(FileOperationKind::Delete, {"s"}, "");
    EXPECT_EQ(Run({IDCANCEL}, [this](HWND box) { ReadQuestion(box); }), "Confirm File Delete/4");
    EXPECT_EQ(question_, L"The file 'a' is a read-only file. Are you sure you want to delete it?");
    EXPECT_EQ(Contents(), "s/a=1");
}
