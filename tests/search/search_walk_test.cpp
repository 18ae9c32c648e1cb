#include "search/search_walk.h"

#include <gtest/gtest.h>

#include "tests/search/fake_folders.h"
#include "tests/search/recorded_search.h"

namespace {

using Texts = std::vector<std::wstring>;

constexpr std::uint16_t SubFolders = SearchConditions::SubFolders;

// \a.txt  \one\{b.txt, deep\{c.txt}}  \two.txt\{d.txt}  \z.htm
void AddTree(FakeFolders& folders) {
    folders.AddFile(L"\\", L"a.txt");
    folders.AddFolder(L"\\", L"one");
    folders.AddFolder(L"\\", L"two.txt");
    folders.AddFile(L"\\", L"z.htm");
    folders.AddFile(L"\\one", L"b.txt");
    folders.AddFolder(L"\\one", L"deep");
    folders.AddFile(L"\\one\\deep", L"c.txt");
    folders.AddFile(L"\\two.txt", L"d.txt");
}

struct TreeOfFolders {
    TreeOfFolders() { AddTree(folders); }
    FakeFolders folders;
};

// A walk over the whole of that tree that has come to its end, or to the question at which it was to stop.
struct WalkOfTree : TreeOfFolders, RecordedWalk {
    WalkOfTree(std::uint16_t flags, const std::vector<const wchar_t*>& patternTexts, int stopAtQuestion = 0)
        : RecordedWalk(flags, patternTexts) {
        progress.stopAtQuestion = stopAtQuestion;
        WalkFolder(walk, L"\\");
    }
};

}  // namespace

TEST(WalkFolder, finds_the_folders_own_entries_first_and_then_each_subtree_depth_first) {
    const WalkOfTree recorded(SubFolders, {L"*.*"});
    EXPECT_EQ(recorded.sink.paths, (Texts{L"\\a.txt", L"\\one", L"\\two.txt", L"\\z.htm", L"\\one\\b.txt",
                                          L"\\one\\deep", L"\\one\\deep\\c.txt", L"\\two.txt\\d.txt"}));
    EXPECT_EQ(recorded.progress.folders, (Texts{L"\\", L"\\one", L"\\one\\deep", L"\\two.txt"}));
}

TEST(WalkFolder, stays_in_the_folder_without_sub_folders) {
    FakeFolders folders;
    AddTree(folders);
    RecordedWalk recorded(0, {L"*.*"});
    WalkFolder(recorded.walk, L"\\one");
    EXPECT_EQ(recorded.sink.paths, (Texts{L"\\one\\b.txt", L"\\one\\deep"}));
    EXPECT_EQ(recorded.progress.folders, Texts{L"\\one"});
    EXPECT_EQ(folders.listed, Texts{L"\\one\\*"});
}

TEST(WalkFolder, goes_pattern_by_pattern_within_each_folder) {
    const WalkOfTree recorded(SubFolders, {L"*.htm", L"*.txt"});
    EXPECT_EQ(recorded.sink.paths, (Texts{L"\\z.htm", L"\\a.txt", L"\\two.txt", L"\\one\\b.txt",
                                          L"\\one\\deep\\c.txt", L"\\two.txt\\d.txt"}));
}

TEST(WalkFolder, enters_every_folder_whatever_the_patterns_are) {
    const WalkOfTree recorded(SubFolders, {L"c*"});
    EXPECT_EQ(recorded.sink.paths, Texts{L"\\one\\deep\\c.txt"});
}

TEST(WalkFolder, finds_nothing_with_an_empty_pattern_list_but_still_enters_the_folders) {
    const WalkOfTree recorded(SubFolders, {});
    EXPECT_EQ(recorded.sink.paths, Texts{});
    EXPECT_EQ(recorded.progress.folders.size(), 4U);
}

TEST(WalkFolder, takes_a_null_item_for_the_end_of_the_patterns) {
    FakeFolders folders;
    AddTree(folders);
    RecordedWalk recorded(0, {L"*.htm"});
    ASSERT_TRUE(recorded.patterns.Append(nullptr));
    ASSERT_TRUE(recorded.patterns.Append(new StringObject(L"*.txt")));
    WalkFolder(recorded.walk, L"\\");
    EXPECT_EQ(recorded.sink.paths, Texts{L"\\z.htm"});
}

TEST(WalkFolder, takes_a_null_item_for_the_end_also_as_the_first_of_the_patterns) {
    const WalkOfTree recorded(SubFolders, {nullptr, L"*.txt", L"*.htm"});
    EXPECT_EQ(recorded.sink.paths, Texts{});
    EXPECT_EQ(recorded.progress.folders.size(), 4U);
}

TEST(WalkFolder, lists_a_folder_that_matches_like_a_file) {
    const WalkOfTree recorded(0, {L"*.txt"});
    EXPECT_EQ(recorded.sink.paths, (Texts{L"\\a.txt", L"\\two.txt"}));
    EXPECT_NE(recorded.sink.entries[1].dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY, 0U);
}

TEST(WalkFolder, filters_no_attribute) {
    FakeFolders folders;
    constexpr DWORD Hidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY;
    folders.AddFolder(L"\\", L"hidden", Hidden);
    folders.AddFile(L"\\hidden", L"in.txt");
    RecordedWalk recorded(SubFolders, {L"*.*"});
    WalkFolder(recorded.walk, L"\\");
    EXPECT_EQ(recorded.sink.paths, (Texts{L"\\hidden", L"\\hidden\\in.txt"}));
}

TEST(WalkFolder, passes_over_a_missing_location_in_silence) {
    FakeFolders folders;
    RecordedWalk recorded(SubFolders, {L"*.*"});
    WalkFolder(recorded.walk, L"\\missing");
    EXPECT_EQ(recorded.sink.paths, Texts{});
    EXPECT_EQ(recorded.progress.folders, Texts{L"\\missing"});
    EXPECT_EQ(folders.listed, Texts{L"\\missing\\*"});
}

TEST(WalkFolder, tries_every_pattern_also_after_one_that_matches_nothing) {
    const WalkOfTree recorded(0, {L"*.none", L"*.htm"});
    EXPECT_EQ(recorded.sink.paths, Texts{L"\\z.htm"});
}

TEST(WalkFolder, lists_each_folder_once_whatever_the_number_of_patterns) {
    const WalkOfTree recorded(SubFolders, {L"*.htm", L"*.txt", L"*.none"});
    EXPECT_EQ(recorded.folders.listed, (Texts{L"\\*", L"\\one\\*", L"\\one\\deep\\*", L"\\two.txt\\*"}));
}

TEST(WalkFolder, lists_an_entry_once_for_every_pattern_that_it_matches) {
    const WalkOfTree recorded(0, {L"*.txt", L"a*", L"*.*"});
    EXPECT_EQ(recorded.sink.paths,
              (Texts{L"\\a.txt", L"\\two.txt", L"\\a.txt", L"\\a.txt", L"\\one", L"\\two.txt", L"\\z.htm"}));
}

TEST(WalkFolder, hands_a_match_of_a_later_pattern_over_with_its_whole_record) {
    FakeFolders folders;
    folders.AddFile(L"\\", L"a.txt", 77);
    folders.SetWritten(L"\\", L"a.txt", FILETIME{5, 6});
    RecordedWalk recorded(0, {L"*.htm", L"*.txt"});
    WalkFolder(recorded.walk, L"\\");
    ASSERT_EQ(recorded.sink.entries.size(), 1U);
    const WIN32_FIND_DATAW& entry = recorded.sink.entries[0];
    EXPECT_STREQ(entry.cFileName, L"a.txt");
    EXPECT_EQ(entry.dwFileAttributes, static_cast<DWORD>(FILE_ATTRIBUTE_ARCHIVE));
    EXPECT_EQ(entry.nFileSizeLow, 77U);
    EXPECT_EQ(entry.ftLastWriteTime.dwLowDateTime, 5U);
    EXPECT_EQ(entry.ftLastWriteTime.dwHighDateTime, 6U);
}

TEST(WalkFolder, looks_into_the_folder_that_a_pattern_with_a_separator_names) {
    const WalkOfTree recorded(SubFolders, {L"one\\*.txt", L"*.htm"});
    // The name is joined to the folder that is walked, as for every entry.
    EXPECT_EQ(recorded.sink.paths, (Texts{L"\\b.txt", L"\\z.htm"}));
    EXPECT_EQ(recorded.progress.folders, (Texts{L"\\", L"\\one", L"\\one\\deep", L"\\two.txt"}));
}

TEST(WalkFolder, asks_twice_for_a_match_and_once_for_another_entry_and_for_a_folder_to_enter) {
    FakeFolders folders;
    folders.AddFile(L"\\", L"a.txt");
    folders.AddFile(L"\\", L"b.htm");
    folders.AddFolder(L"\\", L"c");
    RecordedWalk recorded(SubFolders, {L"*.txt"});
    WalkFolder(recorded.walk, L"\\");
    EXPECT_EQ(recorded.progress.asked, 2 + 1 + 1 + 1);
}

TEST(WalkFolder, leaves_the_folder_at_once_when_the_stop_is_seen_before_an_entry) {
    // Two questions for a.txt; the third comes before "one".
    const WalkOfTree recorded(SubFolders, {L"*.*", L"*.txt"}, 3);
    EXPECT_EQ(recorded.sink.paths, Texts{L"\\a.txt"});
    EXPECT_EQ(recorded.progress.asked, 3);
}

TEST(WalkFolder, leaves_the_folder_at_once_when_the_stop_is_seen_in_the_test_of_an_entry) {
    // The second question for "one" is asked by its test.
    const WalkOfTree recorded(SubFolders, {L"*.*", L"*.txt"}, 4);
    EXPECT_EQ(recorded.sink.paths, Texts{L"\\a.txt"});
    EXPECT_EQ(recorded.progress.asked, 4);
}

TEST(WalkFolder, stops_among_the_matches_of_a_later_pattern) {
    // One question for each of three entries, two for z.htm, two for a.txt; the next comes before "one".
    const WalkOfTree recorded(SubFolders, {L"*.htm", L"*.*"}, 3 + 2 + 2 + 1);
    EXPECT_EQ(recorded.sink.paths, (Texts{L"\\z.htm", L"\\a.txt"}));
    EXPECT_EQ(recorded.progress.folders, Texts{L"\\"});
}

TEST(WalkFolder, enters_no_further_folder_after_a_stop_in_the_sub_folder_pass) {
    // Eight questions for the root's entries, one before "one", four for its entries, one before "deep"; the
    // next is asked in "deep".
    const WalkOfTree recorded(SubFolders, {L"*.*"}, 8 + 1 + 4 + 1 + 1);
    EXPECT_EQ(recorded.sink.paths,
              (Texts{L"\\a.txt", L"\\one", L"\\two.txt", L"\\z.htm", L"\\one\\b.txt", L"\\one\\deep"}));
    EXPECT_EQ(recorded.progress.folders, (Texts{L"\\", L"\\one", L"\\one\\deep"}));
}

TEST(WalkFolder, keeps_what_was_found_when_it_is_stopped) {
    const WalkOfTree recorded(SubFolders, {L"*.*"}, 9);
    EXPECT_EQ(recorded.sink.paths, (Texts{L"\\a.txt", L"\\one", L"\\two.txt", L"\\z.htm"}));
    EXPECT_EQ(recorded.progress.folders, Texts{L"\\"});
}

TEST(WalkFolder, does_not_enter_a_link_to_a_folder_but_lists_it) {
    FakeFolders folders;
    folders.AddFolder(L"\\", L"link", FILE_ATTRIBUTE_REPARSE_POINT);
    folders.AddFolder(L"\\", L"card", FILE_ATTRIBUTE_REPARSE_POINT);
    folders.AddFile(L"\\link", L"in link.txt");
    folders.AddFile(L"\\card", L"on card.txt");
    folders.SetFolderLink(L"\\link");
    RecordedWalk recorded(SubFolders, {L"*.*"});
    WalkFolder(recorded.walk, L"\\");
    // A volume mounted in a folder is marked in the same way and is entered.
    EXPECT_EQ(recorded.sink.paths, (Texts{L"\\link", L"\\card", L"\\card\\on card.txt"}));
}

TEST(WalkFolder, walks_a_location_that_is_itself_a_link) {
    FakeFolders folders;
    folders.AddFile(L"\\link", L"in link.txt");
    folders.SetFolderLink(L"\\link");
    RecordedWalk recorded(SubFolders, {L"*.*"});
    WalkFolder(recorded.walk, L"\\link");
    EXPECT_EQ(recorded.sink.paths, Texts{L"\\link\\in link.txt"});
}

TEST(WalkFolder, lets_the_receiver_show_its_matches_at_the_first_look_at_the_queue) {
    FakeFolders folders;
    folders.AddFile(L"\\", L"a.txt");
    RecordedWalk recorded(0, {L"*.*"});
    WalkFolder(recorded.walk, L"\\");
    EXPECT_GE(recorded.sink.refreshes, 1);
}

TEST(WalkFolder, stops_when_a_quit_arrives_and_leaves_it_in_the_queue) {
    FakeFolders folders;
    AddTree(folders);
    RecordedWalk recorded(SubFolders, {L"*.*"});
    PostQuitMessage(5);
    WalkFolder(recorded.walk, L"\\");
    EXPECT_EQ(recorded.sink.paths, Texts{});
    EXPECT_EQ(recorded.progress.folders, Texts{L"\\"});
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 5U);
}

TEST(WalkFolder, stops_when_a_quit_arrives_in_the_middle) {
    class QuittingSink : public RecordingSink {
      public:
        void AddMatch(const wchar_t* fullPath, const WIN32_FIND_DATAW& entry) override {
            RecordingSink::AddMatch(fullPath, entry);
            if (paths.size() == 5) {
                PostQuitMessage(0);
                ExpectMessages();
            }
        }
    };
    FakeFolders folders;
    AddTree(folders);
    RecordedWalk recorded(SubFolders, {L"*.*"});
    QuittingSink sink;
    SearchWalk walk{recorded.conditions, recorded.patterns, L"", sink, recorded.progress};
    WalkFolder(walk, L"\\");
    EXPECT_EQ(sink.paths.size(), 5U);
    EXPECT_EQ(sink.paths.back(), L"\\one\\b.txt");
    MSG message;
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}
