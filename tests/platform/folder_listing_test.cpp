#include <gtest/gtest.h>

#include "tests/platform/current_folder.h"
#include "tests/platform/listing.h"
#include "tests/support/temp_tree.h"

TEST(FolderListing, has_no_entries_for_the_folder_itself_and_its_parent) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    tree.AddFolder(L"sub");
    EXPECT_EQ(Sorted(List(tree.Path(L"*")).names), (Names{L"a.txt", L"sub"}));
    EXPECT_EQ(Sorted(List(tree.Path(L"*.*")).names), (Names{L"a.txt", L"sub"}));
    EXPECT_EQ(List(tree.Path(L".*")).names, Names{});
    EXPECT_EQ(List(tree.Path(L".")).names, Names{});
}

TEST(FolderListing, ends_with_no_more_files) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    EXPECT_EQ(List(tree.Path(L"*")).ending, static_cast<DWORD>(ERROR_NO_MORE_FILES));
}

TEST(FolderListing, of_an_empty_folder_finds_nothing) {
    TempTree tree;
    const ListingAnswer answer = List(tree.Path(L"*"));
    EXPECT_EQ(answer.names, Names{});
    EXPECT_EQ(answer.ending, static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
}

TEST(FolderListing, in_which_nothing_matches_finds_nothing) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    const ListingAnswer answer = List(tree.Path(L"*.doc"));
    EXPECT_EQ(answer.names, Names{});
    EXPECT_EQ(answer.ending, static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
}

TEST(FolderListing, of_what_is_no_folder_says_that_the_path_is_not_found) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    for (const wchar_t* pattern : {L"missing\\*", L"a.txt\\*", L"mis*ing\\*", L"missing\\deeper\\*.txt"}) {
        const ListingAnswer answer = List(tree.Path(pattern));
        EXPECT_EQ(answer.names, Names{}) << testing::PrintToString(std::wstring(pattern));
        EXPECT_EQ(answer.ending, static_cast<DWORD>(ERROR_PATH_NOT_FOUND))
            << testing::PrintToString(std::wstring(pattern));
    }
}

TEST(FolderListing, matches_names_by_their_own_text_and_not_by_short_names) {
    TempTree tree;
    tree.AddFile(L"page.htm");
    tree.AddFile(L"longer page.html");
    EXPECT_EQ(List(tree.Path(L"*.htm")).names, Names{L"page.htm"});
    EXPECT_EQ(List(tree.Path(L"*~*")).names, Names{});
}

TEST(FolderListing, is_blind_to_case) {
    TempTree tree;
    tree.AddFile(L"ABC.TXT");
    EXPECT_EQ(List(tree.Path(L"abc*")).names, Names{L"ABC.TXT"});
}

TEST(FolderListing, of_every_name_includes_names_without_a_dot) {
    TempTree tree;
    tree.AddFile(L"readme");
    EXPECT_EQ(List(tree.Path(L"*.*")).names, Names{L"readme"});
}

TEST(FolderListing, takes_a_question_mark_as_exactly_one_unit) {
    TempTree tree;
    tree.AddFile(L"ab");
    tree.AddFile(L"abc");
    tree.AddFile(L"abcd");
    EXPECT_EQ(List(tree.Path(L"ab?")).names, Names{L"abc"});
}

TEST(FolderListing, takes_folders_that_the_pattern_names) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    tree.AddFile(L"sub\\b.txt");
    EXPECT_EQ(List(tree.Path(L"sub\\*.txt")).names, Names{L"b.txt"});
    EXPECT_EQ(List(tree.Path(L"sub/*.txt")).names, Names{L"b.txt"});
}

TEST(FolderListing, of_a_path_without_wildcards_answers_that_one) {
    TempTree tree;
    tree.AddFile(L"a.txt", "12345");
    tree.AddFile(L"a.txt.bak");
    tree.AddFolder(L"sub");
    EXPECT_EQ(List(tree.Path(L"a.txt")).names, Names{L"a.txt"});
    EXPECT_EQ(List(tree.Path(L"sub")).names, Names{L"sub"});
    EXPECT_EQ(List(tree.Path(L"b.txt")).ending, static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(List(tree.Path(L"missing\\a.txt")).ending, static_cast<DWORD>(ERROR_PATH_NOT_FOUND));

    WIN32_FIND_DATAW data = {};
    const HANDLE search = ce::FindFirstFileW(tree.Path(L"a.txt").c_str(), &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    ce::FindClose(search);
    EXPECT_EQ(data.nFileSizeLow, 5U);
}

TEST(FolderListing, of_a_path_without_a_name_finds_nothing) {
    TempTree tree;
    EXPECT_EQ(List(tree.Root() + L"\\").ending, static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(List(L"\\").ending, static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(List(L"").ending, static_cast<DWORD>(ERROR_PATH_NOT_FOUND));
}

TEST(FolderListing, of_a_pattern_that_is_too_long_finds_no_path) {
    EXPECT_EQ(List(L"\\" + std::wstring(MAX_PATH, L'a') + L"\\*").ending,
              static_cast<DWORD>(ERROR_PATH_NOT_FOUND));
}

TEST(FolderListing, starts_at_the_root_of_the_current_drive_or_in_the_current_folder) {
    TempTree tree;
    tree.AddFile(L"sub\\b.txt");
    const CurrentFolder current(tree.Path(L"sub"));
    EXPECT_EQ(List(tree.Path(L"sub\\*").substr(2)).names, Names{L"b.txt"});
    EXPECT_EQ(List(L"*").names, Names{L"b.txt"});
    EXPECT_EQ(List(L".\\*").names, Names{L"b.txt"});
    EXPECT_EQ(List(L"..\\*").names, Names{L"sub"});
    EXPECT_EQ(List(tree.Root().substr(0, 2) + L"*").names, Names{L"b.txt"});
}

TEST(FolderListing, keeps_folders_apart_whose_names_end_in_dots_or_spaces) {
    TempTree tree;
    tree.AddFile(L"a\\plain");
    tree.AddFile(L"a.\\with dot");
    tree.AddFile(L"a \\with space");
    EXPECT_EQ(List(tree.Path(L"a\\*")).names, Names{L"plain"});
    EXPECT_EQ(List(tree.Path(L"a.\\*")).names, Names{L"with dot"});
    EXPECT_EQ(List(tree.Path(L"a \\*")).names, Names{L"with space"});
}

TEST(FolderListing, leaves_out_what_starts_like_a_drive) {
    TempTree tree;
    tree.AddFile(L"b:x");
    tree.AddFile(L"c:");
    tree.AddFile(L"a.txt");
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW(tree.Path(L"?:*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) GTEST_SKIP() << "the system makes no such names";
    FindClose(search);
    EXPECT_EQ(List(tree.Path(L"*")).names, Names{L"a.txt"});
    EXPECT_EQ(List(tree.Path(L"?:*")).names, Names{});
    EXPECT_EQ(List(tree.Path(L"b:x")).names, Names{});
}

TEST(FolderListing, refuses_handles_that_are_none) {
    WIN32_FIND_DATAW data;
    SetLastError(0);
    EXPECT_FALSE(ce::FindNextFileW(INVALID_HANDLE_VALUE, &data));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
    SetLastError(0);
    EXPECT_FALSE(ce::FindClose(INVALID_HANDLE_VALUE));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
    EXPECT_FALSE(ce::FindClose(nullptr));
}
