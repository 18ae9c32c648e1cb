// The walk that lists a folder once, over random trees, against the one that lists it for every pass.

#include <gtest/gtest.h>

#include "search/search_walk.h"
#include "tests/search/plain_walk.h"
#include "tests/search/random_folders.h"
#include "tests/search/recorded_search.h"

TEST(WalkAgainstPlain, finds_the_same_in_the_same_order_and_enters_the_same_folders) {
    std::size_t found = 0;
    for (unsigned seed = 1; seed <= 400; ++seed) {
        RandomFolders random(seed);
        FakeFolders folders;
        random.Fill(folders, L"\\", 3);
        const std::vector<const wchar_t*> patterns = random.SomePatterns();
        const auto flags = static_cast<std::uint16_t>(random.UpTo(3) != 0 ? SearchConditions::SubFolders : 0);
        const wchar_t* const substring = random.UpTo(3) == 0 ? L"t" : L"";
        RecordedWalk plain(flags, patterns, substring);
        PlainWalkFolder(plain.walk, L"\\");
        RecordedWalk recorded(flags, patterns, substring);
        WalkFolder(recorded.walk, L"\\");
        ASSERT_EQ(recorded.sink.paths, plain.sink.paths) << "seed " << seed;
        ASSERT_EQ(recorded.progress.folders, plain.progress.folders) << "seed " << seed;
        for (std::size_t i = 0; i < plain.sink.entries.size(); ++i) {
            ASSERT_EQ(recorded.sink.entries[i].dwFileAttributes, plain.sink.entries[i].dwFileAttributes);
        }
        found += plain.sink.paths.size();
    }
    EXPECT_GT(found, 1000U);
}

TEST(WalkAgainstPlain, stopped_at_any_question_it_has_found_a_beginning_of_the_whole) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        RandomFolders random(seed);
        FakeFolders folders;
        random.Fill(folders, L"\\", 2);
        const std::vector<const wchar_t*> patterns = {L"*.txt", L"*t*", L"*.htm"};
        RecordedWalk whole(SearchConditions::SubFolders, patterns);
        WalkFolder(whole.walk, L"\\");
        for (int question = 1; question <= whole.progress.asked; ++question) {
            RecordedWalk stopped(SearchConditions::SubFolders, patterns);
            stopped.progress.stopAtQuestion = question;
            WalkFolder(stopped.walk, L"\\");
            const std::vector<std::wstring>& paths = stopped.sink.paths;
            ASSERT_LE(paths.size(), whole.sink.paths.size());
            EXPECT_TRUE(std::equal(paths.begin(), paths.end(), whole.sink.paths.begin()))
                << "seed " << seed << ", question " << question;
        }
    }
}
