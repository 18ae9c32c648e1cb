// Searches of folders that are out of the ordinary: real ones where the system can be brought to make them,
// told ones where it cannot.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "search/run_search.h"
#include "tests/search/fake_folders.h"
#include "tests/search/recorded_search.h"
#include "tests/support/asked_query.h"
#include "tests/support/temp_tree.h"

namespace {

using Texts = std::vector<std::wstring>;

Texts Search(const AskedQuery& query, RecordingSink& sink) {
    SearchConditions conditions;
    RecordingProgress progress;
    RunSearch(conditions, query, sink, progress);
    return sink.paths;
}

Texts Search(const AskedQuery& query) {
    RecordingSink sink;
    return Search(query, sink);
}

AskedQuery Below(const std::wstring& location, const std::wstring& name = L"") {
    AskedQuery query;
    query.location = location;
    query.name = name;
    query.subFolders = true;
    return query;
}

// Without the tree's own folder in front, sorted.
Texts Inside(const TempTree& tree, Texts paths) {
    for (std::wstring& path : paths) {
        EXPECT_EQ(path.rfind(tree.Root() + L"\\", 0), 0U);
        path.erase(0, tree.Root().size() + 1);
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

}  // namespace

TEST(OddWorlds, a_link_to_its_own_parent_ends_and_finds_nothing_twice) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    tree.AddFile(L"sub\\b.txt");
    if (!tree.AddFolderLink(L"sub\\parent", L"")) GTEST_SKIP() << "no links here";
    EXPECT_EQ(Inside(tree, Search(Below(tree.Root()))),
              (Texts{L"a.txt", L"sub", L"sub\\b.txt", L"sub\\parent"}));
}

TEST(OddWorlds, a_link_to_a_folder_of_the_same_tree_finds_nothing_twice) {
    TempTree tree;
    tree.AddFile(L"real\\a.txt");
    if (!tree.AddFolderLink(L"another name", L"real")) GTEST_SKIP() << "no links here";
    EXPECT_EQ(Inside(tree, Search(Below(tree.Root(), L"a.txt"))), Texts{L"real\\a.txt"});
    // Given as the location it is walked.
    EXPECT_EQ(Inside(tree, Search(Below(tree.Path(L"another name"), L"a.txt"))),
              Texts{L"another name\\a.txt"});
}

TEST(OddWorlds, ten_thousand_files_in_one_folder_are_found_each_once) {
    TempTree tree;
    tree.AddNumberedFiles(L"many", 10000);
    const Texts paths = Search(Below(tree.Root(), L"*.txt"));
    EXPECT_EQ(paths.size(), 10000U);
    EXPECT_EQ(std::set<std::wstring>(paths.begin(), paths.end()).size(), 10000U);
}

TEST(OddWorlds, two_hundred_levels_of_folders_are_walked_as_far_as_paths_fit) {
    TempTree tree;
    std::wstring folder = L"d";
    for (int level = 1; level < 200; ++level)
        folder += L"\\d";
    tree.AddFolder(folder);
    const Texts paths = Search(Below(tree.Root()));
    // Each level adds two units. The last folder that is listed leaves room for "\*" in 259 units, and what
    // is found in it is two units longer.
    const std::size_t fitting = (MAX_PATH - 1 - 2 - tree.Root().size()) / 2 + 1;
    EXPECT_EQ(paths.size(), fitting);
    EXPECT_EQ(paths.back().size(), tree.Root().size() + 2 * fitting);
}

TEST(OddWorlds, a_folder_whose_pattern_no_longer_fits_is_passed_over) {
    FakeFolders folders;
    // With the separator in front, 257 units: just enough room behind it for "\*" in 259.
    const std::wstring first = L"\\" + std::wstring(256, L'f');
    folders.AddFolder(L"\\", first.substr(1));
    folders.AddFolder(first, L"x");
    folders.AddFile(first + L"\\x", L"y");
    EXPECT_EQ(Search(Below(L"\\")), (Texts{first, first + L"\\x"}));
    EXPECT_EQ(folders.listed, (Texts{L"\\*", first + L"\\*"}));
}

TEST(OddWorlds, unreadable_folders_are_passed_over) {
    FakeFolders folders;
    folders.AddFolder(L"\\", L"closed");
    folders.AddFolder(L"\\", L"open");
    folders.AddFile(L"\\closed", L"a.txt");
    folders.AddFile(L"\\open", L"b.txt");
    folders.FailListing(L"\\closed", ERROR_ACCESS_DENIED);
    EXPECT_EQ(Search(Below(L"\\")), (Texts{L"\\closed", L"\\open", L"\\open\\b.txt"}));
}

TEST(OddWorlds, a_listing_that_breaks_off_ends_like_one_that_is_complete) {
    FakeFolders folders;
    folders.AddFile(L"\\", L"a.txt");
    folders.AddFile(L"\\", L"b.txt");
    Replaced broken(ce::fileCalls.findNextFile, [](HANDLE, WIN32_FIND_DATAW*) -> BOOL {
        SetLastError(ERROR_CRC);
        return FALSE;
    });
    EXPECT_EQ(Search(Below(L"\\")), Texts{L"\\a.txt"});
}

TEST(OddWorlds, a_folder_that_vanishes_after_it_was_listed_is_passed_over) {
    TempTree tree;
    tree.AddFolder(L"a");
    tree.AddFile(L"z.txt");
    class RemovingSink : public RecordingSink {
      public:
        void AddMatch(const wchar_t* fullPath, const WIN32_FIND_DATAW& entry) override {
            RecordingSink::AddMatch(fullPath, entry);
            RemoveDirectoryW(fullPath);
        }
    };
    RemovingSink sink;
    EXPECT_EQ(Inside(tree, Search(Below(tree.Root()), sink)), (Texts{L"a", L"z.txt"}));
    EXPECT_EQ(GetFileAttributesW(tree.Path(L"a").c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST(OddWorlds, a_file_that_vanishes_before_it_is_opened_holds_no_text) {
    FakeFolders folders;
    folders.AddFile(L"\\", L"gone.txt");
    folders.AddFile(L"\\", L"there.txt");
    folders.SetContent(L"\\there.txt", "text");
    AskedQuery query = Below(L"\\");
    query.content = L"text";
    EXPECT_EQ(Search(query), Texts{L"\\there.txt"});
    EXPECT_EQ(folders.opened, (Texts{L"\\gone.txt", L"\\there.txt"}));
}

TEST(OddWorlds, the_260th_unit_of_a_content_text_has_to_be_in_the_file_as_well) {
    TempTree tree;
    const std::string bytes(259, 'x');
    tree.AddFile(L"whole.txt", "a " + bytes + "y b");
    tree.AddFile(L"all but the last.txt", "a " + bytes + "z b");
    AskedQuery query = Below(tree.Root());
    query.content = std::wstring(259, L'x') + L"y";
    for (const bool ignoreCase : {true, false}) {
        query.ignoreCase = ignoreCase;
        EXPECT_EQ(Inside(tree, Search(query)), Texts{L"whole.txt"});
    }
}

TEST(OddWorlds, a_locked_file_is_found_by_name_and_not_by_content) {
    TempTree tree;
    const std::wstring path = tree.AddFile(L"locked.txt", "text");
    const HANDLE lock = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    AskedQuery query = Below(tree.Root());
    EXPECT_EQ(Inside(tree, Search(query)), Texts{L"locked.txt"});
    query.content = L"text";
    EXPECT_EQ(Search(query), Texts{});
    CloseHandle(lock);
    EXPECT_EQ(Inside(tree, Search(query)), Texts{L"locked.txt"});
}

TEST(OddWorlds, half_a_surrogate_pair_in_a_name_is_a_unit_like_any_other) {
    const std::wstring high = {static_cast<wchar_t>(0xD83D)};
    const std::wstring low = {static_cast<wchar_t>(0xDE00)};
    FakeFolders folders;
    folders.AddFolder(L"\\", high);
    folders.AddFile(L"\\" + high, low + L"x.txt");
    folders.AddFile(L"\\" + high, high + low + L".txt");
    EXPECT_EQ(Search(Below(L"\\")), (Texts{L"\\" + high, L"\\" + high + L"\\" + low + L"x.txt",
                                           L"\\" + high + L"\\" + high + low + L".txt"}));
    EXPECT_EQ(Search(Below(L"\\", low + L"x")), Texts{L"\\" + high + L"\\" + low + L"x.txt"});
    EXPECT_EQ(Search(Below(L"\\", L"?x.txt")), Texts{L"\\" + high + L"\\" + low + L"x.txt"});
}

TEST(OddWorlds, names_that_end_in_dots_or_spaces_are_kept_apart_from_those_that_do_not) {
    TempTree tree;
    tree.AddFile(L"a\\one.txt", "text");
    tree.AddFile(L"a.\\two.txt", "text");
    tree.AddFile(L"a \\three.txt", "other");
    tree.AddFile(L"b.txt", "other");
    tree.AddFile(L"b.txt.", "text");
    EXPECT_EQ(Inside(tree, Search(Below(tree.Root(), L"*.txt"))),
              (Texts{L"a \\three.txt", L"a.\\two.txt", L"a\\one.txt", L"b.txt"}));
    AskedQuery query = Below(tree.Root());
    query.content = L"text";
    EXPECT_EQ(Inside(tree, Search(query)), (Texts{L"a.\\two.txt", L"a\\one.txt", L"b.txt."}));
}

TEST(OddWorlds, names_of_devices_are_names_of_files) {
    TempTree tree;
    tree.AddFile(L"con", "text");
    tree.AddFile(L"aux.c", "text");
    tree.AddFile(L"nul\\prn.txt", "text");
    AskedQuery query = Below(tree.Root());
    query.content = L"text";
    EXPECT_EQ(Inside(tree, Search(query)), (Texts{L"aux.c", L"con", L"nul\\prn.txt"}));
}

TEST(OddWorlds, japanese_names_are_found_by_any_part_of_them) {
    TempTree tree;
    tree.AddFile(L"書類\\日本語の文書.txt");
    tree.AddFile(L"書類\\other.txt");
    EXPECT_EQ(Inside(tree, Search(Below(tree.Root(), L"本語"))), Texts{L"書類\\日本語の文書.txt"});
    EXPECT_EQ(Inside(tree, Search(Below(tree.Root(), L"日*.TXT"))), Texts{L"書類\\日本語の文書.txt"});
}

TEST(OddWorlds, a_location_with_wildcards_or_without_end_finds_nothing) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    EXPECT_EQ(Search(Below(tree.Path(L"*"))), Texts{});
    EXPECT_EQ(Search(Below(tree.Path(L"a.txt"))), Texts{});
    EXPECT_EQ(Search(Below(L":::")), Texts{});
    EXPECT_EQ(Search(Below(L"\\\\?\\")), Texts{});
    EXPECT_EQ(Search(Below(std::wstring(400, L'x'))), Texts{});
}

TEST(OddWorlds, a_name_with_separators_matches_in_the_folders_that_it_names) {
    TempTree tree;
    tree.AddFile(L"sub\\a.txt");
    tree.AddFile(L"sub\\sub\\b.txt");
    // Handed to the enumeration as it stands, relative to each folder. The row's path is the walked folder
    // and the name.
    EXPECT_EQ(Inside(tree, Search(Below(tree.Root(), L"sub\\*.txt"))), (Texts{L"a.txt", L"sub\\b.txt"}));
}
