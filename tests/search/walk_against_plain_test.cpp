// The walk that lists a folder once, over random trees, against the one that lists it for every pass.

#include <gtest/gtest.h>

#include <random>

#include "search/walk_folder.h"
#include "tests/search/fake_folders.h"
#include "tests/search/plain_walk.h"
#include "tests/search/recorded_search.h"

namespace {

constexpr const wchar_t* Names[] = {L"a",      L"b.txt", L"B.TXT", L"c.htm",    L"d.html", L"e.txt.htm",
                                    L"README", L".txt",  L"x y.c", L"日本.txt", L"f.",     L"g.tx"};
constexpr const wchar_t* Patterns[] = {L"*.*", L"*.txt", L"*.htm", L"*.html",  L"?.*",        L"*t*",
                                       L"a",   L"*",     L"none*", L"日?.txt", L"sub\\*.txt", L"*.TXT"};

class RandomWalk {
  public:
    explicit RandomWalk(unsigned seed) : engine(seed) {}

    int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(engine); }

    // Files, folders, links and folders that cannot be listed, up to four levels deep.
    void Fill(FakeFolders& folders, const std::wstring& folder, int depth) {
        const int entries = UpTo(8);
        for (int i = 0; i < entries; ++i) {
            const std::wstring name = Names[UpTo(static_cast<int>(std::size(Names)) - 1)];
            if (UpTo(2) != 0) {
                folders.AddFile(folder, name);
                continue;
            }
            const std::wstring path = (folder == L"\\" ? L"\\" : folder + L"\\") + name + std::to_wstring(i);
            const bool marked = UpTo(5) == 0;
            folders.AddFolder(folder, name + std::to_wstring(i), marked ? FILE_ATTRIBUTE_REPARSE_POINT : 0U);
            if (marked && UpTo(1) == 0) folders.SetFolderLink(path);
            if (UpTo(9) == 0) folders.FailListing(path, ERROR_ACCESS_DENIED);
            if (depth > 0) Fill(folders, path, depth - 1);
        }
        if (UpTo(3) == 0) folders.AddFolder(folder, L"sub");
        if (UpTo(3) == 0) folders.AddFile((folder == L"\\" ? L"\\" : folder + L"\\") + L"sub", L"s.txt");
    }

    std::vector<const wchar_t*> SomePatterns() {
        std::vector<const wchar_t*> patterns;
        const int count = UpTo(3);
        for (int i = 0; i < count; ++i)
            patterns.push_back(Patterns[UpTo(static_cast<int>(std::size(Patterns)) - 1)]);
        return patterns;
    }

  private:
    std::mt19937 engine;
};

}  // namespace

TEST(WalkAgainstPlain, finds_the_same_in_the_same_order_and_enters_the_same_folders) {
    std::size_t found = 0;
    for (unsigned seed = 1; seed <= 400; ++seed) {
        RandomWalk random(seed);
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
        RandomWalk random(seed);
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
