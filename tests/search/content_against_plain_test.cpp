// Content searches of whole files against the plain rule, with the state that they leave in the shared table.

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>

#include "base/program_context.h"
#include "search/content_matches.h"
#include "search/content_prefilter.h"
#include "search/substring_search.h"
#include "tests/search/fake_folders.h"
#include "tests/search/plain_content.h"
#include "tests/search/scan_widths.h"

namespace {

constexpr int LargestBlock = FilterBlockSize;

class ContentAgainstPlain : public testing::Test {
  protected:
    ContentAgainstPlain() { SharedShiftTable().Clear(); }
    ~ContentAgainstPlain() override { ContextForStartUp().codeConversionAvailable = false; }

    int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(engine_); }

    // The bytes of a text, or of a program; now and then one that reaches over several blocks.
    std::string SomeContent(const std::string& pattern) {
        std::string content;
        const int size =
            UpTo(15) == 0 ? LargestBlock * (1 + UpTo(1)) / (1 + 3 * UpTo(1)) - 20 + UpTo(40) : UpTo(6000);
        const bool anyByte = UpTo(2) == 0;
        while (content.size() < static_cast<std::size_t>(size)) {
            const int kind = UpTo(400);
            if (kind == 0)
                content += pattern;
            else if (kind == 1)
                content += pattern.substr(0, 1) + "\r" + pattern.substr(1);
            else if (kind == 2)
                content += "\r\n";
            else if (kind == 3)
                content += std::string(1, '\xFF');
            else if (kind == 4 && anyByte)
                content += "\n\n";
            else
                content += static_cast<char>(anyByte ? UpTo(255) : 'a' + UpTo(25));
        }
        return content;
    }

    void ExpectSameTable(int round) {
        for (int i = 0; i < ShiftTable::Entries; ++i) {
            ASSERT_EQ(SharedShiftTable().EntryAt(i), find_.Table()[static_cast<std::size_t>(i)])
                << "entry " << i << ", round " << round;
        }
    }

    std::mt19937 engine_{11};
    PlainFind find_;
    FakeFolders folders_;
};

}  // namespace

TEST_F(ContentAgainstPlain, finds_the_same_and_leaves_the_same_table) {
    static constexpr const char* Patterns[] = {"needle",
                                               "NEEDLE",
                                               "ab",
                                               "AB",
                                               "\xB1\xB2",
                                               "\x81q",
                                               "Q\xFF",
                                               "z\xFF",
                                               "\x83"
                                               "aB"};
    int found = 0;
    for (int round = 0; round < 150; ++round) {
        const std::string pattern = Patterns[UpTo(static_cast<int>(std::size(Patterns)) - 1)];
        const bool folding = UpTo(1) == 0;
        const bool doubleByteAware = UpTo(1) == 0;
        ContextForStartUp().codeConversionAvailable = doubleByteAware;
        const std::string content = SomeContent(pattern);
        folders_.SetContent(L"\\file", content);

        SearchConditions conditions;
        conditions.flags = SearchConditions::ContentString;
        if (folding) conditions.flags |= SearchConditions::IgnoreCase;
        std::snprintf(conditions.contentPattern, sizeof(conditions.contentPattern), "%s", pattern.c_str());
        const PlainContentAnswer plain =
            PlainContentSearch(find_, content, {pattern.data(), pattern.size(), folding, doubleByteAware});
        for (const ScanWidth width : ScanWidthsHere()) {
            const ScanWidthInUse inUse(width);
            ASSERT_EQ(ContentMatches(conditions, L"\\file", WIN32_FIND_DATAW{}), plain.found)
                << "round " << round;
            ExpectSameTable(round);
        }
        if (plain.found) ++found;
    }
    EXPECT_GT(found, 20);
    EXPECT_LT(found, 130);
}
