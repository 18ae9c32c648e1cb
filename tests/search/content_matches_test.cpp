#include "search/content_matches.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "base/program_context.h"
#include "search/double_byte_text.h"
#include "search/substring_search.h"
#include "tests/support/temp_tree.h"

namespace {

constexpr std::uint16_t Exact = SearchConditions::ContentString;
constexpr std::uint16_t Folding = SearchConditions::ContentString | SearchConditions::IgnoreCase;

class ContentMatchesTest : public testing::Test {
  protected:
    ContentMatchesTest() { SharedShiftTable().Clear(); }
    ~ContentMatchesTest() override { ContextForStartUp().codeConversionAvailable = false; }

    // Whether a file of these bytes is found by the pattern, folded as the filling of the conditions folds
    // it.
    bool Finds(std::uint16_t flags, const std::string& pattern, const std::string& bytes) {
        const std::wstring path = tree_.AddFile(L"file.txt", bytes);
        return FindsAt(flags, pattern, path.c_str(), FILE_ATTRIBUTE_ARCHIVE);
    }

    static bool FindsAt(std::uint16_t flags, const std::string& pattern, const wchar_t* path,
                        DWORD attributes) {
        SearchConditions conditions;
        conditions.flags = flags;
        std::snprintf(conditions.contentPattern, sizeof(conditions.contentPattern), "%s", pattern.c_str());
        if (conditions.Has(SearchConditions::IgnoreCase)) {
            UpperCaseBytes(conditions.contentPattern, Context().codeConversionAvailable);
        }
        WIN32_FIND_DATAW entry = {};
        entry.dwFileAttributes = attributes;
        return ContentMatches(conditions, path, entry);
    }

    TempTree tree_;
};

std::string Repeated(char byte, std::size_t count) {
    return std::string(count, byte);
}

}  // namespace

TEST_F(ContentMatchesTest, finds_text_on_the_third_line) {
    EXPECT_TRUE(Finds(Exact, "abc", "one\ntwo\nxxabc\n"));
    EXPECT_FALSE(Finds(Exact, "abc", "one\ntwo\nxxab\n"));
}

TEST_F(ContentMatchesTest, takes_case_as_it_stands_unless_told_to_ignore_it) {
    EXPECT_FALSE(Finds(Exact, "abc", "xxABC\n"));
    EXPECT_TRUE(Finds(Folding, "abc", "xxABC\n"));
    EXPECT_TRUE(Finds(Folding, "AbC", "xxaBc\n"));
}

TEST_F(ContentMatchesTest, stops_at_the_first_empty_line_when_folding_and_only_then) {
    const std::string bytes = "text\n\nxxABC\n";
    EXPECT_FALSE(Finds(Folding, "abc", bytes));
    EXPECT_TRUE(Finds(Exact, "ABC", bytes));
    EXPECT_FALSE(Finds(Folding, "abc", "text\r\n\r\nxxABC\r\n"));
    EXPECT_TRUE(Finds(Exact, "ABC", "text\r\n\r\nxxABC\r\n"));
}

TEST_F(ContentMatchesTest, finds_nothing_across_a_line_break) {
    EXPECT_FALSE(Finds(Exact, "abcd", "ab\ncd\n"));
    EXPECT_FALSE(Finds(Folding, "abcd", "ab\ncd\n"));
}

TEST_F(ContentMatchesTest, drops_carriage_returns_also_in_the_middle_of_text) {
    EXPECT_TRUE(Finds(Exact, "abcd", "ab\rcd\n"));
    EXPECT_TRUE(Finds(Folding, "abcd", "ab\rcd\n"));
}

TEST_F(ContentMatchesTest, finds_nothing_across_the_chunks_of_a_long_line) {
    // Chunks of 4,095 bytes without folding, of 4,094 with.
    EXPECT_FALSE(Finds(Exact, "abcd", Repeated('x', 4093) + "abcd"));
    EXPECT_TRUE(Finds(Exact, "abcd", Repeated('x', 4091) + "abcd"));
    EXPECT_TRUE(Finds(Exact, "abcd", Repeated('x', 4095) + "abcd"));
    EXPECT_FALSE(Finds(Folding, "abcd", Repeated('x', 4092) + "abcd"));
    EXPECT_TRUE(Finds(Folding, "abcd", Repeated('x', 4090) + "abcd"));
    EXPECT_TRUE(Finds(Folding, "abcd", Repeated('x', 4094) + "abcd"));
}

TEST_F(ContentMatchesTest, ends_the_file_at_a_chunk_of_nothing_but_carriage_returns) {
    EXPECT_FALSE(Finds(Exact, "abc", Repeated('\r', 4095) + "abc"));
    EXPECT_TRUE(Finds(Exact, "abc", Repeated('\r', 4094) + "\nabc"));
    EXPECT_FALSE(Finds(Folding, "abc", Repeated('\r', 4094) + "abc"));
}

TEST_F(ContentMatchesTest, looks_at_a_line_up_to_its_first_nul_only) {
    EXPECT_FALSE(Finds(Exact, "abc", std::string("x\0abc\n", 6)));
    EXPECT_TRUE(Finds(Exact, "abc", std::string("x\0y\nabc\n", 8)));
    EXPECT_TRUE(Finds(Exact, "abc", std::string("abc\0x\n", 6)));
    EXPECT_FALSE(Finds(Folding, "abc", std::string("x\0abc\n", 6)));
    EXPECT_TRUE(Finds(Folding, "abc", std::string("x\0y\nabc\n", 8)));
}

TEST_F(ContentMatchesTest, folds_no_trail_byte_when_double_byte_characters_are_known) {
    // 0x83 0x61 is a character whose trail byte reads as "a"; 0x83 0x41 is another one.
    ContextForStartUp().codeConversionAvailable = true;
    EXPECT_TRUE(Finds(Folding, "\x83\x61", "x\x83\x61\n"));
    EXPECT_FALSE(Finds(Folding, "\x83\x61", "x\x83\x41\n"));
    ContextForStartUp().codeConversionAvailable = false;
    EXPECT_TRUE(Finds(Folding, "\x83\x61", "x\x83\x61\n"));
    EXPECT_TRUE(Finds(Folding, "\x83\x61", "x\x83\x41\n"));
}

TEST_F(ContentMatchesTest, finds_text_at_the_very_end_without_a_line_feed) {
    EXPECT_TRUE(Finds(Exact, "abc", "abc"));
    EXPECT_TRUE(Finds(Folding, "abc", "abc"));
}

TEST_F(ContentMatchesTest, finds_text_behind_the_first_block_of_a_large_file) {
    std::string bytes;
    while (bytes.size() < 200000)
        bytes += "a line of sixty bytes, more or less, as files have them....\n";
    EXPECT_FALSE(Finds(Exact, "needle", bytes));
    EXPECT_TRUE(Finds(Exact, "needle", bytes + "needle"));
    EXPECT_TRUE(Finds(Folding, "needle", bytes + "NEEDLE"));
}

TEST_F(ContentMatchesTest, finds_nothing_in_an_empty_file) {
    EXPECT_FALSE(Finds(Exact, "abc", ""));
    EXPECT_FALSE(Finds(Folding, "abc", ""));
}

TEST_F(ContentMatchesTest, finds_nothing_with_an_empty_pattern) {
    EXPECT_FALSE(Finds(Exact, "", "abc\n"));
    EXPECT_FALSE(Finds(Folding, "", "abc\n"));
}

TEST_F(ContentMatchesTest, reads_an_end_of_text_mark_as_a_byte_like_any_other) {
    EXPECT_TRUE(Finds(Exact, "abc", "x\x1A\nabc"));
}

TEST_F(ContentMatchesTest, finds_nothing_in_a_folder) {
    const std::wstring path = tree_.AddFile(L"named as a folder", "abc");
    EXPECT_FALSE(FindsAt(Exact, "abc", path.c_str(), FILE_ATTRIBUTE_DIRECTORY));
    EXPECT_TRUE(FindsAt(Exact, "abc", path.c_str(), FILE_ATTRIBUTE_ARCHIVE));
}

TEST_F(ContentMatchesTest, finds_nothing_in_a_file_that_has_vanished) {
    EXPECT_FALSE(FindsAt(Exact, "abc", tree_.Path(L"gone").c_str(), FILE_ATTRIBUTE_ARCHIVE));
}

TEST_F(ContentMatchesTest, finds_nothing_in_a_locked_file) {
    const std::wstring path = tree_.AddFile(L"locked", "abc");
    const HANDLE lock =
        CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(FindsAt(Exact, "abc", path.c_str(), FILE_ATTRIBUTE_ARCHIVE));
    CloseHandle(lock);
    EXPECT_TRUE(FindsAt(Exact, "abc", path.c_str(), FILE_ATTRIBUTE_ARCHIVE));
}

TEST_F(ContentMatchesTest, lets_go_of_the_file) {
    const std::wstring path = tree_.AddFile(L"file", "abc\nabc\n");
    EXPECT_TRUE(FindsAt(Exact, "abc", path.c_str(), FILE_ATTRIBUTE_ARCHIVE));
    EXPECT_FALSE(FindsAt(Exact, "xyz", path.c_str(), FILE_ATTRIBUTE_ARCHIVE));
    const HANDLE alone = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(alone, INVALID_HANDLE_VALUE);
    CloseHandle(alone);
}
