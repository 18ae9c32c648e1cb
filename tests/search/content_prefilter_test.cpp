#include "search/content_prefilter.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/search/memory_byte_reader.h"
#include "tests/search/plain_content.h"
#include "tests/search/scan_widths.h"

namespace {

enum Reading { Exact, Folding, FoldingDoubleByte };

ContentPattern PatternOf(const std::string& bytes, Reading reading) {
    return {bytes.data(), bytes.size(), reading != Exact, reading == FoldingDoubleByte};
}

ContentVerdict Judge(const std::string& content, const std::string& pattern, Reading reading = Exact,
                     std::size_t blockSize = ByteSource::BlockSize) {
    MemoryByteSource source(content);
    return JudgeContent(source, PatternOf(pattern, reading), blockSize);
}

// The verdict of the scans of all widths, which has to be one.
ContentVerdict JudgeAtEveryWidth(const std::string& content, const std::string& pattern, Reading reading,
                                 std::size_t blockSize) {
    const ContentVerdict verdict = Judge(content, pattern, reading, blockSize);
    for (const ScanWidth width : ScanWidthsHere()) {
        const ScanWidthInUse inUse(width);
        EXPECT_EQ(Judge(content, pattern, reading, blockSize), verdict);
    }
    return verdict;
}

constexpr ContentVerdict NoLine = ContentVerdict::NoLine;
constexpr ContentVerdict NoOccurrence = ContentVerdict::NoOccurrence;
constexpr ContentVerdict MayOccur = ContentVerdict::MayOccur;

std::string Filler(std::size_t count) {
    return std::string(count, 'x');
}

}  // namespace

TEST(ContentPrefilter, sees_a_pattern_wherever_it_stands) {
    for (std::size_t before = 0; before < 200; ++before) {
        EXPECT_EQ(Judge(Filler(before) + "abc" + Filler(40), "abc"), MayOccur) << before;
        EXPECT_EQ(Judge(Filler(before) + "abc", "abc"), MayOccur) << before;
        EXPECT_EQ(Judge(Filler(before) + "ab", "abc"), NoOccurrence) << before;
    }
}

TEST(ContentPrefilter, sees_a_pattern_over_the_border_of_two_blocks) {
    for (std::size_t before = 0; before < 40; ++before) {
        EXPECT_EQ(Judge(Filler(before) + "abcdef" + Filler(40), "abcdef", Exact, 16), MayOccur) << before;
        EXPECT_EQ(Judge(Filler(before) + "ab\r\rcd\ref", "abcdef", Exact, 16), MayOccur) << before;
    }
}

TEST(ContentPrefilter, sees_a_pattern_with_carriage_returns_in_it) {
    EXPECT_EQ(Judge("xxa\rbc", "abc"), MayOccur);
    EXPECT_EQ(Judge("xxa\r\r\rb\rcxx", "abc"), MayOccur);
    EXPECT_EQ(Judge("xxa\r\nbc", "abc"), NoOccurrence);
    EXPECT_EQ(Judge("xxa\rbd\rbc", "abc"), NoOccurrence);
}

TEST(ContentPrefilter, takes_case_as_it_stands_unless_folding) {
    EXPECT_EQ(Judge("xxABC", "abc"), NoOccurrence);
    EXPECT_EQ(Judge("xxaBc", "ABC", Folding), MayOccur);
    // These differ from letters and from each other by the bit that letters differ by.
    EXPECT_EQ(Judge("xx@[\\", "`{|", Folding), NoOccurrence);
}

TEST(ContentPrefilter, ends_a_folding_scan_at_the_first_empty_line) {
    EXPECT_EQ(Judge("text\n\nabc", "ABC", Folding), NoOccurrence);
    EXPECT_EQ(Judge("text\r\n\r\r\r\nabc", "ABC", Folding), NoOccurrence);
    EXPECT_EQ(Judge("text\n\nabc", "abc", Exact), MayOccur);
    EXPECT_EQ(Judge("abc\n\n", "ABC", Folding), MayOccur);
}

TEST(ContentPrefilter, does_not_take_the_second_byte_of_a_character_for_the_end_of_a_line) {
    EXPECT_EQ(Judge("te\x81\n\nabc", "ABC", FoldingDoubleByte), MayOccur);
    EXPECT_EQ(Judge("te\x81\n\nabc", "ABC", Folding), NoOccurrence);
}

TEST(ContentPrefilter, leaves_short_patterns_and_those_with_marks_of_lines_to_the_lines) {
    EXPECT_EQ(Judge("xxx", "a"), MayOccur);
    EXPECT_EQ(Judge("xxx", ""), MayOccur);
    EXPECT_EQ(Judge("xxx", "a\rb"), MayOccur);
    EXPECT_EQ(Judge("xxx", "ab\n"), MayOccur);
}

TEST(ContentPrefilter, tells_a_file_whose_first_line_stores_nothing) {
    EXPECT_EQ(Judge("", "abc"), NoLine);
    EXPECT_EQ(Judge("", "ABC", Folding), NoLine);
    EXPECT_EQ(Judge("\nabc", "ABC", Folding), NoLine);
    EXPECT_EQ(Judge("\nxyz", "abc", Exact), NoOccurrence);
    EXPECT_EQ(Judge("\x81", "ABC", FoldingDoubleByte), NoLine);
    EXPECT_EQ(Judge("\x81", "ABC", Folding), NoOccurrence);
}

TEST(ContentPrefilter, leaves_a_run_of_carriage_returns_that_it_cannot_keep_to_the_lines) {
    EXPECT_EQ(Judge("a" + std::string(70000, '\r') + "xxx", "abc"), MayOccur);
}

TEST(ContentPrefilter, reads_no_further_than_to_what_it_looks_for) {
    MemoryByteSource source(std::string(100, 'x') + "abc" + Filler(1000), 64);
    EXPECT_EQ(JudgeContent(source, PatternOf("abc", Exact), 64), MayOccur);
    EXPECT_EQ(source.FillCount(), 2);
}

TEST(ContentPrefilter, never_rules_out_what_the_lines_contain) {
    std::mt19937 engine(7);
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(engine); };
    static constexpr char Bytes[] = {'a', 'b', 'A', 'B', '\r', '\n', '\n', '\0', '\x81', '\xFD', 'x', 'x'};
    static constexpr char Letters[] = {'a', 'b', 'A', 'B', '\x81', '\xFD', '@'};
    PlainFind find;
    int found = 0;
    int ruledOut = 0;
    for (int round = 0; round < 60000; ++round) {
        const auto reading = static_cast<Reading>(upTo(2));
        std::string pattern;
        for (int i = 1 + upTo(5); i > 0; --i)
            pattern += Letters[upTo(6)];
        std::string content;
        // Few different bytes now and then, so that long runs of one come about.
        const int kinds = upTo(3) == 0 ? 5 : 11;
        // The longer ones have bytes that are looked at many together.
        for (int i = upTo(upTo(2) == 0 ? 400 : 80); i > 0; --i)
            content += upTo(30) == 0 ? pattern : std::string(1, Bytes[upTo(kinds)]);
        const ContentPattern sought = PatternOf(pattern, reading);
        const PlainContentAnswer plain = PlainContentSearch(find, content, sought);
        const std::size_t blockSize = upTo(1) == 0
                                          ? ByteSource::BlockSize
                                          : static_cast<std::size_t>(2 + upTo(upTo(1) == 0 ? 200 : 30));
        const ContentVerdict verdict = JudgeAtEveryWidth(content, pattern, reading, blockSize);
        ASSERT_FALSE(testing::Test::HasNonfatalFailure()) << "round " << round;
        if (plain.found) {
            ASSERT_EQ(verdict, MayOccur) << "round " << round;
            ++found;
        } else if (verdict == NoOccurrence) {
            ASSERT_GT(plain.lines, 0) << "round " << round;
            ++ruledOut;
        } else if (verdict == NoLine) {
            ASSERT_EQ(plain.lines, 0) << "round " << round;
        }
    }
    EXPECT_GT(found, 3000);
    EXPECT_GT(ruledOut, 10000);
}
