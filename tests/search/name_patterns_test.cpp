#include "search/name_patterns.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::wstring>;

struct Built {
    Texts patterns;
    std::wstring substring;
};

Built Build(std::uint16_t flags, const std::wstring& name, std::wstring extensions) {
    SearchConditions conditions;
    conditions.flags = flags;
    ObjectList list;
    Built built;
    built.substring = BuildNamePatterns(conditions, name.c_str(), extensions.data(), list);
    for (auto* item = list.First(); item != nullptr; item = list.Next()) {
        built.patterns.emplace_back(static_cast<StringObject*>(item)->Text());
    }
    return built;
}

}  // namespace

TEST(NamePatterns, an_empty_name_without_a_type_lets_every_entry_pass) {
    const Built built = Build(0, L"", L"");
    EXPECT_EQ(built.patterns, Texts{L"*.*"});
    EXPECT_EQ(built.substring, L"");
}

TEST(NamePatterns, a_plain_name_becomes_the_substring) {
    const Built built = Build(0, L"abc", L"");
    EXPECT_EQ(built.patterns, Texts{L"*.*"});
    EXPECT_EQ(built.substring, L"abc");
}

TEST(NamePatterns, the_substring_is_the_name_text_itself) {
    const wchar_t name[] = L"abc";
    wchar_t extensions[] = L"";
    ObjectList list;
    EXPECT_EQ(BuildNamePatterns(SearchConditions(), name, extensions, list), name);
}

TEST(NamePatterns, a_name_with_a_wildcard_is_the_only_pattern) {
    for (const wchar_t* name : {L"abc*", L"*.txt", L"a?c", L"?", L"*"}) {
        const Built built = Build(0, name, L"");
        EXPECT_EQ(built.patterns, Texts{name});
        EXPECT_EQ(built.substring, L"");
    }
}

TEST(NamePatterns, several_patterns_in_one_name_are_not_split) {
    EXPECT_EQ(Build(0, L"*.txt;*.doc *.htm", L"").patterns, Texts{L"*.txt;*.doc *.htm"});
}

TEST(NamePatterns, extensions_are_ignored_without_the_type_filter) {
    const Built built = Build(0, L"abc", L".txt");
    EXPECT_EQ(built.patterns, Texts{L"*.*"});
    EXPECT_EQ(built.substring, L"abc");
}

TEST(NamePatterns, a_type_becomes_a_pattern_for_its_extension) {
    const Built built = Build(SearchConditions::TypeFilter, L"", L".txt");
    EXPECT_EQ(built.patterns, Texts{L"*.txt"});
    EXPECT_EQ(built.substring, L"");
}

TEST(NamePatterns, the_extension_written_last_is_tried_first) {
    EXPECT_EQ(Build(SearchConditions::TypeFilter, L"", L".htm.html").patterns, (Texts{L"*.html", L"*.htm"}));
    EXPECT_EQ(Build(SearchConditions::TypeFilter, L"", L".a.b.c").patterns, (Texts{L"*.c", L"*.b", L"*.a"}));
}

TEST(NamePatterns, with_a_type_the_name_is_ignored) {
    for (const wchar_t* name : {L"abc", L"*.doc"}) {
        const Built built = Build(SearchConditions::TypeFilter, name, L".txt");
        EXPECT_EQ(built.patterns, Texts{L"*.txt"});
        EXPECT_EQ(built.substring, L"");
    }
}

TEST(NamePatterns, a_type_without_an_extension_gives_no_pattern_at_all) {
    EXPECT_EQ(Build(SearchConditions::TypeFilter, L"abc", L"").patterns, Texts());
    EXPECT_EQ(Build(SearchConditions::TypeFilter, L"abc", L"txt").patterns, Texts());
}

TEST(NamePatterns, the_extensions_are_cut_in_place) {
    wchar_t extensions[] = L"x.htm.html";
    SearchConditions conditions;
    conditions.flags = SearchConditions::TypeFilter;
    ObjectList list;
    EXPECT_STREQ(BuildNamePatterns(conditions, L"", extensions, list), L"");
    EXPECT_STREQ(extensions, L"x");
    EXPECT_EQ(list.Count(), 2U);
}

TEST(NamePatterns, a_lone_dot_is_an_extension) {
    EXPECT_EQ(Build(SearchConditions::TypeFilter, L"", L"..").patterns, (Texts{L"*.", L"*."}));
}
