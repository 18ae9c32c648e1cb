#include <gtest/gtest.h>

#include <string>

#include "tests/platform/listing.h"
#include "tests/support/temp_tree.h"

namespace {

std::string ContentOf(const std::wstring& path) {
    std::FILE* const file = ce::OpenForReading(path.c_str());
    if (file == nullptr) return "(not opened)";
    char bytes[100];
    const std::size_t read = std::fread(bytes, 1, sizeof(bytes), file);
    std::fclose(file);
    return std::string(bytes, read);
}

}  // namespace

TEST(OpenForReading, reads_bytes_as_they_stand) {
    TempTree tree;
    EXPECT_EQ(ContentOf(tree.AddFile(L"a", "x\r\ny\x1Az")), "x\r\ny\x1Az");
}

TEST(OpenForReading, opens_files_whose_names_the_desktop_takes_for_something_else) {
    TempTree tree;
    tree.AddFile(L"a", "plain");
    EXPECT_EQ(ContentOf(tree.AddFile(L"a.", "with dot")), "with dot");
    EXPECT_EQ(ContentOf(tree.AddFile(L"con", "no console")), "no console");
    EXPECT_EQ(ContentOf(tree.AddFile(L"aux.c", "no port")), "no port");
    EXPECT_EQ(ContentOf(tree.AddFile(L"nul.txt", "not nothing")), "not nothing");
}

TEST(OpenForReading, does_not_open_folders_missing_or_locked_files) {
    TempTree tree;
    EXPECT_EQ(ce::OpenForReading(tree.AddFolder(L"sub").c_str()), nullptr);
    EXPECT_EQ(ce::OpenForReading(tree.Path(L"missing").c_str()), nullptr);
    EXPECT_EQ(ce::OpenForReading(std::wstring(MAX_PATH, L'a').c_str()), nullptr);
    const std::wstring path = tree.AddFile(L"locked", "x");
    const HANDLE lock = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    EXPECT_EQ(ce::OpenForReading(path.c_str()), nullptr);
    CloseHandle(lock);
    EXPECT_EQ(ContentOf(path), "x");
}

TEST(OpenForReading, does_not_open_what_is_no_file_on_a_disk) {
    const wchar_t name[] = L"\\\\.\\pipe\\quorin_open_test";
    const HANDLE pipe = CreateNamedPipeW(name, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 100, 100, 0, nullptr);
    ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
    EXPECT_EQ(ce::OpenForReading(name), nullptr);
    CloseHandle(pipe);
}

TEST(OpenForReading, lets_others_write_and_delete_meanwhile) {
    TempTree tree;
    const std::wstring path = tree.AddFile(L"a", "x");
    std::FILE* const file = ce::OpenForReading(path.c_str());
    ASSERT_NE(file, nullptr);
    const HANDLE writer =
        CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(writer, INVALID_HANDLE_VALUE);
    CloseHandle(writer);
    EXPECT_TRUE(DeleteFileW(path.c_str()));
    std::fclose(file);
}

TEST(FileCalls, touch_the_very_name_that_they_are_given) {
    TempTree tree;
    tree.AddFile(L"a", "plain");
    const std::wstring dotted = tree.AddFile(L"a.", "with dot");
    ASSERT_TRUE(ce::SetFileAttributesW(dotted.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_NE(ce::GetFileAttributesW(dotted.c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
    EXPECT_EQ(ce::GetFileAttributesW(tree.Path(L"a").c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
    ASSERT_TRUE(ce::SetFileAttributesW(dotted.c_str(), FILE_ATTRIBUTE_NORMAL));

    ASSERT_TRUE(ce::CopyFileW(dotted.c_str(), tree.Path(L"copy.").c_str(), TRUE));
    ASSERT_TRUE(ce::MoveFileW(tree.Path(L"copy.").c_str(), tree.Path(L"moved ").c_str()));
    ASSERT_TRUE(ce::DeleteFileW(dotted.c_str()));
    ASSERT_TRUE(ce::CreateDirectoryW(tree.Path(L"con").c_str(), nullptr));
    EXPECT_EQ(Sorted(List(tree.Path(L"*")).names), (Names{L"a", L"con", L"moved "}));
    EXPECT_EQ(ContentOf(tree.Path(L"moved ")), "with dot");
    ASSERT_TRUE(ce::RemoveDirectoryW(tree.Path(L"con").c_str()));
    EXPECT_EQ(Sorted(List(tree.Path(L"*")).names), (Names{L"a", L"moved "}));
}

TEST(FileCalls, fail_with_the_systems_code) {
    TempTree tree;
    const std::wstring missing = tree.Path(L"missing");
    EXPECT_FALSE(ce::DeleteFileW(missing.c_str()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(ce::GetFileAttributesW(missing.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    const std::wstring tooLong(MAX_PATH, L'a');
    EXPECT_FALSE(ce::MoveFileW(missing.c_str(), tooLong.c_str()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILENAME_EXCED_RANGE));
}

TEST(FileCalls, make_no_file_whose_name_holds_a_colon) {
    TempTree tree;
    const std::wstring path = tree.AddFile(L"a", "plain");
    for (const wchar_t* name : {L"a:b", L"b:", L"sub:c\\a"}) {
        EXPECT_FALSE(ce::MoveFileW(path.c_str(), tree.Path(name).c_str()));
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_NAME));
        EXPECT_FALSE(ce::CopyFileW(path.c_str(), tree.Path(name).c_str(), TRUE));
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_NAME));
    }
    EXPECT_EQ(List(tree.Path(L"*")).names, (Names{L"a"}));
    EXPECT_EQ(ContentOf(path), "plain");
}

TEST(FileCalls, do_not_take_an_empty_path_for_the_current_folder) {
    TempTree tree;
    const std::wstring path = tree.AddFile(L"a");
    const auto failsOnTheWay = [](BOOL done) { return !done && GetLastError() == ERROR_PATH_NOT_FOUND; };
    EXPECT_EQ(ce::GetFileAttributesW(L""), INVALID_FILE_ATTRIBUTES);
    EXPECT_TRUE(failsOnTheWay(ce::SetFileAttributesW(L"", FILE_ATTRIBUTE_NORMAL)));
    EXPECT_TRUE(failsOnTheWay(ce::DeleteFileW(L"")));
    EXPECT_TRUE(failsOnTheWay(ce::RemoveDirectoryW(L"")));
    EXPECT_TRUE(failsOnTheWay(ce::CreateDirectoryW(L"", nullptr)));
    EXPECT_TRUE(failsOnTheWay(ce::CopyFileW(path.c_str(), L"", FALSE)));
    EXPECT_TRUE(failsOnTheWay(ce::MoveFileW(L"", tree.Path(L"b").c_str())));
}

TEST(FolderLinks, are_removed_and_moved_without_what_they_lead_to) {
    TempTree tree;
    tree.AddFolder(L"empty");
    const std::wstring file = tree.AddFile(L"full\\a");
    if (!tree.AddFolderLink(L"toEmpty", L"empty") || !tree.AddFolderLink(L"toFull", L"full"))
        GTEST_SKIP() << "the system makes no links";
    // A system that cannot reach the link itself says so.
    EXPECT_TRUE(ce::RemoveDirectoryW(tree.Path(L"toEmpty").c_str()) || GetLastError() == ERROR_NOT_SUPPORTED);
    EXPECT_TRUE(ce::MoveFileW(tree.Path(L"toFull").c_str(), tree.Path(L"moved").c_str()) ||
                GetLastError() == ERROR_NOT_SUPPORTED);
    EXPECT_NE(GetFileAttributesW(tree.Path(L"empty").c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_NE(GetFileAttributesW(file.c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST(FolderLinks, are_told_from_folders_that_stand_where_they_are_named) {
    TempTree tree;
    const std::wstring real = tree.AddFolder(L"real\\below");
    if (!tree.AddFolderLink(L"link", L"real")) GTEST_SKIP() << "no links here";
    if (!tree.AddFolderLink(L"real\\parent", L"real")) GTEST_SKIP() << "no links here";
    WIN32_FIND_DATAW marked = {};
    marked.dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    EXPECT_TRUE(ce::IsFolderLink(tree.Path(L"link").c_str(), marked));
    EXPECT_TRUE(ce::IsFolderLink(tree.Path(L"real\\parent").c_str(), marked));
    // As a mounted volume is marked.
    EXPECT_FALSE(ce::IsFolderLink(real.c_str(), marked));
    // Reached through a link, but itself none.
    EXPECT_FALSE(ce::IsFolderLink(tree.Path(L"link\\below").c_str(), marked));
    // Cannot be opened.
    EXPECT_TRUE(ce::IsFolderLink(tree.Path(L"missing").c_str(), marked));
}

TEST(FolderLinks, are_looked_for_only_where_the_listing_marks_one) {
    WIN32_FIND_DATAW ordinary = {};
    ordinary.dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY;
    EXPECT_FALSE(ce::IsFolderLink(L"\\missing", ordinary));
}

TEST(FolderLinks, are_marked_in_the_listing) {
    TempTree tree;
    tree.AddFolder(L"real");
    if (!tree.AddFolderLink(L"link", L"real")) GTEST_SKIP() << "no links here";
    WIN32_FIND_DATAW data;
    const HANDLE search = ce::FindFirstFileW(tree.Path(L"link*").c_str(), &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    ce::FindClose(search);
    EXPECT_TRUE(ce::IsFolderLink(tree.Path(L"link").c_str(), data));
}
