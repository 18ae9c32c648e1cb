#include "base/folder_entries.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "tests/support/temp_tree.h"

TEST(FolderEntries, every_entry_that_matches_comes_once) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    tree.AddFile(L"b.txt");
    tree.AddFile(L"c.log");
    FolderEntries entries(tree.Root().c_str(), L"*.txt");
    ASSERT_TRUE(entries.HasEntry());
    std::multiset<std::wstring> names;
    do {
        names.insert(entries.Entry().cFileName);
    } while (entries.MoveOn());
    EXPECT_EQ(names, (std::multiset<std::wstring>{L"a.txt", L"b.txt"}));
}

TEST(FolderEntries, a_folder_that_is_missing_or_whose_path_is_too_long_has_no_entry) {
    TempTree tree;
    EXPECT_FALSE(FolderEntries((tree.Root() + L"\\missing").c_str(), L"*").HasEntry());
    EXPECT_FALSE(FolderEntries(std::wstring(MAX_PATH, L'x').c_str(), L"*").HasEntry());
}

TEST(SkippedNames, no_name_is_skipped) {
    EXPECT_FALSE(IsSkippedName(L""));
    EXPECT_FALSE(IsSkippedName(L"."));
    EXPECT_FALSE(IsSkippedName(L".."));
    EXPECT_FALSE(IsSkippedName(L"a.txt"));
}
