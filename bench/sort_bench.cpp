#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "bench/bench_list.h"
#include "bench/benches.h"
#include "bench/comparison.h"
#include "results/result_sorting.h"

namespace {

constexpr int SortedRows = 20000;

struct Column {
    int number;
    const char* name;
};
constexpr Column Columns[] = {{0, "name"}, {1, "folder"}, {2, "size"}, {3, "type"}, {4, "modified"}};

// Rows as a search of a full card would leave them: many folders, few types, all names and times different.
void AddRandomRows(ResultList& list) {
    std::mt19937 random(20020715);
    SendMessageW(list.Handle(), WM_SETREDRAW, FALSE, 0);
    for (int row = 0; row < SortedRows; ++row) {
        WIN32_FIND_DATAW entry = {};
        entry.dwFileAttributes = FILE_ATTRIBUTE_ARCHIVE;
        entry.nFileSizeLow = static_cast<DWORD>(random() >> (random() % 31));
        entry.ftLastWriteTime = {random(), 0x01C00000};
        std::swprintf(entry.cFileName, MAX_PATH, L"file %08x.%ls", random(), row % 3 == 0 ? L"txt" : L"dat");
        const std::wstring folder = L"\\folder " + std::to_wstring(random() % 400);
        list.AddMatch((folder + L"\\" + entry.cFileName).c_str(), entry);
    }
    SendMessageW(list.Handle(), WM_SETREDRAW, TRUE, 0);
}

int CALLBACK CompareNumbers(LPARAM first, LPARAM second, LPARAM parameter) {
    const auto& numbers = *reinterpret_cast<const std::vector<int>*>(parameter);
    const int one = numbers[static_cast<std::size_t>(first)];
    const int other = numbers[static_cast<std::size_t>(second)];
    return one < other ? -1 : one > other ? 1 : 0;
}

// One number for each row.
std::vector<int> Numbers() {
    std::vector<int> numbers(SortedRows);
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

bool IsInOrderOfFinding(HWND list) {
    for (int row = 0; row < SortedRows; ++row) {
        LVITEMW item = {};
        item.mask = LVIF_PARAM;
        item.iItem = row;
        SendMessageW(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        if (item.lParam != row) return false;
    }
    return true;
}

}  // namespace

bool CompareSorting(int runs) {
    BenchList bench;
    ResultList& list = bench.List();
    AddRandomRows(list);
    // Each side sorts what the other one has left, so neither may leave an order that the other likes.
    const auto sortBy = [&](const std::vector<int>& numbers) {
        SendMessageW(list.Handle(), LVM_SORTITEMS, reinterpret_cast<WPARAM>(&numbers),
                     reinterpret_cast<LPARAM>(&CompareNumbers));
    };
    std::mt19937 random(7);
    std::vector<int> mixed = Numbers();
    std::vector<int> mixedOtherwise = mixed;
    std::shuffle(mixed.begin(), mixed.end(), random);
    std::shuffle(mixedOtherwise.begin(), mixedOtherwise.end(), random);
    // Rows that are all equal stay as they are.
    const auto sortByIntegers = [&] {
        std::swap(mixed, mixedOtherwise);
        sortBy(mixed);
    };
    for (const Column& column : Columns) {
        MeasureAndPrint({std::string("sort 20,000 rows by ") + column.name + " / by an integer",
                         [&] { SortRows(list.Handle(), column.number, false); }, sortByIntegers},
                        runs);
    }
    sortBy(Numbers());
    if (list.RowCount() == SortedRows && IsInOrderOfFinding(list.Handle())) return true;
    std::printf("the sorted list has lost rows\n");
    return false;
}
