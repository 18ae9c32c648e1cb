#pragma once

// The comparisons. Each checks that both sides did the same work, and answers false with a message when
// they did not.

#include "bench/bench_tree.h"

// A search of everything by a name that nothing has, against listing the same folders.
[[nodiscard]] bool CompareWalk(const BenchTree& tree, int runs);

// A content search that finds nothing, with and without folding, against reading the same bytes in blocks.
[[nodiscard]] bool CompareContent(const BenchTree& tree, int runs);

// A search in which everything matches, its rows shown in the list, against inserting the same rows into a
// list with drawing suspended.
[[nodiscard]] bool CompareRows(const BenchTree& tree, int runs);

// The folder browser's tree of many folders, against listing the same folders and inserting the same items
// into a tree with drawing suspended.
[[nodiscard]] bool CompareBrowser(const BenchTree& tree, int runs);

// A sort of many rows of the result list by each column, against the control's own sort of them by an integer.
[[nodiscard]] bool CompareSorting(int runs);
