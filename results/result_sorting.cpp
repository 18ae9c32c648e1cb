#include "results/result_sorting.h"

#include <algorithm>
#include <cwchar>
#include <vector>

#include "results/sort_keys.h"

namespace {

// What one row is compared by: a number for the Size column, a text for any other.
struct SortKey {
    std::size_t row;
    union {
        std::int32_t size;
        std::size_t text;  // its place among all texts
    };
};

// The sort keys of one column, in the list's present order. Read and folded once: within the comparison that
// would happen some thirty times a cell.
class SortKeys {
  public:
    SortKeys(const ListView& list, ResultColumn sortColumn) : list_(list), column_(sortColumn) {
        const int count = list_.RowCount();
        keys_.reserve(static_cast<std::size_t>(count));
        for (int index = 0; index < count; ++index)
            keys_.push_back(ReadKey(index));
    }

    // Equal rows stay in the order in which they are.
    void Sort(bool ascending) {
        std::stable_sort(keys_.begin(), keys_.end(), [&](const SortKey& first, const SortKey& second) {
            const int result = Compare(first, second);
            return ascending ? result < 0 : result > 0;
        });
    }

    // Each row's index, by its number. Deleted rows have none.
    [[nodiscard]] std::vector<std::size_t> Places() const {
        std::size_t rows = 0;
        for (const SortKey& key : keys_)
            rows = std::max(rows, key.row + 1);
        std::vector<std::size_t> places(rows);
        for (std::size_t place = 0; place < keys_.size(); ++place)
            places[keys_[place].row] = place;
        return places;
    }

  private:
    SortKey ReadKey(int index) {
        wchar_t text[SortTextCapacity];
        list_.ReadText(index, static_cast<int>(column_), text);
        SortKey key{static_cast<std::size_t>(list_.ParameterOf(index)), {}};
        if (column_ == ResultColumn::Size) {
            key.size = ParseShownSize(text);
        } else {
            FoldForComparison(text);
            key.text = texts_.size();
            texts_.insert(texts_.end(), text, text + std::wcslen(text) + 1);
        }
        return key;
    }

    [[nodiscard]] int Compare(const SortKey& first, const SortKey& second) const {
        if (column_ == ResultColumn::Size) return CompareSizes(first.size, second.size);
        return CompareFoldedTexts(&texts_[first.text], &texts_[second.text]);
    }

    const ListView& list_;
    ResultColumn column_;
    std::vector<SortKey> keys_;
    std::vector<wchar_t> texts_;  // one after the other, each terminated
};

int CompareNumbers(std::size_t first, std::size_t second) {
    return first > second ? 1 : first < second ? -1 : 0;
}

int CALLBACK CompareRows(LPARAM first, LPARAM second, LPARAM) {
    return CompareNumbers(static_cast<std::size_t>(first), static_cast<std::size_t>(second));
}

int CALLBACK ComparePlaces(LPARAM first, LPARAM second, LPARAM parameter) {
    const auto& places = *reinterpret_cast<const std::vector<std::size_t>*>(parameter);
    return CompareNumbers(places[static_cast<std::size_t>(first)], places[static_cast<std::size_t>(second)]);
}

}  // namespace

void SortRows(const ListView& list, int column, bool ascending) {
    // QUIRK: order-of-finding-has-no-direction
    if (column < 0) {
        list.Sort(&CompareRows, nullptr);
        return;
    }
    SortKeys keys(list, static_cast<ResultColumn>(column));
    keys.Sort(ascending);
    const std::vector<std::size_t> places = keys.Places();
    list.Sort(&ComparePlaces, &places);
}
