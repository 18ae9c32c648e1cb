// The attributes of a file that is asked about: they go only with the answer that takes the file.

#include "tests/fileops/operation_test.h"

namespace {

constexpr DWORD Kept = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
constexpr int YesToAll = 20;

}  // namespace

class OperationAttributes : public OperationTest {
  protected:
    [[nodiscard]] DWORD AttributesOf(const std::string& path) const {
        return GetFileAttributesW(PathIn(tree_, path).c_str()) & Kept;
    }
    void Mark(const std::string& path) const {
        ASSERT_TRUE(SetFileAttributesW(PathIn(tree_, path).c_str(), Kept));
        ASSERT_EQ(AttributesOf(path), Kept);
    }
    void Unmark(const std::string& path) const {
        SetFileAttributesW(PathIn(tree_, path).c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    // Runs the operation with this answer; the file has its attributes while the question is open.
    void RunAnswered(const std::string& asked, int answer) {
        operation_.confirm = true;
        DWORD atQuestion = 0;
        Run({answer}, [&](HWND) { atQuestion = AttributesOf(asked); });
        EXPECT_EQ(atQuestion, Kept);
    }
};

TEST_F(OperationAttributes, stay_with_a_file_that_is_not_deleted_after_all) {
    AddContents(tree_, "s/a=1 d/");
    Mark("s/a");
    for (const int answer : {IDNO, IDCANCEL}) {
        Prepare(FileOperationKind::Delete, {"s/a"}, "d");
        RunAnswered("s/a", answer);
        EXPECT_EQ(AttributesOf("s/a"), Kept) << answer;
    }
    Unmark("s/a");
}

TEST_F(OperationAttributes, stay_with_a_file_that_is_not_replaced_after_all) {
    AddContents(tree_, "s/a=new d/a=old");
    Mark("d/a");
    for (const FileOperationKind kind : {FileOperationKind::Copy, FileOperationKind::Move}) {
        for (const int answer : {IDNO, IDCANCEL}) {
            Prepare(kind, {"s/a"}, "d");
            RunAnswered("d/a", answer);
            EXPECT_EQ(AttributesOf("d/a"), Kept) << answer;
        }
    }
    Unmark("d/a");
    EXPECT_EQ(Contents(), InOrder("s/a=new d/a=old"));
}

TEST_F(OperationAttributes, of_a_file_refused_in_a_folder_stay_while_its_neighbours_go) {
    AddContents(tree_, "s/a=1 s/b=2 d/");
    Mark("s/a");
    Mark("s/b");
    Prepare(FileOperationKind::Delete, {"s/a", "s/b"}, "d");
    EXPECT_EQ(Run({IDNO, IDYES}), "Confirm File Delete/4; Confirm File Delete/4");
    EXPECT_EQ(AttributesOf("s/a"), Kept);
    Unmark("s/a");
    EXPECT_EQ(Contents(), InOrder("s/a=1 d/"));
}

TEST_F(OperationAttributes, keep_no_file_from_being_deleted_or_replaced_after_a_yes) {
    for (const int answer : {IDYES, YesToAll}) {
        AddContents(tree_, "s/a=1 s/b=new d/b=old");
        Mark("s/a");
        Mark("d/b");
        Prepare(FileOperationKind::Delete, {"s/a"}, "d");
        RunAnswered("s/a", answer);
        Prepare(FileOperationKind::Copy, {"s/b"}, "d");
        RunAnswered("d/b", answer);
        EXPECT_EQ(Contents(), InOrder("s/b=new d/b=new")) << answer;
        DeleteFileW(PathIn(tree_, "d/b").c_str());
    }
}
