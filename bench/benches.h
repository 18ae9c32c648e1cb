#pragma once

// The three comparisons. Each checks that both sides did the same work, and answers false with a message when
// they did not.

#include "bench/bench_tree.h"

// A search of everything by a name that nothing has, against listing the same folders.
[[nodiscard]] bool CompareWalk(const BenchTree& tree, int runs);

// A content search that finds nothing, with and without folding, against reading the same bytes in blocks.
[[nodiscard]] bool CompareContent(const BenchTree& tree, int runs);

// A search in which everything matches, its rows shown in the list, against inserting the same rows into a
// list with drawing suspended.
[[nodiscard]] bool CompareRows(const BenchTree& tree, int runs);
