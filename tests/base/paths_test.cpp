#include "base/paths.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <string>
#include <vector>

namespace {

struct JoinCase {
    const wchar_t* folder;
    const wchar_t* name;
    const wchar_t* path;
};

void ExpectJoined(const std::vector<JoinCase>& cases) {
    for (const JoinCase& each : cases) {
        wchar_t path[MAX_PATH];
        EXPECT_TRUE(JoinPath(path, each.folder, each.name));
        EXPECT_STREQ(path, each.path);
    }
}

void ExpectRefused(const std::wstring& folder, const std::wstring& name) {
    wchar_t path[MAX_PATH] = L"before";
    EXPECT_FALSE(JoinPath(path, folder.c_str(), name.c_str()));
    EXPECT_STREQ(path, L"");
}

struct Parts {
    std::wstring folder, name;
    bool operator==(const Parts&) const = default;
};

Parts PartsOf(const std::wstring& path) {
    const PathParts parts = SplitPath(path.c_str());
    return {parts.folder, parts.name};
}

}  // namespace

TEST(JoinPath, folder_and_name_are_parted_by_one_backslash) {
    ExpectJoined({
        {L"", L"x", L"x"},
        {L"\\", L"x", L"\\x"},
        {L"\\a", L"x", L"\\a\\x"},
        {L"\\a\\", L"x", L"\\a\\x"},
        {L"\\a", L"*.*", L"\\a\\*.*"},
        {L"C:", L"x", L"C:\\x"},
        {L"C:\\", L"x", L"C:\\x"},
        {L"", L"", L""},
    });
}

TEST(JoinPath, an_empty_name_gets_the_separator_too) {
    ExpectJoined({{L"\\Windows", L"", L"\\Windows\\"}});
}

TEST(JoinPath, before_a_name_with_a_drive_the_folder_stands_without_a_separator) {
    ExpectJoined({
        {L"\\a", L"C:\\x", L"\\aC:\\x"},
        {L"\\a", L"C:", L"\\aC:"},
        {L"", L"C:\\x", L"C:\\x"},
        // The colon has to be the second unit.
        {L"\\a", L":", L"\\a\\:"},
        {L"\\a", L"xy:z", L"\\a\\xy:z"},
    });
}

TEST(JoinPath, a_path_of_259_units_fits) {
    const std::wstring folder(200, L'f');
    const std::wstring name(58, L'n');
    wchar_t path[MAX_PATH];
    EXPECT_TRUE(JoinPath(path, folder.c_str(), name.c_str()));
    EXPECT_EQ(std::wstring(path), folder + L"\\" + name);
}

TEST(JoinPath, a_path_of_260_units_does_not_fit_and_leaves_an_empty_text) {
    ExpectRefused(std::wstring(200, L'f'), std::wstring(59, L'n'));
}

TEST(JoinPath, a_folder_that_alone_is_too_long_is_refused) {
    ExpectRefused(std::wstring(1000, L'f'), L"");
}

TEST(JoinPath, the_folder_may_be_the_destination) {
    wchar_t path[MAX_PATH] = L"\\a";
    EXPECT_TRUE(JoinPath(path, path, L"b"));
    EXPECT_TRUE(JoinPath(path, path, L"c.txt"));
    EXPECT_STREQ(path, L"\\a\\b\\c.txt");
}

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
