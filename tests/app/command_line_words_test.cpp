#include "app/command_line_words.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Words = std::vector<std::wstring>;

Words WordsOf(const std::wstring& commandLine) {
    const CommandLineWords words(commandLine.c_str());
    return {words.List(), words.List() + words.Count()};
}

std::wstring Numbered(int count) {
    std::wstring line;
    for (int i = 1; i <= count; ++i)
        line += L"w" + std::to_wstring(i) + L" ";
    return line;
}

}  // namespace

TEST(CommandLineWords, nothing_but_blanks_and_tabs_holds_no_word) {
    EXPECT_EQ(WordsOf(L""), Words());
    EXPECT_EQ(WordsOf(L" \t  \t"), Words());
}

TEST(CommandLineWords, blanks_and_tabs_part_words) {
    EXPECT_EQ(WordsOf(L"one"), Words{L"one"});
    EXPECT_EQ(WordsOf(L"  one\ttwo \t three  "), (Words{L"one", L"two", L"three"}));
}

TEST(CommandLineWords, a_quoted_word_keeps_its_blanks_and_loses_its_quotes) {
    EXPECT_EQ(WordsOf(L"\"one two\" three"), (Words{L"one two", L"three"}));
    EXPECT_EQ(WordsOf(L"\"\ta \""), Words{L"\ta "});
}

TEST(CommandLineWords, empty_quotes_are_an_empty_word) {
    EXPECT_EQ(WordsOf(L"a \"\" b"), (Words{L"a", L"", L"b"}));
}

TEST(CommandLineWords, a_quote_that_is_not_closed_runs_to_the_end) {
    EXPECT_EQ(WordsOf(L"a \"b c "), (Words{L"a", L"b c "}));
    EXPECT_EQ(WordsOf(L"a \""), (Words{L"a", L""}));
}

TEST(CommandLineWords, what_follows_a_closing_quote_is_the_next_word) {
    EXPECT_EQ(WordsOf(L"\"a b\"c d"), (Words{L"a b", L"c", L"d"}));
}

TEST(CommandLineWords, a_quote_inside_a_word_is_a_character_like_any_other) {
    EXPECT_EQ(WordsOf(L"a\"b c\" d"), (Words{L"a\"b", L"c\"", L"d"}));
}

TEST(CommandLineWords, other_white_space_parts_nothing) {
    EXPECT_EQ(WordsOf(L"a\nb\u3000c"), Words{L"a\nb\u3000c"});
}

TEST(CommandLineWords, as_many_as_128_words_are_kept_and_more_are_cut) {
    EXPECT_EQ(WordsOf(Numbered(127)).size(), 127U);
    EXPECT_EQ(WordsOf(Numbered(128)).size(), 128U);
    const Words words = WordsOf(Numbered(200));
    EXPECT_EQ(words.size(), 128U);
    EXPECT_EQ(words.back(), L"w128");
}

TEST(CommandLineWords, the_command_line_itself_is_left_alone) {
    const std::wstring line = L"one \"two three\"";
    EXPECT_EQ(WordsOf(line), (Words{L"one", L"two three"}));
    EXPECT_EQ(line, L"one \"two three\"");
}
