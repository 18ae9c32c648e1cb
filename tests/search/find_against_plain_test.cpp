#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "search/substring_search.h"
#include "tests/search/plain_find.h"

namespace {

using Units = std::vector<std::uint16_t>;

// Few different elements, so that near misses and occurrences are frequent; those from 0xFF80 up and the
// bytes from 0x80 up meet in the shared entries.
constexpr std::uint16_t UnitChoices[] = {'a', 'b', 'c', 0x3042, 0xD800, 0xFF80, 0xFF81, 0xFFFF};
constexpr char ByteChoices[] = {'a', 'b', 'c', '\n', '\x7F', '\x80', '\x81', '\xFF'};

class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}

    int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(engine_); }

    // Mostly short, now and then longer than a name can be.
    int PatternLength() { return UpTo(39) == 0 ? UpTo(400) : 1 + UpTo(7); }
    int TextLength() { return UpTo(19) == 0 ? UpTo(2000) : UpTo(60); }

    // A narrow range of choices now and then makes runs of one element.
    template <typename Sequence, typename Element, std::size_t Count>
    Sequence Some(int length, const Element (&choices)[Count]) {
        const int most = UpTo(3) == 0 ? 1 : static_cast<int>(Count) - 1;
        const int first = UpTo(static_cast<int>(Count) - 1 - most);
        Sequence elements;
        for (int i = 0; i < length; ++i)
            elements.push_back(choices[first + UpTo(most)]);
        return elements;
    }

  private:
    std::mt19937 engine_;
};

int FoundWide(const Units& text, const Units& pattern) {
    const std::vector<wchar_t> wideText(text.begin(), text.end());
    const std::vector<wchar_t> widePattern(pattern.begin(), pattern.end());
    const wchar_t* const found = FindWide(wideText.data(), static_cast<int>(wideText.size()),
                                          widePattern.data(), static_cast<int>(widePattern.size()));
    return found != nullptr ? static_cast<int>(found - wideText.data()) : PlainFind::None;
}

int FoundBytes(const std::string& text, const std::string& pattern) {
    // Copies of exactly their size, so that a step outside is seen by the sanitizers.
    const std::vector<char> exactText(text.begin(), text.end());
    const std::vector<char> exactPattern(pattern.begin(), pattern.end());
    const char* const found = FindBytes(exactText.data(), static_cast<int>(exactText.size()),
                                        exactPattern.data(), static_cast<int>(exactPattern.size()));
    return found != nullptr ? static_cast<int>(found - exactText.data()) : PlainFind::None;
}

testing::AssertionResult TablesAreEqual(const PlainFind& plain) {
    const ShiftTable& shared = SharedShiftTable();
    for (int index = 0; index < ShiftTable::Entries; ++index) {
        const std::int32_t expected = plain.Table()[static_cast<std::size_t>(index)];
        if (shared.EntryAt(index) != expected) {
            return testing::AssertionFailure()
                   << "entry " << index << " is " << shared.EntryAt(index) << ", expected " << expected;
        }
    }
    return testing::AssertionSuccess();
}

}  // namespace

TEST(FindAgainstPlain, random_calls_of_both_searches_find_the_same_and_leave_the_same_table) {
    SharedShiftTable().Clear();
    PlainFind plain;
    Dice dice(20020110);
    int found = 0;
    Units name;
    std::string bytes;
    for (int round = 0; round < 4000; ++round) {
        // A search asks again and again for the same pattern, so patterns change only now and then.
        if (round == 0 || dice.UpTo(3) == 0) name = dice.Some<Units>(dice.PatternLength(), UnitChoices);
        if (round == 0 || dice.UpTo(3) == 0)
            bytes = dice.Some<std::string>(dice.PatternLength(), ByteChoices);
        if (dice.UpTo(2) == 0) {
            const auto text = dice.Some<Units>(dice.TextLength(), UnitChoices);
            const int expected = plain.Wide(text, name);
            ASSERT_EQ(FoundWide(text, name), expected) << "round " << round;
            found += expected != PlainFind::None ? 1 : 0;
        } else {
            const auto text = dice.Some<std::string>(dice.TextLength(), ByteChoices);
            const int expected = plain.Bytes(text, bytes);
            ASSERT_EQ(FoundBytes(text, bytes), expected) << "round " << round;
            found += expected != PlainFind::None ? 1 : 0;
        }
        if (round % 4 == 0) {
            ASSERT_TRUE(TablesAreEqual(plain)) << "round " << round;
        }
    }
    ASSERT_TRUE(TablesAreEqual(plain));
    // Both outcomes have to be frequent for the comparison to say something.
    EXPECT_GT(found, 400);
    EXPECT_LT(found, 3600);
}

TEST(FindAgainstPlain, patterns_longer_than_any_name_are_forgotten_like_short_ones) {
    SharedShiftTable().Clear();
    PlainFind plain;
    Units longPattern;
    for (int i = 0; i < 700; ++i)
        longPattern.push_back(static_cast<std::uint16_t>(i * 90));
    Units otherPattern(700, 'x');
    const Units text = {'a', 'b', 'c'};
    for (const Units& pattern : {longPattern, otherPattern, longPattern, Units(261, 'y'), Units(262, 'z')}) {
        const int expected = plain.Wide(text, pattern);
        EXPECT_EQ(FoundWide(text, pattern), expected);
        EXPECT_TRUE(TablesAreEqual(plain)) << "pattern of " << pattern.size() << " units";
    }
}
