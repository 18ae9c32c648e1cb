#include "search/name_patterns.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/asked_query.h"

namespace {

using Texts = std::vector<std::wstring>;

struct Built {
    Texts patterns;
    std::wstring substring;
};

AskedQuery Named(const std::wstring& name, const std::wstring& extensions = L"") {
    AskedQuery query;
    query.name = name;
    query.extensions = extensions;
    return query;
}

AskedQuery OfType(const std::wstring& extensions, const std::wstring& name = L"") {
    AskedQuery query = Named(name, extensions);
    query.typeFilter = true;
    return query;
}

Built Build(const SearchQuery& query) {
    ObjectList list;
    Built built;
    built.substring = BuildNamePatterns(query, list);
    for (auto* item = list.First(); item != nullptr; item = list.Next()) {
        built.patterns.emplace_back(static_cast<StringObject*>(item)->Text());
    }
    return built;
}

}  // namespace

TEST(NamePatterns, an_empty_name_without_a_type_lets_every_entry_pass) {
    const Built built = Build(Named(L""));
    EXPECT_EQ(built.patterns, Texts{L"*.*"});
    EXPECT_EQ(built.substring, L"");
}

TEST(NamePatterns, a_plain_name_becomes_the_substring) {
    const Built built = Build(Named(L"abc"));
    EXPECT_EQ(built.patterns, Texts{L"*.*"});
    EXPECT_EQ(built.substring, L"abc");
}

TEST(NamePatterns, the_substring_is_the_querys_name_itself) {
    const SearchQuery query = Named(L"abc");
    ObjectList list;
    EXPECT_EQ(BuildNamePatterns(query, list), query.name);
}

TEST(NamePatterns, a_name_with_a_wildcard_is_the_only_pattern) {
    for (const wchar_t* name : {L"abc*", L"*.txt", L"a?c", L"?", L"*"}) {
        const Built built = Build(Named(name));
        EXPECT_EQ(built.patterns, Texts{name});
        EXPECT_EQ(built.substring, L"");
    }
}

TEST(NamePatterns, several_patterns_in_one_name_are_not_split) {
    EXPECT_EQ(Build(Named(L"*.txt;*.doc *.htm")).patterns, Texts{L"*.txt;*.doc *.htm"});
}

TEST(NamePatterns, extensions_are_ignored_without_the_type_filter) {
    const Built built = Build(Named(L"abc", L".txt"));
    EXPECT_EQ(built.patterns, Texts{L"*.*"});
    EXPECT_EQ(built.substring, L"abc");
}

TEST(NamePatterns, a_type_becomes_a_pattern_for_its_extension) {
    const Built built = Build(OfType(L".txt"));
    EXPECT_EQ(built.patterns, Texts{L"*.txt"});
    EXPECT_EQ(built.substring, L"");
}

TEST(NamePatterns, the_extension_written_last_is_tried_first) {
    EXPECT_EQ(Build(OfType(L".htm.html")).patterns, (Texts{L"*.html", L"*.htm"}));
    EXPECT_EQ(Build(OfType(L".a.b.c")).patterns, (Texts{L"*.c", L"*.b", L"*.a"}));
}

TEST(NamePatterns, with_a_type_the_name_is_ignored) {
    for (const wchar_t* name : {L"abc", L"*.doc"}) {
        const Built built = Build(OfType(L".txt", name));
        EXPECT_EQ(built.patterns, Texts{L"*.txt"});
        EXPECT_EQ(built.substring, L"");
    }
}

TEST(NamePatterns, a_type_without_an_extension_gives_no_pattern_at_all) {
    EXPECT_EQ(Build(OfType(L"", L"abc")).patterns, Texts());
    EXPECT_EQ(Build(OfType(L"txt", L"abc")).patterns, Texts());
}

TEST(NamePatterns, what_precedes_the_first_dot_is_no_extension) {
    EXPECT_EQ(Build(OfType(L"x.htm.html")).patterns, (Texts{L"*.html", L"*.htm"}));
}

TEST(NamePatterns, a_lone_dot_is_an_extension) {
    EXPECT_EQ(Build(OfType(L"..")).patterns, (Texts{L"*.", L"*."}));
}
