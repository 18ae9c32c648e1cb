#include "search/entry_filter.h"

#include <gtest/gtest.h>

#include "search/substring_search.h"
#include "tests/search/fake_folders.h"
#include "tests/search/recorded_search.h"

namespace {

using Texts = std::vector<std::wstring>;

WIN32_FIND_DATAW Entry(const wchar_t* name, DWORD size = 1, DWORD attributes = FILE_ATTRIBUTE_ARCHIVE) {
    WIN32_FIND_DATAW entry = {};
    entry.dwFileAttributes = attributes;
    entry.nFileSizeLow = size;
    std::wcsncpy(entry.cFileName, name, MAX_PATH - 1);
    return entry;
}

void SetContentPattern(SearchConditions& conditions, const char* pattern) {
    conditions.flags |= SearchConditions::ContentString;
    std::snprintf(conditions.contentPattern, sizeof(conditions.contentPattern), "%s", pattern);
}

}  // namespace

TEST(TestEntry, hands_over_the_joined_path_and_the_record) {
    RecordedWalk recorded(0, {});
    EXPECT_EQ(TestEntry(recorded.walk, L"\\docs", Entry(L"a.txt", 77)), WalkStep::GoOn);
    ASSERT_EQ(recorded.sink.paths, Texts{L"\\docs\\a.txt"});
    EXPECT_EQ(recorded.sink.entries[0].nFileSizeLow, 77U);
    EXPECT_STREQ(recorded.sink.entries[0].cFileName, L"a.txt");
}

TEST(TestEntry, goes_on_when_the_entry_does_not_pass) {
    RecordedWalk recorded(SearchConditions::SizeAbove, {});
    recorded.conditions.sizeBound = 10;
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"small", 10)), WalkStep::GoOn);
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"large", 11)), WalkStep::GoOn);
    EXPECT_EQ(recorded.sink.paths, Texts{L"\\large"});
}

TEST(TestEntry, wants_the_substring_in_the_name_with_its_case) {
    RecordedWalk recorded(0, {}, L"abc");
    for (const wchar_t* name : {L"xabcx.txt", L"abc", L"ABC.TXT", L"ab", L"a"}) {
        EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(name)), WalkStep::GoOn);
    }
    EXPECT_EQ(recorded.sink.paths, (Texts{L"\\xabcx.txt", L"\\abc"}));
}

TEST(TestEntry, tells_of_a_long_file_before_it_reads_it_and_of_no_other) {
    constexpr DWORD Megabyte = 1024 * 1024;
    FakeFolders folders;
    RecordedWalk recorded(SearchConditions::SizeAbove, {});
    SetContentPattern(recorded.conditions, "x");
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"short", Megabyte - 1)), WalkStep::GoOn);
    EXPECT_EQ(recorded.progress.longFiles, 0);
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"long", Megabyte)), WalkStep::GoOn);
    EXPECT_EQ(recorded.progress.longFiles, 1);
    WIN32_FIND_DATAW huge = Entry(L"huge", 0);
    huge.nFileSizeHigh = 1;
    recorded.conditions.flags &= static_cast<std::uint16_t>(~SearchConditions::SizeAbove);
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", huge), WalkStep::GoOn);
    EXPECT_EQ(recorded.progress.longFiles, 2);
}

TEST(TestEntry, tells_of_no_file_that_is_not_read) {
    FakeFolders folders;
    RecordedWalk recorded(0, {}, L"other");
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"long", 0x40000000)), WalkStep::GoOn);
    SetContentPattern(recorded.conditions, "x");
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"long", 0x40000000)), WalkStep::GoOn);
    EXPECT_EQ(recorded.progress.longFiles, 0);
}

TEST(TestEntry, stops_before_any_test) {
    FakeFolders folders;
    RecordedWalk recorded(0, {});
    SetContentPattern(recorded.conditions, "x");
    recorded.progress.stopAtQuestion = 1;
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"a.txt")), WalkStep::Stop);
    EXPECT_EQ(recorded.sink.paths, Texts{});
    EXPECT_EQ(folders.opened, Texts{});
}

TEST(TestEntry, opens_a_file_only_after_every_cheaper_test) {
    FakeFolders folders;
    folders.SetContent(L"\\right.txt", "x");
    folders.SetContent(L"\\right too small", "x");
    folders.SetContent(L"\\wrong.txt", "x");
    RecordedWalk recorded(SearchConditions::SizeAbove, {}, L"right");
    SetContentPattern(recorded.conditions, "x");
    recorded.conditions.sizeBound = 10;
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"right.txt", 20)), WalkStep::GoOn);
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"right too small", 5)), WalkStep::GoOn);
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"wrong.txt", 20)), WalkStep::GoOn);
    EXPECT_EQ(folders.opened, Texts{L"\\right.txt"});
    EXPECT_EQ(recorded.sink.paths, Texts{L"\\right.txt"});
}

TEST(TestEntry, tests_date_and_size_before_the_name) {
    RecordedWalk recorded(SearchConditions::SizeAbove, {}, L"abc");
    recorded.conditions.sizeBound = 10;
    SharedShiftTable().Clear();
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"abc", 5)), WalkStep::GoOn);
    // The name was not looked at: its search would have set every shift to 3.
    EXPECT_EQ(SharedShiftTable().ForUnit(L'x'), 0);
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"abc", 50)), WalkStep::GoOn);
    EXPECT_EQ(SharedShiftTable().ForUnit(L'x'), 3);
}

TEST(TestEntry, passes_over_an_entry_whose_path_does_not_fit) {
    RecordedWalk recorded(0, {});
    const std::wstring folder = L"\\" + std::wstring(200, L'f');
    // 201 units, a separator, the name and the terminator have to fit in 260.
    EXPECT_EQ(TestEntry(recorded.walk, folder.c_str(), Entry(std::wstring(58, L'n').c_str())),
              WalkStep::GoOn);
    EXPECT_EQ(recorded.sink.paths, Texts{});
    EXPECT_EQ(TestEntry(recorded.walk, folder.c_str(), Entry(std::wstring(57, L'n').c_str())),
              WalkStep::GoOn);
    ASSERT_EQ(recorded.sink.paths.size(), 1U);
    EXPECT_EQ(recorded.sink.paths[0].size(), 259U);
}

TEST(TestEntry, never_lists_a_folder_when_a_content_string_is_given) {
    FakeFolders folders;
    folders.SetContent(L"\\abc", "x");
    RecordedWalk recorded(0, {}, L"abc");
    SetContentPattern(recorded.conditions, "x");
    EXPECT_EQ(TestEntry(recorded.walk, L"\\", Entry(L"abc", 0, FILE_ATTRIBUTE_DIRECTORY)), WalkStep::GoOn);
    EXPECT_EQ(recorded.sink.paths, Texts{});
    EXPECT_EQ(folders.opened, Texts{});
}

TEST(TestEntry, lets_the_name_test_decide_what_is_found_behind_bytes_of_the_upper_half) {
    FakeFolders folders;
    folders.SetContent(L"\\abcde", "\x90\x90XY");
    SharedShiftTable().Clear();
    // No name test: the shifts of 0x90 are still 0, each step is one byte, and XY is met.
    RecordedWalk without(0, {});
    SetContentPattern(without.conditions, "XY");
    EXPECT_EQ(TestEntry(without.walk, L"\\", Entry(L"abcde")), WalkStep::GoOn);
    EXPECT_EQ(without.sink.paths, Texts{L"\\abcde"});
    // The name test sets them to 5, and the second 0x90 leads past the end of the four bytes.
    RecordedWalk with(0, {}, L"abcde");
    SetContentPattern(with.conditions, "XY");
    EXPECT_EQ(TestEntry(with.walk, L"\\", Entry(L"abcde")), WalkStep::GoOn);
    EXPECT_EQ(with.sink.paths, Texts{});
    EXPECT_EQ(folders.opened.size(), 2U);
}
