// Links to single files, which some systems follow even where the link itself is meant; and files that are
// none.

#include <gtest/gtest.h>

#include "platform/windows_ce.h"
#include "tests/support/temp_tree.h"

namespace {

bool Exists(const std::wstring& path) {
    return GetFileAttributesW(Literal(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

// A system that cannot reach the link itself says so.
bool DoneOrRefused(BOOL done) {
    return done || GetLastError() == ERROR_NOT_SUPPORTED;
}

}  // namespace

TEST(FileLinks, keep_what_they_lead_to_when_they_are_deleted) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"a", "1");
    tree.AddFolder(L"sub");
    if (!tree.AddFileLink(L"link", L"a") || !tree.AddFileLink(L"sub\\a", L"a"))
        GTEST_SKIP() << "the system makes no links";
    EXPECT_TRUE(DoneOrRefused(ce::DeleteFileW(tree.Path(L"link").c_str())));
    EXPECT_TRUE(DoneOrRefused(ce::DeleteFileW(tree.Path(L"sub\\a").c_str())));
    EXPECT_TRUE(Exists(file));
}

TEST(FileLinks, keep_what_they_lead_to_where_it_stands_when_they_are_moved) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"sub\\a", "1");
    if (!tree.AddFileLink(L"link", L"sub\\a")) GTEST_SKIP() << "the system makes no links";
    EXPECT_TRUE(DoneOrRefused(ce::MoveFileW(tree.Path(L"link").c_str(), tree.Path(L"moved").c_str())));
    EXPECT_TRUE(Exists(file));
}

TEST(FileLinks, do_not_keep_what_they_lead_to_from_being_deleted_by_its_own_name) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"a", "1");
    if (!tree.AddFileLink(L"link", L"a")) GTEST_SKIP() << "the system makes no links";
    EXPECT_TRUE(ce::DeleteFileW(file.c_str()));
    EXPECT_FALSE(Exists(file));
}

TEST(FileLinks, are_not_seen_in_a_file_that_is_reached_through_a_link_to_its_folder) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"sub\\a", "1");
    if (!tree.AddFolderLink(L"link", L"sub")) GTEST_SKIP() << "the system makes no links";
    EXPECT_TRUE(ce::DeleteFileW(tree.Path(L"link\\a").c_str()));
    EXPECT_FALSE(Exists(file));
}

TEST(FileLinks, are_not_seen_in_files_of_odd_names) {
    TempTree tree;
    for (const wchar_t* name :
         {L"a.", L"con", L" x", L"long name with blanks.html", L"日本語.txt", L"ä~1.b"}) {
        const std::wstring file = tree.AddFile(name, "1");
        EXPECT_TRUE(ce::MoveFileW(file.c_str(), tree.Path(L"moved").c_str())) << GetLastError();
        EXPECT_TRUE(ce::MoveFileW(tree.Path(L"moved").c_str(), file.c_str())) << GetLastError();
        EXPECT_TRUE(ce::DeleteFileW(file.c_str())) << GetLastError();
        EXPECT_FALSE(Exists(file));
    }
}

TEST(FileLinks, are_not_seen_in_a_file_that_is_called_by_its_short_name) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"long name with blanks.html", "1");
    wchar_t shortPath[MAX_PATH] = L"";
    ASSERT_NE(GetShortPathNameW(file.c_str(), shortPath, MAX_PATH), 0U);
    const std::wstring called = shortPath;
    const std::wstring shortName = called.substr(called.rfind(L'\\') + 1);
    if (shortName == L"long name with blanks.html") GTEST_SKIP() << "the system gives no short names";
    EXPECT_TRUE(ce::DeleteFileW(tree.Path(shortName).c_str())) << GetLastError();
    EXPECT_FALSE(Exists(file));
}

TEST(FileLinks, are_not_seen_where_letter_case_is_all_that_differs) {
    TempTree tree;
    tree.AddFile(L"ärger.txt", "1");
    EXPECT_TRUE(ce::DeleteFileW(tree.Path(L"ÄRGER.TXT").c_str())) << GetLastError();
}

TEST(FileLinks, are_not_seen_in_a_file_that_another_program_keeps_to_itself) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"a", "1");
    const HANDLE lock = CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(ce::DeleteFileW(file.c_str()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SHARING_VIOLATION));
    CloseHandle(lock);
}
