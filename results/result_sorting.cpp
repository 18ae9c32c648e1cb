#include "results/result_sorting.h"

#include <algorithm>
#include <cwchar>
#include <string>
#include <vector>

#include "results/sort_keys.h"

namespace {

// What a row is compared by: a number for the Size column, a text for any other.
struct SortKey {
    std::int32_t size = 0;
    std::wstring text;
};

// Handed to the control as the sort parameter.
struct SortRequest {
    int column;
    bool ascending;
    std::vector<SortKey> keys;  // by row number; a deleted row's is not asked for
};

std::size_t RowNumber(HWND list, int index) {
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    SendMessageW(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return static_cast<std::size_t>(item.lParam);
}

SortKey ReadKey(HWND list, int index, ResultColumn column) {
    wchar_t text[SortTextCapacity] = L"";
    LVITEMW item{};
    item.iSubItem = static_cast<int>(column);
    item.pszText = text;
    item.cchTextMax = SortTextCapacity;
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    if (column == ResultColumn::Size) return {ParseShownSize(text), {}};
    return {0, text};
}

void ReadKeys(HWND list, SortRequest& request) {
    const auto count = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    for (int index = 0; index < count; ++index) {
        const std::size_t row = RowNumber(list, index);
        if (row >= request.keys.size()) request.keys.resize(std::max(row + 1, request.keys.size() * 2));
        request.keys[row] = ReadKey(list, index, static_cast<ResultColumn>(request.column));
    }
}

int CALLBACK CompareRows(LPARAM first, LPARAM second, LPARAM parameter) {
    const auto& request = *reinterpret_cast<const SortRequest*>(parameter);
    // By the order of finding; the direction is not applied.
    if (request.column < 0) return first > second ? 1 : first < second ? -1 : 0;
    const SortKey& firstKey = request.keys[static_cast<std::size_t>(first)];
    const SortKey& secondKey = request.keys[static_cast<std::size_t>(second)];
    const int result = request.column == static_cast<int>(ResultColumn::Size)
                           ? CompareSizes(firstKey.size, secondKey.size)
                           : CompareTexts(firstKey.text.c_str(), secondKey.text.c_str());
    return request.ascending ? result : -result;
}

}  // namespace

void SortRows(HWND list, int column, bool ascending) {
    SortRequest request{column, ascending, {}};
    if (column >= 0) ReadKeys(list, request);
    SendMessageW(list, LVM_SORTITEMS, reinterpret_cast<WPARAM>(&request),
                 reinterpret_cast<LPARAM>(&CompareRows));
}
