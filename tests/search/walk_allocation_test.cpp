// The walk when memory gives out.

#include <gtest/gtest.h>

#include "search/search_walk.h"
#include "tests/search/fake_folders.h"
#include "tests/search/recorded_search.h"
#include "tests/support/refused_memory.h"

TEST(WalkWithoutMemory, finds_the_same_whichever_allocation_fails) {
    FakeFolders folders;
    folders.AddFile(L"\\", L"a.txt");
    folders.AddFolder(L"\\", L"one");
    folders.AddFile(L"\\", L"b.htm");
    folders.AddFolder(L"\\", L"two.htm");
    folders.AddFile(L"\\", L"c.htm.txt");
    folders.AddFile(L"\\one", L"d.txt");
    folders.AddFile(L"\\one", L"e.htm");
    folders.AddFolder(L"\\one", L"deep");
    folders.AddFile(L"\\one\\deep", L"f.htm");
    folders.AddFile(L"\\two.htm", L"g.txt");
    const std::vector<std::wstring> all = {
        L"\\a.txt",      L"\\c.htm.txt",        L"\\b.htm",         L"\\two.htm", L"\\one\\d.txt",
        L"\\one\\e.htm", L"\\one\\deep\\f.htm", L"\\two.htm\\g.txt"};
    int allocations = 0;
    {
        RecordedWalk recorded(SearchConditions::SubFolders, {L"*.txt", L"*.htm"});
        const RefusedMemory none(RefusedMemory::AllBehind);
        WalkFolder(recorded.walk, L"\\");
        allocations = none.Asked();
        ASSERT_EQ(recorded.sink.paths, all);
    }
    ASSERT_GT(allocations, 10);
    for (int allocation = 1; allocation <= allocations; ++allocation) {
        for (const int last : {allocation, RefusedMemory::AllBehind}) {
            RecordedWalk recorded(SearchConditions::SubFolders, {L"*.txt", L"*.htm"});
            const RefusedMemory refused(allocation, last);
            WalkFolder(recorded.walk, L"\\");
            EXPECT_EQ(recorded.sink.paths, all) << "allocations " << allocation << " to " << last;
        }
    }
}
