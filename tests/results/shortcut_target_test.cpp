#include "results/shortcut_target.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Parts {
    std::wstring program;
    std::wstring arguments;
    bool operator==(const Parts&) const = default;
};

Parts PartsOf(const std::wstring& target) {
    const ShortcutTarget parts = SplitTarget(target.c_str());
    return {parts.program, parts.arguments};
}

std::wstring Unquoted(std::wstring text) {
    RemoveEnclosingQuotes(text.data());
    return text.c_str();
}

}  // namespace

TEST(SplitTarget, a_program_alone_has_empty_arguments) {
    EXPECT_EQ(PartsOf(L"\\Windows\\calc.exe"), (Parts{L"\\Windows\\calc.exe", L""}));
    EXPECT_EQ(PartsOf(L""), (Parts{L"", L""}));
    EXPECT_EQ(PartsOf(L" \t "), (Parts{L"", L""}));
}

TEST(SplitTarget, a_blank_or_a_tab_ends_a_plain_program) {
    EXPECT_EQ(PartsOf(L"\\a.exe one two"), (Parts{L"\\a.exe", L"one two"}));
    EXPECT_EQ(PartsOf(L"\\a.exe\tone"), (Parts{L"\\a.exe", L"one"}));
}

TEST(SplitTarget, blanks_and_tabs_before_the_program_and_before_the_arguments_are_skipped) {
    EXPECT_EQ(PartsOf(L" \t\\a.exe \t one "), (Parts{L"\\a.exe", L"one "}));
    EXPECT_EQ(PartsOf(L"\t\"\\a b.exe\" \t one"), (Parts{L"\\a b.exe", L"one"}));
}

TEST(SplitTarget, a_quoted_program_holds_blanks_and_ends_at_the_next_quote_or_the_end) {
    EXPECT_EQ(PartsOf(L"\"\\My Documents\\a.exe\""), (Parts{L"\\My Documents\\a.exe", L""}));
    EXPECT_EQ(PartsOf(L"\"\\My Documents\\a.exe"), (Parts{L"\\My Documents\\a.exe", L""}));
    EXPECT_EQ(PartsOf(L"\"\\a.exe\"one"), (Parts{L"\\a.exe", L"one"}));
    EXPECT_EQ(PartsOf(L"\"\" one"), (Parts{L"", L"one"}));
}

TEST(SplitTarget, a_quote_inside_a_plain_program_stays) {
    EXPECT_EQ(PartsOf(L"\\a\"b.exe one"), (Parts{L"\\a\"b.exe", L"one"}));
}

TEST(SplitTarget, every_quote_in_the_arguments_is_written_twice) {
    EXPECT_EQ(PartsOf(L"\"\\My Programs\\a.exe\" \"\\b c.txt\""),
              (Parts{L"\\My Programs\\a.exe", L"\"\"\\b c.txt\"\""}));
    EXPECT_EQ(PartsOf(L"\\a.exe /x:\"1\" 2"), (Parts{L"\\a.exe", L"/x:\"\"1\"\" 2"}));
}

TEST(SplitTarget, the_longest_target_is_taken_whole) {
    EXPECT_EQ(PartsOf(std::wstring(1039, L'p')), (Parts{std::wstring(1039, L'p'), L""}));
    EXPECT_EQ(PartsOf(L"p " + std::wstring(1037, L'"')), (Parts{L"p", std::wstring(2074, L'"')}));
}

TEST(SplitTarget, what_goes_beyond_the_longest_target_is_cut) {
    EXPECT_EQ(PartsOf(std::wstring(3000, L'p')), (Parts{std::wstring(1039, L'p'), L""}));
    EXPECT_EQ(SplitTarget((L"p " + std::wstring(3000, L'"')).c_str()).arguments, std::wstring(2078, L'"'));
}

TEST(IsShortcut, a_path_that_ends_in_lnk_in_any_case_is_one) {
    EXPECT_TRUE(IsShortcut(L"\\a\\b.lnk"));
    EXPECT_TRUE(IsShortcut(L"\\a\\b.LnK"));
    EXPECT_TRUE(IsShortcut(L"b.lnk"));
}

TEST(IsShortcut, a_path_needs_five_units) {
    EXPECT_FALSE(IsShortcut(L".lnk"));
    EXPECT_TRUE(IsShortcut(L"\\.lnk"));
    EXPECT_FALSE(IsShortcut(L""));
    EXPECT_FALSE(IsShortcut(L"lnk"));
}

TEST(IsShortcut, any_other_ending_is_none) {
    EXPECT_FALSE(IsShortcut(L"\\a.lnk.txt"));
    EXPECT_FALSE(IsShortcut(L"\\a.lnkx"));
    EXPECT_FALSE(IsShortcut(L"\\alnk"));
    EXPECT_FALSE(IsShortcut(L"\\a.ln"));
    EXPECT_FALSE(IsShortcut(L"\\a.1nk"));
}

TEST(RemoveEnclosingQuotes, one_pair_is_removed) {
    EXPECT_EQ(Unquoted(L"\"\\a b\""), L"\\a b");
    EXPECT_EQ(Unquoted(L"\"\"a\"\""), L"\"a\"");
    EXPECT_EQ(Unquoted(L"\"\""), L"");
}

TEST(RemoveEnclosingQuotes, a_quote_on_one_side_or_alone_stays) {
    EXPECT_EQ(Unquoted(L"\"a"), L"\"a");
    EXPECT_EQ(Unquoted(L"a\""), L"a\"");
    EXPECT_EQ(Unquoted(L"\""), L"\"");
    EXPECT_EQ(Unquoted(L""), L"");
    EXPECT_EQ(Unquoted(L"\"a b\" c"), L"\"a b\" c");
}
