// Paths that are long, deep or written in an unusual way.

#include "tests/fileops/operation_test.h"

namespace {

// Everything below the folder, however long its path.
int CountEntries(const std::wstring& folder) {
    int count = 0;
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((Literal(folder) + L"\\*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return 0;
    do {
        const std::wstring name = data.cFileName;
        if (name == L"." || name == L"..") continue;
        ++count;
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
            count += CountEntries(folder + L"\\" + name);
    } while (FindNextFileW(search, &data));
    FindClose(search);
    return count;
}

}  // namespace

class OperationPaths : public OperationTest {
  protected:
    OperationPaths() { operation_.confirm = false; }

    // The path below `folder` that has so many units in all, with a name of one letter at each level.
    std::wstring DeepBelow(const std::wstring& folder, std::size_t units) const {
        std::wstring relative = folder;
        while (tree_.Path(relative).size() + 3 < units)
            relative += L"\\n";
        relative += L"\\" + std::wstring(units - tree_.Path(relative).size() - 1, L'z');
        return relative;
    }
};

TEST_F(OperationPaths, take_the_longest_path_that_there_is_and_no_longer_one) {
    EXPECT_TRUE(operation_.AddSource(std::wstring(259, L'a').c_str()));
    EXPECT_FALSE(operation_.AddSource(std::wstring(260, L'a').c_str()));
    EXPECT_TRUE(operation_.SetDestination(std::wstring(259, L'a').c_str()));
    EXPECT_FALSE(operation_.SetDestination(std::wstring(260, L'a').c_str()));
}

TEST_F(OperationPaths, that_are_empty_never_mean_the_current_folder) {
    AddContents(tree_, "s/a=1 here/f=2 here/m/g=3");
    EXPECT_FALSE(operation_.AddSource(L""));
    wchar_t before[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, before);
    ASSERT_TRUE(SetCurrentDirectoryW(PathIn(tree_, "here").c_str()));
    ASSERT_TRUE(operation_.AddSource(PathIn(tree_, "s").c_str()));
    ASSERT_TRUE(operation_.SetDestination(L""));
    operation_.operation = FileOperationKind::Exclude;
    EXPECT_EQ(Run(), "Error: Error DeleteFile 3");
    EXPECT_TRUE(SetCurrentDirectoryW(before));
    EXPECT_EQ(Contents(), InOrder("s/a=1 here/f=2 here/m/g=3"));
}

TEST_F(OperationPaths, may_end_in_separators) {
    AddContents(tree_, "s/m/f=1 d/");
    operation_.operation = FileOperationKind::Copy;
    ASSERT_TRUE(operation_.AddSource((PathIn(tree_, "s/m") + L"\\").c_str()));
    ASSERT_TRUE(operation_.SetDestination((PathIn(tree_, "d") + L"\\/").c_str()));
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(Contents(), InOrder("s/m/f=1 d/m/f=1"));
    // Neither the destination's spelling nor the source's hides that they overlap.
    ASSERT_TRUE(operation_.SetDestination((PathIn(tree_, "s") + L"\\").c_str()));
    EXPECT_EQ(Run(), "Error: Source to destination is recursive");
}

TEST_F(OperationPaths, may_stand_in_quotes) {
    AddContents(tree_, "s/a=1 d/");
    operation_.operation = FileOperationKind::Copy;
    ASSERT_TRUE(operation_.AddSource((L"\"" + PathIn(tree_, "s/a") + L"\"").c_str()));
    ASSERT_TRUE(operation_.SetDestination(PathIn(tree_, "s").c_str()));
    EXPECT_EQ(Run(), "Error: Source to destination is recursive");
}

TEST_F(OperationPaths, of_a_hundred_levels_are_copied_moved_and_deleted) {
    const std::wstring deep = DeepBelow(L"s", 250);
    tree_.AddFile(deep, "1");
    tree_.AddFolder(L"d");
    const int entries = CountEntries(tree_.Path(L"s"));
    ASSERT_GT(entries, 90);
    // The destination's name is as long as the source's, so that everything fits.
    Prepare(FileOperationKind::Update, {"s"}, "d");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(CountEntries(tree_.Path(L"d")), entries);
    Prepare(FileOperationKind::Delete, {"s"}, "");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(CountEntries(tree_.Root()), entries + 1);
    operation_.ClearSources();
    ASSERT_TRUE(operation_.AddSource(tree_.Path(L"d\\n").c_str()));
    ASSERT_TRUE(operation_.SetDestination(tree_.Root().c_str()));
    operation_.operation = FileOperationKind::Move;
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(CountEntries(tree_.Path(L"d")), 0);
    EXPECT_EQ(CountEntries(tree_.Root()), entries + 1);
}

TEST_F(OperationPaths, that_would_be_too_long_are_left_out_of_a_copy) {
    const std::wstring deep = DeepBelow(L"s", 259);
    tree_.AddFile(deep, "1");
    tree_.AddFile(L"s\\short", "2");
    tree_.AddFolder(L"longer");
    const int entries = CountEntries(tree_.Path(L"s"));
    Prepare(FileOperationKind::Copy, {"s"}, "longer");
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(CountEntries(tree_.Path(L"s")), entries);
    // Everything gets 7 units longer. The file's path has 259 units, the folder that holds it ends at 257 or
    // 256 and the ones above it 2 units earlier each. Those beyond 252 do not fit: 257, 255 and 253, or 256
    // and 254.
    const std::size_t holder = tree_.Path(deep.substr(0, deep.rfind(L'\\'))).size();
    ASSERT_TRUE(holder == 256 || holder == 257) << holder;
    EXPECT_EQ(CountEntries(tree_.Path(L"longer\\s")), entries - (holder == 257 ? 4 : 3));
}

TEST_F(OperationPaths, that_would_be_too_long_stay_where_they_are_in_a_move) {
    tree_.AddFile(DeepBelow(L"s", 259), "1");
    tree_.AddFile(L"s\\short", "2");
    tree_.AddFolder(L"longer");
    Prepare(FileOperationKind::Move, {"s"}, "longer");
    EXPECT_EQ(Run(), "Error: Folder not empty");
    EXPECT_NE(GetFileAttributesW(Literal(tree_.Path(DeepBelow(L"s", 259))).c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(OperationPaths, that_are_too_long_are_not_deleted) {
    const std::wstring tooLong = DeepBelow(L"s", 262);
    tree_.AddFile(tooLong, "1");
    Prepare(FileOperationKind::Delete, {"s"}, "");
    EXPECT_EQ(Run(), "Error: Folder not empty");
    EXPECT_NE(GetFileAttributesW(Literal(tree_.Path(tooLong)).c_str()), INVALID_FILE_ATTRIBUTES);
}
