// What a whole search finds and how the rows show it.

#include <windows.h>

#include <shellapi.h>

#include <algorithm>

#include "resources/resource_ids.h"
#include "tests/program/program_test.h"

class Rows : public ProgramTest {
  protected:
    RowState RowNamed(const std::wstring& name) {
        for (const RowState& row : Program().Rows()) {
            if (row.name == name) return row;
        }
        ADD_FAILURE() << "no row is named " << testing::PrintToString(name);
        return {};
    }
};

TEST_F(Rows, a_plain_name_is_a_part_of_the_name_with_regard_to_case) {
    EXPECT_EQ((Names{L"abc", L"xabcx.txt"}), Sorted(NamesFoundBy(Named(L"abc", L"\\names"))));
}

TEST_F(Rows, a_wildcard_is_the_whole_name_without_regard_to_case) {
    EXPECT_EQ((Names{L"ABC.TXT", L"abc"}), Sorted(NamesFoundBy(Named(L"abc*", L"\\names"))));
}

TEST_F(Rows, a_question_mark_is_exactly_one_unit) {
    EXPECT_EQ((Names{L"日報.txt"}), NamesFoundBy(Named(L"日?.txt", L"\\names")));
    EXPECT_EQ((Names{}), NamesFoundBy(Named(L"日報?.txt", L"\\names")));
}

TEST_F(Rows, an_extension_pattern_does_not_find_a_longer_extension) {
    EXPECT_EQ((Names{L"two words.htm"}), NamesFoundBy(Named(L"*.htm", L"\\names")));
}

TEST_F(Rows, several_patterns_in_one_text_are_not_split) {
    EXPECT_EQ((Names{}), NamesFoundBy(Named(L"*.txt;*.log", L"\\names")));
    EXPECT_EQ((Names{}), NamesFoundBy(Named(L"*.txt *.log", L"\\names")));
}

TEST_F(Rows, an_empty_name_finds_every_entry_hidden_ones_too) {
    EXPECT_EQ(Sorted({L"abc", L"xabcx.txt", L"ABC.TXT", L"other.log", L"日報.txt", L"two words.htm",
                      L"page.html", L"locked"}),
              Sorted(NamesFoundBy(Where(L"\\names"))));
}

TEST_F(Rows, a_japanese_name_is_found_by_its_part) {
    EXPECT_EQ((Names{L"日報.txt"}), NamesFoundBy(Named(L"報", L"\\names")));
}

TEST_F(Rows, a_name_longer_than_any_file_name_finds_nothing) {
    EXPECT_EQ((Names{}), NamesFoundBy(Named(std::wstring(250, L'a'), L"\\names")));
}

TEST_F(Rows, without_sub_folders_only_the_location_itself_is_searched) {
    EXPECT_EQ((Names{L"\\walk\\one.txt"}), PathsFoundBy(Named(L"*.txt", L"\\walk")));
}

TEST_F(Rows, sub_folders_follow_after_the_files_of_a_folder_depth_first) {
    EXPECT_EQ((Names{L"\\walk\\one.txt", L"\\walk\\a deeper\\two.txt",
                     L"\\walk\\a deeper\\a match folder\\three.txt"}),
              PathsFoundBy(Named(L"*.txt", L"\\walk", true)));
}

TEST_F(Rows, a_folder_whose_name_matches_is_a_row_before_what_it_holds) {
    EXPECT_EQ((Names{L"\\walk\\a deeper", L"\\walk\\a deeper\\a match folder"}),
              PathsFoundBy(Named(L"a*", L"\\walk", true)));
}

TEST_F(Rows, an_empty_location_is_the_root) {
    const Names names = NamesFoundBy(Named(L"*.txt", L""));
    EXPECT_EQ((Names{L"top.txt"}), names);
}

TEST_F(Rows, the_root_with_sub_folders_finds_every_file_once) {
    const Names paths = PathsFoundBy(Named(L"*.txt", L"\\", true));
    Names once = Sorted(paths);
    once.erase(std::unique(once.begin(), once.end()), once.end());
    EXPECT_EQ(once, Sorted(paths));
    const auto holds = [&](const wchar_t* path) { return std::count(paths.begin(), paths.end(), path); };
    EXPECT_EQ(1, holds(L"\\top.txt"));
    EXPECT_EQ(1, holds(L"\\names\\日報.txt"));
    EXPECT_EQ(1, holds(L"\\walk\\a deeper\\a match folder\\three.txt"));
    // names 3, walk 3, root 1, dates 6, ages 3, zone 1, contents 8, japanese 4, folding 2
    EXPECT_EQ(31u, paths.size());
}

TEST_F(Rows, a_location_with_a_drive_letter_works_as_typed) {
    EXPECT_EQ((Names{Drive().Root() + L"walk\\one.txt"}),
              PathsFoundBy(Named(L"*.txt", Drive().Root() + L"walk")));
}

TEST_F(Rows, a_location_may_end_in_a_backslash) {
    EXPECT_EQ((Names{L"\\walk\\one.txt"}), PathsFoundBy(Named(L"*.txt", L"\\walk\\")));
}

TEST_F(Rows, a_missing_location_finds_nothing_and_says_nothing) {
    EXPECT_EQ((Names{}), NamesFoundBy(Where(L"\\there is no such folder", true)));
    EXPECT_TRUE(Program().Dialogs().empty());
}

TEST_F(Rows, a_location_with_a_wildcard_finds_nothing_and_says_nothing) {
    for (const wchar_t* const location : {L"\\nam*", L"\\name?", L"\\names\\*"})
        EXPECT_EQ((Names{}), NamesFoundBy(Where(location, true)))
            << testing::PrintToString(std::wstring(location));
    EXPECT_TRUE(Program().Dialogs().empty());
}

TEST_F(Rows, an_empty_folder_finds_nothing) {
    EXPECT_EQ((Names{}), NamesFoundBy(Where(L"\\empty", true)));
}

TEST_F(Rows, a_search_that_finds_nothing_empties_the_list_and_selects_nothing) {
    ASSERT_EQ(2u, NamesFoundBy(Named(L"abc", L"\\names")).size());
    EXPECT_EQ((Names{}), NamesFoundBy(Named(L"no such name", L"\\names")));
    EXPECT_EQ(-1, Program().List().selected);
}

TEST_F(Rows, the_first_row_is_selected_and_the_list_gets_the_focus) {
    Program().BringForward();
    NamesFoundBy(Where(L"\\names"));
    EXPECT_EQ(0, Program().List().selected);
    EXPECT_TRUE(Program().ListHasFocus());
    const std::vector<RowState> rows = Program().Rows();
    EXPECT_EQ(1, std::count_if(rows.begin(), rows.end(), [](const RowState& row) { return row.Selected(); }));
}

TEST_F(Rows, rows_keep_their_number_of_finding_and_a_new_search_begins_at_0) {
    for (int search = 0; search < 2; ++search) {
        NamesFoundBy(Where(L"\\names"));
        const std::vector<RowState> rows = Program().Rows();
        ASSERT_EQ(8u, rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i)
            EXPECT_EQ(static_cast<long long>(i), rows[i].parameter);
    }
}

TEST_F(Rows, sizes_are_shown_whole_in_bytes_kilobytes_or_megabytes) {
    NamesFoundBy(Where(L"\\sizes"));
    EXPECT_EQ(L"0", RowNamed(L"0.bin").size);
    EXPECT_EQ(L"1023", RowNamed(L"1023.bin").size);
    EXPECT_EQ(L"1K", RowNamed(L"1024.bin").size);
    EXPECT_EQ(L"1K", RowNamed(L"2047.bin").size);
    EXPECT_EQ(L"1023K", RowNamed(L"1048575.bin").size);
    EXPECT_EQ(L"1M", RowNamed(L"1048576.bin").size);
    EXPECT_EQ(L"5M", RowNamed(L"5767168.bin").size);
}

TEST_F(Rows, a_folders_size_is_empty_and_its_time_is_not) {
    NamesFoundBy(Named(L"folder", L"\\sizes"));
    const RowState row = RowNamed(L"folder");
    EXPECT_EQ(L"", row.size);
    EXPECT_EQ(17u, row.modified.size());
}

TEST_F(Rows, the_time_is_shown_as_two_digit_date_and_24_hour_time) {
    NamesFoundBy(Named(L"shown", L"\\dates"));
    EXPECT_EQ(L"02/07/15 09:05:30", RowNamed(L"shown.txt").modified);
}

TEST_F(Rows, the_folder_is_shown_without_a_backslash_at_its_end_but_for_the_root) {
    NamesFoundBy(Named(L"one.txt", L"\\walk\\"));
    EXPECT_EQ(L"\\walk", RowNamed(L"one.txt").folder);
    NamesFoundBy(Named(L"top.txt", L""));
    EXPECT_EQ(L"\\", RowNamed(L"top.txt").folder);
}

TEST_F(Rows, the_type_is_the_shells_name_for_it) {
    NamesFoundBy(Named(L"folder", L"\\sizes"));
    SHFILEINFOW info = {};
    const std::wstring path = Drive().Root() + L"sizes\\folder";
    SHGetFileInfoW(path.c_str(), 0, &info, sizeof(info), SHGFI_TYPENAME);
    EXPECT_EQ(info.szTypeName, RowNamed(L"folder").type);
    NamesFoundBy(Named(L"page.html", L"\\names"));
    const std::wstring page = Drive().Root() + L"names\\page.html";
    SHGetFileInfoW(page.c_str(), 0, &info, sizeof(info), SHGFI_TYPENAME);
    EXPECT_EQ(info.szTypeName, RowNamed(L"page.html").type);
}

TEST_F(Rows, the_time_shown_is_that_of_the_devices_time_zone) {
    if (MinutesAheadOfUtc() != NineHours) GTEST_SKIP() << "worked out for a zone nine hours ahead of UTC";
    NamesFoundBy(Where(L"\\zone"));
    // 23:59:59 by UTC.
    EXPECT_EQ(L"02/07/16 08:59:59", RowNamed(L"evening.txt").modified);
}

TEST_F(Rows, the_same_search_again_gives_the_same_rows) {
    const Names first = PathsFoundBy(Where(L"\\", true));
    EXPECT_FALSE(first.empty());
    EXPECT_EQ(first, PathsFoundBy(Where(L"\\", true)));
}
