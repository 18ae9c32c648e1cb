// Random histories against a plain list and a plain store that follow the rules word by word.

#include <algorithm>
#include <cwctype>
#include <map>
#include <random>

#include "base/registry_key.h"
#include "conditions/search_history.h"
#include "tests/conditions/history_combo_fixture.h"

namespace {

constexpr const wchar_t* TestsPath = L"Software\\QuorinSoftTests";
constexpr const wchar_t* Path = L"Software\\QuorinSoftTests\\HistoryProperty";

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

// What the registry is to hold: texts by number, and whether there is a key at all.
struct PlainStore {
    bool exists = false;
    std::map<int, std::wstring> values;
};

void SavePlainly(PlainStore& store, const Entries& list) {
    store.exists = true;
    for (std::size_t n = 0; n < list.size(); ++n)
        store.values[static_cast<int>(n)] = list[list.size() - 1 - n];
}

void LoadPlainly(const PlainStore& store, Entries& list, std::size_t maximum) {
    if (!store.exists) return;
    list.clear();
    for (int n = 0; n < 9 && store.values.contains(n); ++n)
        AddPlainly(list, store.values.at(n), maximum);
}

}  // namespace

class HistoryProperty : public HistoryComboFixture {
  protected:
    void SetUp() override { ce::RegDeleteKeyW(HKEY_CURRENT_USER, TestsPath); }
    void TearDown() override { ce::RegDeleteKeyW(HKEY_CURRENT_USER, TestsPath); }

    // Of few letters, so that texts often begin with others.
    static std::wstring RandomText(std::mt19937& random) {
        const std::wstring letters = L"aAbB\\[.";
        std::wstring text(random() % 4, L' ');
        for (wchar_t& unit : text)
            unit = letters[random() % letters.size()];
        return text;
    }

    void CompareRandomHistories(std::size_t maximum, unsigned seed) {
        std::mt19937 random(seed);
        Entries plain;
        for (int i = 0; i < 400; ++i) {
            const std::wstring text = RandomText(random);
            AddPlainly(plain, text, maximum);
            ASSERT_TRUE(Add(text));
            ASSERT_EQ(List(), plain) << "seed " << seed << ", addition " << i;
            ASSERT_EQ(Selected(), 0);
            ASSERT_EQ(FieldText(), text);
        }
    }

    static std::map<int, std::wstring> StoredTexts() {
        std::map<int, std::wstring> texts;
        for (int n = 0; n < 32; ++n) {
            wchar_t text[MAX_PATH] = L"";
            DWORD size = sizeof text;
            if (RegGetValueW(HKEY_CURRENT_USER, Path, std::to_wstring(n).c_str(), RRF_RT_REG_SZ, nullptr,
                             text, &size) == ERROR_SUCCESS)
                texts[n] = text;
        }
        return texts;
    }

    // Additions mostly, among them saves, loads, and now and then the end of what was saved.
    void CompareRandomRuns(std::size_t maximum, unsigned seed) {
        std::mt19937 random(seed);
        Entries plain;
        PlainStore store;
        for (int step = 0; step < 600; ++step) {
            const unsigned choice = static_cast<unsigned>(random() % 20);
            if (choice < 14) {
                const std::wstring text = RandomText(random);
                AddPlainly(plain, text, maximum);
                ASSERT_TRUE(Add(text));
            } else if (choice < 17) {
                SavePlainly(store, plain);
                ASSERT_TRUE(SaveHistory(Combo(), HKEY_CURRENT_USER, Path));
            } else if (choice < 19) {
                ASSERT_EQ(LoadHistory(Combo(), HKEY_CURRENT_USER, Path), store.exists);
                LoadPlainly(store, plain, maximum);
            } else if (random() % 4 == 0) {
                store = {};
                ce::RegDeleteKeyW(HKEY_CURRENT_USER, Path);
            }
            ASSERT_EQ(List(), plain) << "seed " << seed << ", step " << step;
            ASSERT_EQ(StoredTexts(), store.values) << "seed " << seed << ", step " << step;
        }
    }
};

TEST_F(HistoryProperty, any_sequence_of_texts_leaves_what_the_plain_rule_leaves) {
    CompareRandomHistories(9, 1);
}

TEST_F(HistoryProperty, any_sequence_of_texts_follows_a_maximum_of_3) {
    properties_.Set(property::MaximumEntries, 3);
    CompareRandomHistories(3, 2);
}

TEST_F(HistoryProperty, any_sequence_of_texts_follows_a_maximum_of_1) {
    properties_.Set(property::MaximumEntries, 1);
    CompareRandomHistories(1, 3);
}

TEST_F(HistoryProperty, any_sequence_of_additions_saves_and_loads_keeps_list_and_registry_by_the_rules) {
    CompareRandomRuns(9, 4);
}

TEST_F(HistoryProperty, such_a_sequence_follows_a_larger_maximum_too) {
    properties_.Set(property::MaximumEntries, 14);
    CompareRandomRuns(14, 5);
}
