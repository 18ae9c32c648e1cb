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
    EXPECT_EQ(Sorted(NamesFoundBy(Named(L"abc", L"\\names"))), (Names{L"abc", L"xabcx.txt"}));
}

TEST_F(Rows, a_wildcard_is_the_whole_name_without_regard_to_case) {
    EXPECT_EQ(Sorted(NamesFoundBy(Named(L"abc*", L"\\names"))), (Names{L"ABC.TXT", L"abc"}));
}

TEST_F(Rows, a_question_mark_is_exactly_one_unit) {
    EXPECT_EQ(NamesFoundBy(Named(L"日?.txt", L"\\names")), (Names{L"日報.txt"}));
    EXPECT_EQ(NamesFoundBy(Named(L"日報?.txt", L"\\names")), (Names{}));
}

TEST_F(Rows, an_extension_pattern_does_not_find_a_longer_extension) {
    EXPECT_EQ(NamesFoundBy(Named(L"*.htm", L"\\names")), (Names{L"two words.htm"}));
}

TEST_F(Rows, several_patterns_in_one_text_are_not_split) {
    EXPECT_EQ(NamesFoundBy(Named(L"*.txt;*.log", L"\\names")), (Names{}));
    EXPECT_EQ(NamesFoundBy(Named(L"*.txt *.log", L"\\names")), (Names{}));
}

TEST_F(Rows, an_empty_name_finds_every_entry_hidden_ones_too) {
    EXPECT_EQ(Sorted(NamesFoundBy(Where(L"\\names"))),
              Sorted({L"abc", L"xabcx.txt", L"ABC.TXT", L"other.log", L"日報.txt", L"two words.htm",
                      L"page.html", L"locked"}));
}

TEST_F(Rows, a_japanese_name_is_found_by_its_part) {
    EXPECT_EQ(NamesFoundBy(Named(L"報", L"\\names")), (Names{L"日報.txt"}));
}

TEST_F(Rows, a_name_longer_than_any_file_name_finds_nothing) {
    EXPECT_EQ(NamesFoundBy(Named(std::wstring(250, L'a'), L"\\names")), (Names{}));
}

TEST_F(Rows, without_sub_folders_only_the_location_itself_is_searched) {
    EXPECT_EQ(PathsFoundBy(Named(L"*.txt", L"\\walk")), (Names{L"\\walk\\one.txt"}));
}

TEST_F(Rows, sub_folders_follow_after_the_files_of_a_folder_depth_first) {
    EXPECT_EQ(PathsFoundBy(Named(L"*.txt", L"\\walk", true)),
              (Names{L"\\walk\\one.txt", L"\\walk\\a deeper\\two.txt",
                     L"\\walk\\a deeper\\a match folder\\three.txt"}));
}

TEST_F(Rows, a_folder_whose_name_matches_is_a_row_before_what_it_holds) {
    EXPECT_EQ(PathsFoundBy(Named(L"a*", L"\\walk", true)),
              (Names{L"\\walk\\a deeper", L"\\walk\\a deeper\\a match folder"}));
}

TEST_F(Rows, an_empty_location_is_the_root) {
    const Names names = NamesFoundBy(Named(L"*.txt", L""));
    EXPECT_EQ(names, (Names{L"top.txt"}));
}

TEST_F(Rows, the_root_with_sub_folders_finds_every_file_once) {
    const Names paths = PathsFoundBy(Named(L"*.txt", L"\\", true));
    Names once = Sorted(paths);
    once.erase(std::unique(once.begin(), once.end()), once.end());
    EXPECT_EQ(Sorted(paths), once);
    const auto holds = [&](const wchar_t* path) { return std::count(paths.begin(), paths.end(), path); };
    EXPECT_EQ(holds(L"\\top.txt"), 1);
    EXPECT_EQ(holds(L"\\names\\日報.txt"), 1);
    EXPECT_EQ(holds(L"\\walk\\a deeper\\a match folder\\three.txt"), 1);
    // names 3, walk 3, root 1, dates 6, ages 3, zone 1, contents 8, japanese 4, folding 2
    EXPECT_EQ(paths.size(), 31u);
}

TEST_F(Rows, a_location_with_a_drive_letter_works_as_typed) {
    EXPECT_EQ(PathsFoundBy(Named(L"*.txt", Drive().Root() + L"walk")),
              (Names{Drive().Root() + L"walk\\one.txt"}));
}

TEST_F(Rows, a_location_may_end_in_a_backslash) {
    EXPECT_EQ(PathsFoundBy(Named(L"*.txt", L"\\walk\\")), (Names{L"\\walk\\one.txt"}));
}

TEST_F(Rows, a_missing_location_finds_nothing_and_says_nothing) {
    EXPECT_EQ(NamesFoundBy(Where(L"\\there is no such folder", true)), (Names{}));
    EXPECT_TRUE(Program().Dialogs().empty());
}

TEST_F(Rows, a_location_with_a_wildcard_finds_nothing_and_says_nothing) {
    for (const wchar_t* const location : {L"\\nam*", L"\\name?", L"\\names\\*"})
        EXPECT_EQ(NamesFoundBy(Where(location, true)), (Names{}))
            << testing::PrintToString(std::wstring(location));
    EXPECT_TRUE(Program().Dialogs().empty());
}

TEST_F(Rows, an_empty_folder_finds_nothing) {
    EXPECT_EQ(NamesFoundBy(Where(L"\\empty", true)), (Names{}));
}

TEST_F(Rows, a_search_that_finds_nothing_empties_the_list_and_selects_nothing) {
    ASSERT_EQ(NamesFoundBy(Named(L"abc", L"\\names")).size(), 2u);
    EXPECT_EQ(NamesFoundBy(Named(L"no such name", L"\\names")), (Names{}));
    EXPECT_EQ(Program().List().selected, -1);
}

TEST_F(Rows, the_first_row_is_selected_and_the_list_gets_the_focus) {
    Program().BringForward();
    NamesFoundBy(Where(L"\\names"));
    EXPECT_EQ(Program().List().selected, 0);
    EXPECT_TRUE(Program().ListHasFocus());
    const std::vector<RowState> rows = Program().Rows();
    EXPECT_EQ(std::count_if(rows.begin(), rows.end(), [](const RowState& row) { return row.Selected(); }), 1);
}

TEST_F(Rows, rows_keep_their_number_of_finding_and_a_new_search_begins_at_0) {
    for (int search = 0; search < 2; ++search) {
        NamesFoundBy(Where(L"\\names"));
        const std::vector<RowState> rows = Program().Rows();
        ASSERT_EQ(rows.size(), 8u);
        for (std::size_t i = 0; i < rows.size(); ++i)
            EXPECT_EQ(rows[i].parameter, static_cast<long long>(i));
    }
}

TEST_F(Rows, sizes_are_shown_whole_in_bytes_kilobytes_or_megabytes) {
    NamesFoundBy(Where(L"\\sizes"));
    EXPECT_EQ(RowNamed(L"0.bin").size, L"0");
    EXPECT_EQ(RowNamed(L"1023.bin").size, L"1023");
    EXPECT_EQ(RowNamed(L"1024.bin").size, L"1K");
    EXPECT_EQ(RowNamed(L"2047.bin").size, L"1K");
    EXPECT_EQ(RowNamed(L"1048575.bin").size, L"1023K");
    EXPECT_EQ(RowNamed(L"1048576.bin").size, L"1M");
    EXPECT_EQ(RowNamed(L"5767168.bin").size, L"5M");
}

TEST_F(Rows, a_folders_size_is_empty_and_its_time_is_not) {
    NamesFoundBy(Named(L"folder", L"\\sizes"));
    const RowState row = RowNamed(L"folder");
    EXPECT_EQ(row.size, L"");
    EXPECT_EQ(row.modified.size(), 17u);
}

TEST_F(Rows, the_time_is_shown_as_two_digit_date_and_24_hour_time) {
    NamesFoundBy(Named(L"shown", L"\\dates"));
    EXPECT_EQ(RowNamed(L"shown.txt").modified, L"02/07/15 09:05:30");
}

TEST_F(Rows, the_folder_is_shown_without_a_backslash_at_its_end_but_for_the_root) {
    NamesFoundBy(Named(L"one.txt", L"\\walk\\"));
    EXPECT_EQ(RowNamed(L"one.txt").folder, L"\\walk");
    NamesFoundBy(Named(L"top.txt", L""));
    EXPECT_EQ(RowNamed(L"top.txt").folder, L"\\");
}

TEST_F(Rows, the_type_is_the_shells_name_for_it) {
    NamesFoundBy(Named(L"folder", L"\\sizes"));
    SHFILEINFOW info = {};
    const std::wstring path = Drive().Root() + L"sizes\\folder";
    SHGetFileInfoW(path.c_str(), 0, &info, sizeof(info), SHGFI_TYPENAME);
    EXPECT_EQ(RowNamed(L"folder").type, info.szTypeName);
    NamesFoundBy(Named(L"page.html", L"\\names"));
    const std::wstring page = Drive().Root() + L"names\\page.html";
    SHGetFileInfoW(page.c_str(), 0, &info, sizeof(info), SHGFI_TYPENAME);
    EXPECT_EQ(RowNamed(L"page.html").type, info.szTypeName);
}

TEST_F(Rows, the_time_shown_is_that_of_the_devices_time_zone) {
    if (MinutesAheadOfUtc() != NineHours) GTEST_SKIP() << "worked out for a zone nine hours ahead of UTC";
    NamesFoundBy(Where(L"\\zone"));
    // 23:59:59 by UTC.
    EXPECT_EQ(RowNamed(L"evening.txt").modified, L"02/07/16 08:59:59");
}

TEST_F(Rows, the_same_search_again_gives_the_same_rows) {
    const Names first = PathsFoundBy(Where(L"\\", true));
    EXPECT_FALSE(first.empty());
    EXPECT_EQ(PathsFoundBy(Where(L"\\", true)), first);
}
