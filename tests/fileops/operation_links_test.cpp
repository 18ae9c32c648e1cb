// Links to folders, and paths that lead to one file twice.

#include "platform/windows_ce.h"
#include "tests/fileops/operation_test.h"
#include "tests/support/replaced_calls.h"

class OperationLinks : public OperationTest {
  protected:
    OperationLinks() {
        AddContents(tree_, "s/a=1 outside/f=2 d/");
        operation_.confirm = false;
    }
    // A link in the source to a folder beside it, and one that leads back up.
    void AddLinks() {
        if (!tree_.AddFolderLink(L"s\\link", L"outside") || !tree_.AddFolderLink(L"s\\up", L""))
            GTEST_SKIP() << "the system makes no links";
        ASSERT_EQ(Contents(), InOrder("s/a=1 s/link-> s/up-> outside/f=2 d/"));
    }
};

TEST_F(OperationLinks, are_left_out_of_a_copy) {
    AddLinks();
    Prepare(FileOperationKind::Copy, {"s"}, "d");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/link-> s/up-> outside/f=2 d/s/a=1"));
}

TEST_F(OperationLinks, are_left_out_of_an_update) {
    AddLinks();
    Prepare(FileOperationKind::Update, {"s"}, "d");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/link-> s/up-> outside/f=2 d/a=1"));
}

TEST_F(OperationLinks, keep_what_they_lead_to_in_a_deletion) {
    AddLinks();
    Prepare(FileOperationKind::Delete, {"s"}, "");
    const std::string boxes = Run();
    // A system that follows links everywhere has to leave them where they are.
    EXPECT_TRUE(boxes.empty() || boxes == "Error: Error RemoveDirectory 50") << boxes;
    EXPECT_EQ(Has(Contents(), "s/link->"), !boxes.empty());
    EXPECT_TRUE(Has(Contents(), "outside/f=2"));
}

TEST_F(OperationLinks, keep_the_empty_folder_that_they_lead_to_in_a_deletion) {
    AddContents(tree_, "empty/");
    if (!tree_.AddFolderLink(L"s\\link", L"empty")) GTEST_SKIP() << "the system makes no links";
    Prepare(FileOperationKind::Delete, {"s/link"}, "");
    const std::string boxes = Run();
    EXPECT_TRUE(boxes.empty() || boxes == "Error: Error RemoveDirectory 50") << boxes;
    EXPECT_TRUE(Has(Contents(), "empty/"));
}

TEST_F(OperationLinks, go_along_with_a_move_and_keep_what_they_lead_to) {
    AddLinks();
    Prepare(FileOperationKind::Move, {"s"}, "d");
    const std::string boxes = Run();
    EXPECT_TRUE(boxes.empty() || boxes == "Error: Error Move file 50") << boxes;
    EXPECT_EQ(Has(Contents(), "s/link->"), !boxes.empty());
    EXPECT_TRUE(Has(Contents(), "outside/f=2"));
    EXPECT_TRUE(Has(Contents(), "d/s/a=1"));
}

TEST_F(OperationLinks, to_files_keep_them_in_a_deletion) {
    if (!tree_.AddFileLink(L"s\\link", L"outside\\f")) GTEST_SKIP() << "the system makes no links";
    Prepare(FileOperationKind::Delete, {"s"}, "");
    const std::string boxes = Run();
    EXPECT_TRUE(boxes.empty() || boxes == "Error: Error DeleteFile 50") << boxes;
    EXPECT_TRUE(Has(Contents(), "outside/f=2"));
}

TEST_F(OperationLinks, to_files_keep_their_attributes_in_a_deletion) {
    if (!tree_.AddFileLink(L"s\\link", L"outside\\f")) GTEST_SKIP() << "the system makes no links";
    const std::wstring file = tree_.Path(L"outside\\f");
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
    Prepare(FileOperationKind::Delete, {"s"}, "");
    const std::string boxes = Run();
    EXPECT_TRUE(boxes.empty() || boxes == "Error: Error DeleteFile 50") << boxes;
    EXPECT_NE(GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(OperationLinks, to_files_keep_them_when_a_copy_or_an_update_meets_one_in_the_destination) {
    AddContents(tree_, "d/s/");
    if (!tree_.AddFileLink(L"d\\s\\a", L"outside\\f")) GTEST_SKIP() << "the system makes no links";
    // Older than what an update brings.
    SetLastWriteTime(PathIn(tree_, "outside/f"), SYSTEMTIME{2001, 2, 6, 3, 4, 5, 6, 0});
    Prepare(FileOperationKind::Copy, {"s"}, "d");
    std::string boxes = Run({IDYES, IDOK});
    EXPECT_NE(boxes.find("Error: Error CopyFile 50"), std::string::npos) << boxes;
    EXPECT_TRUE(Has(Contents(), "outside/f=2")) << boxes;
    Prepare(FileOperationKind::Update, {"s"}, "d/s");
    boxes = Run();
    EXPECT_NE(boxes.find("Error: Error CopyFile 50"), std::string::npos) << boxes;
    EXPECT_TRUE(Has(Contents(), "outside/f=2")) << boxes;
}

TEST_F(OperationLinks, to_files_keep_them_in_a_move) {
    if (!tree_.AddFileLink(L"s\\link", L"outside\\f")) GTEST_SKIP() << "the system makes no links";
    Prepare(FileOperationKind::Move, {"s"}, "d");
    const std::string boxes = Run();
    EXPECT_TRUE(boxes.empty() || boxes == "Error: Error Move file 50") << boxes;
    EXPECT_TRUE(Has(Contents(), "outside/f=2"));
    EXPECT_TRUE(Has(Contents(), "d/s/a=1"));
}

TEST_F(OperationLinks, in_the_destination_are_not_entered_by_an_exclusion) {
    AddContents(tree_, "s/link/ outside/deep/g=3");
    if (!tree_.AddFolderLink(L"d\\link", L"outside")) GTEST_SKIP() << "the system makes no links";
    Prepare(FileOperationKind::Exclude, {"s"}, "d");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/a=1 s/link/ outside/f=2 outside/deep/g=3 d/link->"));
}

// The same with the system's answer given, so that it holds where no links can be made.
TEST_F(OperationLinks, are_asked_for_by_the_folders_attributes) {
    AddContents(tree_, "s/m/g=3");
    const Replaced<decltype(ce::FileCalls::getFileAttributes)> linkAttributes(
        ce::fileCalls.getFileAttributes, [](const wchar_t* path) {
            const DWORD attributes = GetFileAttributesW(path);
            const std::wstring text = path;
            const bool isLink = text.ends_with(L"\\s\\m");
            return isLink ? attributes | FILE_ATTRIBUTE_REPARSE_POINT : attributes;
        });
    const Replaced<decltype(ce::FileCalls::isFolderLink)> link(ce::fileCalls.isFolderLink,
                                                               [](const wchar_t*) { return true; });
    Prepare(FileOperationKind::Delete, {"s"}, "");
    EXPECT_EQ(Run(), "Error: Folder not empty");
    EXPECT_TRUE(Has(Contents(), "s/m/g=3"));
    Prepare(FileOperationKind::Copy, {"s"}, "d");
    EXPECT_EQ(Run(), "");
    EXPECT_FALSE(Has(Contents(), "d/s/m/g=3"));
}

class OneFileTwice : public OperationTest {
  protected:
    OneFileTwice() {
        AddContents(tree_, "s/a=1 x/");
        operation_.ClearSources();
        EXPECT_TRUE(operation_.AddSource(PathIn(tree_, "s/a").c_str()));
    }
};

TEST_F(OneFileTwice, is_not_deleted_by_a_move_to_its_own_folder_in_another_spelling) {
    for (const char* const destination : {"x/../s", "s/../s/a", "./s"}) {
        operation_.confirm = true;
        operation_.operation = FileOperationKind::Move;
        ASSERT_TRUE(operation_.SetDestination(PathIn(tree_, destination).c_str()));
        Run({IDYES, IDOK});
        EXPECT_EQ(Contents(), InOrder("s/a=1 x/")) << destination;
    }
}

TEST_F(OneFileTwice, is_not_lost_by_a_copy_onto_itself) {
    operation_.operation = FileOperationKind::Copy;
    ASSERT_TRUE(operation_.SetDestination(PathIn(tree_, "x/../s").c_str()));
    Run({IDYES, IDOK});
    EXPECT_EQ(Contents(), InOrder("s/a=1 x/"));
}

TEST_F(OneFileTwice, is_not_deleted_by_a_move_through_a_link) {
    if (!tree_.AddFolderLink(L"x\\link", L"s")) GTEST_SKIP() << "the system makes no links";
    operation_.operation = FileOperationKind::Move;
    ASSERT_TRUE(operation_.SetDestination(PathIn(tree_, "x/link").c_str()));
    Run({IDYES, IDOK});
    EXPECT_TRUE(Has(Contents(), "s/a=1")) << Contents();
}
