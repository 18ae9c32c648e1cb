#include "tests/conditions/history_combo_fixture.h"

class HistoryComboTest : public HistoryComboFixture {};

TEST_F(HistoryComboTest, a_text_goes_to_the_top_and_is_selected) {
    AddAll({L"*.txt", L"*.log"});
    EXPECT_EQ(List(), (Entries{L"*.log", L"*.txt"}));
    EXPECT_EQ(Selected(), 0);
    EXPECT_EQ(FieldText(), L"*.log");
}

TEST_F(HistoryComboTest, the_same_text_twice_keeps_one_entry_at_the_top) {
    AddAll({L"a", L"b", L"a"});
    EXPECT_EQ(List(), (Entries{L"a", L"b"}));
    EXPECT_TRUE(Add(L"a"));
    EXPECT_EQ(List(), (Entries{L"a", L"b"}));
}

TEST_F(HistoryComboTest, an_entry_that_begins_with_the_text_goes_whatever_its_case) {
    AddAll({L"abcdef", L"x", L"ABC"});
    EXPECT_EQ(List(), (Entries{L"ABC", L"x"}));
}

TEST_F(HistoryComboTest, adding_a_folder_removes_an_older_folder_below_it) {
    AddAll({L"\\Data\\Old", L"\\Other", L"\\Data"});
    EXPECT_EQ(List(), (Entries{L"\\Data", L"\\Other"}));
}

TEST_F(HistoryComboTest, an_entry_that_is_only_the_beginning_of_the_text_stays) {
    AddAll({L"abc", L"abcdef"});
    EXPECT_EQ(List(), (Entries{L"abcdef", L"abc"}));
}

TEST_F(HistoryComboTest, of_several_that_begin_with_the_text_only_the_first_goes) {
    AddAll({L"a1", L"a2", L"a3", L"b"});
    ASSERT_EQ(List(), (Entries{L"b", L"a3", L"a2", L"a1"}));
    EXPECT_TRUE(Add(L"a"));
    EXPECT_EQ(List(), (Entries{L"a", L"b", L"a2", L"a1"}));
}

TEST_F(HistoryComboTest, the_top_entry_is_looked_at_last) {
    AddAll({L"a1", L"b", L"a2"});
    ASSERT_EQ(List(), (Entries{L"a2", L"b", L"a1"}));
    EXPECT_TRUE(Add(L"a"));
    EXPECT_EQ(List(), (Entries{L"a", L"a2", L"b"}));
}

TEST_F(HistoryComboTest, the_top_entry_goes_when_no_other_begins_with_the_text) {
    AddAll({L"b", L"a1"});
    EXPECT_TRUE(Add(L"a"));
    EXPECT_EQ(List(), (Entries{L"a", L"b"}));
}

TEST_F(HistoryComboTest, an_empty_text_removes_the_entry_after_the_top) {
    AddAll({L"a", L"b", L"c"});
    EXPECT_TRUE(Add(L""));
    EXPECT_EQ(List(), (Entries{L"", L"c", L"a"}));
    EXPECT_EQ(FieldText(), L"");
}

TEST_F(HistoryComboTest, an_empty_text_removes_the_only_entry) {
    EXPECT_TRUE(Add(L"a"));
    EXPECT_TRUE(Add(L""));
    EXPECT_EQ(List(), Entries{L""});
    EXPECT_TRUE(Add(L""));
    EXPECT_EQ(List(), Entries{L""});
}

TEST_F(HistoryComboTest, an_empty_text_is_refused_where_the_set_says_so) {
    properties_.Set(property::RefuseEmpty, 0);
    EXPECT_TRUE(Add(L"a"));
    EXPECT_FALSE(Add(L""));
    EXPECT_EQ(List(), Entries{L"a"});
    EXPECT_TRUE(Add(L" "));
}

TEST_F(HistoryComboTest, ten_entries_are_kept_and_the_eleventh_drops_the_oldest) {
    for (wchar_t letter = L'a'; letter <= L'j'; ++letter)
        EXPECT_TRUE(Add(std::wstring(1, letter)));
    EXPECT_EQ(List(), (Entries{L"j", L"i", L"h", L"g", L"f", L"e", L"d", L"c", L"b", L"a"}));
    EXPECT_TRUE(Add(L"k"));
    EXPECT_EQ(List(), (Entries{L"k", L"j", L"i", L"h", L"g", L"f", L"e", L"d", L"c", L"b"}));
}

TEST_F(HistoryComboTest, a_text_that_replaces_another_drops_none_of_ten) {
    for (wchar_t letter = L'a'; letter <= L'j'; ++letter)
        EXPECT_TRUE(Add(std::wstring(1, letter)));
    EXPECT_TRUE(Add(L"A"));
    EXPECT_EQ(List(), (Entries{L"A", L"j", L"i", L"h", L"g", L"f", L"e", L"d", L"c", L"b"}));
}

TEST_F(HistoryComboTest, a_maximum_of_the_set_keeps_one_entry_more_than_it_says) {
    properties_.Set(property::MaximumEntries, 2);
    AddAll({L"a", L"b", L"c"});
    EXPECT_EQ(List(), (Entries{L"c", L"b", L"a"}));
    EXPECT_TRUE(Add(L"d"));
    EXPECT_EQ(List(), (Entries{L"d", L"c", L"b"}));
}

TEST_F(HistoryComboTest, a_bracket_at_the_beginning_of_an_entry_is_a_unit_like_any_other) {
    AddAll({L"[abc]", L"x", L"abc"});
    EXPECT_EQ(List(), (Entries{L"abc", L"x", L"[abc]"}));
}

TEST_F(HistoryComboTest, the_longest_text_of_a_field_is_kept_whole) {
    const std::wstring longText(259, L'x');
    EXPECT_TRUE(Add(longText));
    EXPECT_EQ(List(), Entries{longText});
}
