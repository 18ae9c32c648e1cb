// The walk when memory gives out. Replaces the memory of the whole program, so it stands alone.

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "search/walk_folder.h"
#include "tests/search/fake_folders.h"
#include "tests/search/recorded_search.h"

namespace {

// Of the allocations that may fail, the one counted from 1 that does, and whether all behind it do as well.
int refused = 0;
bool refusedFromThenOn = false;
int asked = 0;

bool IsRefused() {
    ++asked;
    return refused > 0 && (refusedFromThenOn ? asked >= refused : asked == refused);
}

}  // namespace

void* operator new(std::size_t size) {
    void* const memory = std::malloc(size != 0 ? size : 1);
    if (memory == nullptr) std::abort();
    return memory;
}
void* operator new[](std::size_t size) {
    return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return IsRefused() ? nullptr : std::malloc(size != 0 ? size : 1);
}
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
    return operator new(size, tag);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}

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
    refused = 0;
    int allocations = 0;
    {
        RecordedWalk recorded(SearchConditions::SubFolders, {L"*.txt", L"*.htm"});
        asked = 0;
        WalkFolder(recorded.walk, L"\\");
        allocations = asked;
        ASSERT_EQ(recorded.sink.paths, all);
    }
    ASSERT_GT(allocations, 10);
    for (const bool fromThenOn : {false, true}) {
        for (int allocation = 1; allocation <= allocations; ++allocation) {
            refused = 0;
            RecordedWalk recorded(SearchConditions::SubFolders, {L"*.txt", L"*.htm"});
            refusedFromThenOn = fromThenOn;
            asked = 0;
            refused = allocation;
            WalkFolder(recorded.walk, L"\\");
            refused = 0;
            EXPECT_EQ(recorded.sink.paths, all) << "allocation " << allocation << " then on " << fromThenOn;
        }
    }
}
