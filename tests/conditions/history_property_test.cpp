// Random histories against a plain list that follows the rule word by word.

#include <algorithm>
#include <cwctype>
#include <random>

#include "tests/conditions/history_combo_fixture.h"

namespace {

bool BeginsWith(const std::wstring& entry, const std::wstring& text) {
    if (entry.size() < text.size()) return false;
    return std::equal(text.begin(), text.end(), entry.begin(),
                      [](wchar_t a, wchar_t b) { return std::towlower(a) == std::towlower(b); });
}

void AddPlainly(Entries& list, const std::wstring& text, std::size_t maximum) {
    for (std::size_t step = 1; step <= list.size(); ++step) {
        const std::size_t index = step % list.size();
        if (!BeginsWith(list[index], text)) continue;
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(index));
        break;
    }
    if (list.size() + 1 >= maximum && maximum < list.size()) {
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(maximum));
    }
    list.insert(list.begin(), text);
}

}  // namespace

class HistoryProperty : public HistoryComboFixture {
  protected:
    void CompareRandomHistories(std::size_t maximum, unsigned seed) {
        std::mt19937 random(seed);
        const std::wstring letters = L"aAbB\\[.";
        Entries plain;
        for (int i = 0; i < 400; ++i) {
            std::wstring text(random() % 4, L' ');
            for (wchar_t& unit : text)
                unit = letters[random() % letters.size()];
            AddPlainly(plain, text, maximum);
            ASSERT_TRUE(Add(text));
            ASSERT_EQ(List(), plain) << "seed " << seed << ", addition " << i;
            ASSERT_EQ(Selected(), 0);
            ASSERT_EQ(FieldText(), text);
        }
    }
};

TEST_F(HistoryProperty, any_sequence_of_texts_leaves_what_the_plain_rule_leaves) {
    CompareRandomHistories(9, 1);
}

TEST_F(HistoryProperty, any_sequence_of_texts_follows_a_maximum_of_3) {
    properties.Set(property::MaximumEntries, 3);
    CompareRandomHistories(3, 2);
}

TEST_F(HistoryProperty, any_sequence_of_texts_follows_a_maximum_of_1) {
    properties.Set(property::MaximumEntries, 1);
    CompareRandomHistories(1, 3);
}
