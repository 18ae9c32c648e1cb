#include "base/split_path.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Parts {
    std::wstring folder, name;
    bool operator==(const Parts&) const = default;
};

Parts PartsOf(const std::wstring& path) {
    const PathParts parts = SplitPath(path.c_str());
    return {parts.folder, parts.name};
}

}  // namespace

TEST(SplitPath, the_last_separator_parts_folder_and_name) {
    EXPECT_EQ(PartsOf(L"\\a\\b.txt"), (Parts{L"\\a", L"b.txt"}));
    EXPECT_EQ(PartsOf(L"/a/b.txt"), (Parts{L"/a", L"b.txt"}));
}

TEST(SplitPath, the_later_of_both_kinds_of_separator_counts) {
    EXPECT_EQ(PartsOf(L"\\a/b\\c"), (Parts{L"\\a/b", L"c"}));
    EXPECT_EQ(PartsOf(L"/a\\b/c"), (Parts{L"/a\\b", L"c"}));
}

TEST(SplitPath, a_separator_in_first_place_is_itself_the_folder) {
    EXPECT_EQ(PartsOf(L"\\a"), (Parts{L"\\", L"a"}));
    EXPECT_EQ(PartsOf(L"/a"), (Parts{L"/", L"a"}));
    EXPECT_EQ(PartsOf(L"\\"), (Parts{L"\\", L""}));
}

TEST(SplitPath, without_a_separator_everything_is_the_name) {
    EXPECT_EQ(PartsOf(L"a.txt"), (Parts{L"", L"a.txt"}));
    EXPECT_EQ(PartsOf(L""), (Parts{L"", L""}));
}

TEST(SplitPath, a_path_that_ends_in_a_separator_has_no_name) {
    EXPECT_EQ(PartsOf(L"\\a\\"), (Parts{L"\\a", L""}));
}

TEST(SplitPath, one_pair_of_enclosing_quotes_is_removed_first) {
    EXPECT_EQ(PartsOf(L"\"\\a b\\c d\""), (Parts{L"\\a b", L"c d"}));
    EXPECT_EQ(PartsOf(L"\"\""), (Parts{L"", L""}));
    EXPECT_EQ(PartsOf(L"\"\"a\"\""), (Parts{L"", L"\"a\""}));
}

TEST(SplitPath, a_quote_on_one_side_or_alone_stays) {
    EXPECT_EQ(PartsOf(L"\"\\a\\b"), (Parts{L"\"\\a", L"b"}));
    EXPECT_EQ(PartsOf(L"\\a\\b\""), (Parts{L"\\a", L"b\""}));
    EXPECT_EQ(PartsOf(L"\""), (Parts{L"", L"\""}));
}

TEST(SplitPath, a_part_that_does_not_fit_is_cut_at_259_units) {
    const std::wstring longText(300, L'x');
    EXPECT_EQ(PartsOf(L"\\f\\" + longText), (Parts{L"\\f", std::wstring(259, L'x')}));
    EXPECT_EQ(PartsOf(longText + L"\\n"), (Parts{std::wstring(259, L'x'), L"n"}));
}
