#include "platform/name_wildcard.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/platform/plain_wildcard.h"

namespace {

struct Case {
    const wchar_t* name;
    const wchar_t* pattern;
    bool matches;
};

void Check(const Case& expected) {
    EXPECT_EQ(MatchesWildcard(expected.name, expected.pattern), expected.matches)
        << testing::PrintToString(std::wstring(expected.name)) << " against "
        << testing::PrintToString(std::wstring(expected.pattern));
}

}  // namespace

TEST(NameWildcard, a_star_is_any_run_also_none) {
    for (const Case& one :
         {Case{L"abc.txt", L"*.txt", true}, Case{L".txt", L"*.txt", true}, Case{L"abc.txt", L"abc*", true},
          Case{L"abc", L"abc*", true}, Case{L"abc", L"a*c", true}, Case{L"ac", L"a*c", true},
          Case{L"acb", L"a*c", false}, Case{L"a.b.txt", L"*.txt", true},
          Case{L"abc.txt.bak", L"*.txt", false}, Case{L"anything", L"*", true}, Case{L"", L"*", true},
          Case{L"", L"**", true}}) {
        Check(one);
    }
}

TEST(NameWildcard, a_question_mark_is_exactly_one_unit) {
    for (const Case& one :
         {Case{L"abc", L"a?c", true}, Case{L"ac", L"a?c", false}, Case{L"abc", L"abc?", false},
          Case{L"abcd", L"abc?", true}, Case{L"", L"?", false}, Case{L"ab", L"?", false},
          Case{L"a", L"?*", true}, Case{L"", L"?*", false}, Case{L"a.b", L"???", true}}) {
        Check(one);
    }
}

TEST(NameWildcard, letters_are_compared_without_regard_to_case) {
    Check({L"ABC.TXT", L"abc*", true});
    Check({L"abc.txt", L"*.TXT", true});
    Check({L"aBc", L"AbC", true});
}

TEST(NameWildcard, units_next_to_the_letters_are_not_folded) {
    Check({L"[", L"{", false});
    Check({L"@", L"`", false});
}

#ifdef _WIN32
TEST(NameWildcard, letters_of_other_languages_are_folded_as_the_system_does) {
    Check({L"\u00C4rger.txt", L"\u00E4rger*", true});
    Check({L"\u0434\u043E\u043C", L"\u0414\u041E\u041C", true});
    Check({L"\uFF41.txt", L"\uFF21.*", true});
    Check({L"\u3042", L"\u3044", false});
}

TEST(NamesTheSame, whose_letters_of_any_language_differ_in_case_only) {
    EXPECT_TRUE(NamesTheSame(L"\u00C4rger", L"\u00E4RGER", 6));
    EXPECT_TRUE(NamesTheSame(L"\u0434\u043E\u043C", L"\u0414\u041E\u041C", 3));
    EXPECT_FALSE(NamesTheSame(L"\u00E4", L"\u00E1", 1));
    EXPECT_FALSE(NamesTheSame(L"\u30A2", L"\uFF71", 1));
}
#endif

TEST(NamesTheSame, looks_at_as_many_units_as_it_is_told) {
    EXPECT_TRUE(NamesTheSame(L"abc", L"ABx", 2));
    EXPECT_FALSE(NamesTheSame(L"abc", L"ABx", 3));
    EXPECT_TRUE(NamesTheSame(L"a", L"b", 0));
}

TEST(NameWildcard, star_dot_star_matches_every_name) {
    Check({L"readme", L"*.*", true});
    Check({L"a.txt", L"*.*", true});
    Check({L".", L"*.*", true});
}

TEST(NameWildcard, other_patterns_with_a_dot_want_the_dot) {
    Check({L"readme", L"*.", false});
    Check({L"readme.", L"*.", true});
    Check({L"readme", L"r*.*", false});
    Check({L"readme", L"**.*", false});
    Check({L"readme.txt", L"r*.*", true});
}

TEST(NameWildcard, an_extension_pattern_does_not_match_a_longer_extension) {
    Check({L"page.html", L"*.htm", false});
    Check({L"page.htm", L"*.htm", true});
    Check({L"page.htm", L"*.html", false});
}

TEST(NameWildcard, several_patterns_in_one_text_are_not_split) {
    Check({L"a.txt", L"*.txt;*.doc", false});
    Check({L"a.txt;b.doc", L"*.txt;*.doc", true});
    Check({L"a.txt", L"*.txt *.doc", false});
}

TEST(NameWildcard, half_a_surrogate_pair_is_a_unit_like_any_other) {
    const wchar_t lone[] = {L'a', static_cast<wchar_t>(0xD800), L'b', L'\0'};
    Check({lone, L"a?b", true});
    Check({lone, lone, true});
    Check({lone, L"ab", false});
}

TEST(NameWildcard, a_pattern_of_many_stars_ends_quickly) {
    const std::wstring name(200, L'a');
    std::wstring pattern;
    for (int i = 0; i < 60; ++i)
        pattern += L"a*";
    EXPECT_TRUE(MatchesWildcard(name.c_str(), pattern.c_str()));
    pattern += L"b";
    EXPECT_FALSE(MatchesWildcard(name.c_str(), pattern.c_str()));
}

TEST(NameWildcard, agrees_with_the_plain_rule_on_random_names) {
    std::mt19937 random(20020407);
    const auto text = [&random](const std::wstring& units, int longest) {
        std::wstring made(static_cast<std::size_t>(random() % static_cast<unsigned>(longest + 1)), L' ');
        for (wchar_t& unit : made)
            unit = units[random() % units.size()];
        return made;
    };
    int matched = 0;
    for (int round = 0; round < 20000; ++round) {
        const std::wstring name = text(L"aAb.", 7);
        const std::wstring pattern = text(L"abB.*?", 6);
        const bool expected = MatchesPlainly(name, pattern);
        matched += expected ? 1 : 0;
        Check({name.c_str(), pattern.c_str(), expected});
    }
    // Both outcomes came up often enough to mean something.
    EXPECT_GT(matched, 1000);
    EXPECT_LT(matched, 19000);
}

TEST(NameWildcard, tells_patterns_from_plain_names) {
    EXPECT_TRUE(HasWildcard(L"a*"));
    EXPECT_TRUE(HasWildcard(L"?"));
    EXPECT_FALSE(HasWildcard(L"a.txt"));
    EXPECT_FALSE(HasWildcard(L""));
    EXPECT_TRUE(MatchesEveryName(L"*"));
    EXPECT_TRUE(MatchesEveryName(L"*.*"));
    EXPECT_FALSE(MatchesEveryName(L"*.txt"));
    EXPECT_FALSE(MatchesEveryName(L"*.*x"));
    EXPECT_FALSE(MatchesEveryName(L""));
}
