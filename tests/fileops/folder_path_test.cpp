#include "fileops/file_actions.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "platform/windows_ce.h"
#include "tests/support/answered_boxes.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/test_world.h"

namespace {

// A file system that is told.
std::set<std::wstring> folders, files;
std::vector<std::wstring> created;
DWORD creationError = 0;

DWORD ToldAttributes(const wchar_t* path) {
    if (folders.contains(path)) return FILE_ATTRIBUTE_DIRECTORY;
    if (files.contains(path)) return FILE_ATTRIBUTE_ARCHIVE;
    return INVALID_FILE_ATTRIBUTES;
}

BOOL Create(const wchar_t* path, SECURITY_ATTRIBUTES* security) {
    EXPECT_EQ(security, nullptr);
    created.emplace_back(path);
    SetLastError(creationError);
    return creationError == 0;
}

}  // namespace

class FolderPath : public testing::Test {
  protected:
    FolderPath() {
        folders.clear();
        files.clear();
        created.clear();
        creationError = 0;
    }
    using Paths = std::vector<std::wstring>;

    TestWorld world_;
    AnsweredBoxes boxes_{IDOK};
    Replaced<decltype(ce::FileCalls::getFileAttributes)> attributes_{ce::fileCalls.getFileAttributes,
                                                                     ToldAttributes};
    Replaced<decltype(ce::FileCalls::createDirectory)> creation_{ce::fileCalls.createDirectory, Create};
};

TEST_F(FolderPath, of_a_folder_that_stands_needs_nothing) {
    folders = {L"\\a\\b"};
    EXPECT_TRUE(CreateFolderPath(nullptr, L"\\a\\b"));
    EXPECT_TRUE(created.empty());
}

TEST_F(FolderPath, of_a_file_fails_without_a_word) {
    files = {L"\\a\\b"};
    EXPECT_FALSE(CreateFolderPath(nullptr, L"\\a\\b"));
    EXPECT_TRUE(created.empty());
    EXPECT_TRUE(boxes_.Seen().empty());
}

TEST_F(FolderPath, is_made_from_the_first_missing_folder_on) {
    folders = {L"\\a"};
    EXPECT_TRUE(CreateFolderPath(nullptr, L"\\a\\b\\c\\d"));
    EXPECT_EQ(created, (Paths{L"\\a\\b", L"\\a\\b\\c", L"\\a\\b\\c\\d"}));
}

TEST_F(FolderPath, below_the_root_is_made_at_once) {
    EXPECT_TRUE(CreateFolderPath(nullptr, L"\\a"));
    EXPECT_EQ(created, Paths{L"\\a"});
}

TEST_F(FolderPath, begins_behind_the_drive) {
    EXPECT_TRUE(CreateFolderPath(nullptr, L"D:\\a\\b"));
    EXPECT_EQ(created, (Paths{L"D:\\a", L"D:\\a\\b"}));
}

TEST_F(FolderPath, begins_behind_the_name_of_another_machine) {
    folders = {L"\\\\server\\share"};
    EXPECT_TRUE(CreateFolderPath(nullptr, L"\\\\server\\share\\a\\b"));
    EXPECT_EQ(created, (Paths{L"\\\\server\\share\\a", L"\\\\server\\share\\a\\b"}));
}

TEST_F(FolderPath, without_a_separator_fails_without_a_word) {
    EXPECT_FALSE(CreateFolderPath(nullptr, L"a"));
    EXPECT_FALSE(CreateFolderPath(nullptr, L""));
    EXPECT_FALSE(CreateFolderPath(nullptr, L"\\\\server"));
    EXPECT_TRUE(created.empty());
    EXPECT_TRUE(boxes_.Seen().empty());
}

TEST_F(FolderPath, with_a_file_on_the_way_fails_without_a_word) {
    folders = {L"\\a"};
    files = {L"\\a\\b"};
    EXPECT_FALSE(CreateFolderPath(nullptr, L"\\a\\b\\c"));
    EXPECT_TRUE(created.empty());
    EXPECT_TRUE(boxes_.Seen().empty());
}

TEST_F(FolderPath, ends_with_one_box_at_the_first_folder_that_cannot_be_made) {
    creationError = ERROR_DISK_FULL;
    EXPECT_FALSE(CreateFolderPath(nullptr, L"\\a\\b\\c"));
    EXPECT_EQ(created, Paths{L"\\a"});
    ASSERT_EQ(boxes_.Seen().size(), 1u);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes_.Seen()[0], L"There is not enough space on the disk."));
}

TEST_F(FolderPath, that_cannot_be_made_itself_ends_with_one_box) {
    folders = {L"\\a"};
    creationError = ERROR_PATH_NOT_FOUND;
    EXPECT_FALSE(CreateFolderPath(nullptr, L"\\a\\b"));
    EXPECT_EQ(created, Paths{L"\\a\\b"});
    ASSERT_EQ(boxes_.Seen().size(), 1u);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes_.Seen()[0], L"Can't find the path specified. '\\a\\b'"));
}

TEST_F(FolderPath, of_260_units_is_refused) {
    const std::wstring tooLong = L"\\" + std::wstring(259, L'a');
    EXPECT_FALSE(CreateFolderPath(nullptr, tooLong.c_str()));
    EXPECT_TRUE(created.empty());
}
