#pragma once

// The comparisons. Each checks that both sides did the same work, and answers false with a message when
// they did not.

#include "bench/bench_tree.h"

// Searches of a folder of some name by a name, a wildcard and two extensions that nothing has, against one
// bare enumeration.
[[nodiscard]] bool CompareWalk(const char* what, const std::wstring& folder, int runs);

// Content searches that find nothing, with and without folding, against reading the same bytes in blocks.
[[nodiscard]] bool CompareLargeContent(const BenchTree& tree, int runs);

// The same over many small files, against opening, reading and closing them.
[[nodiscard]] bool CompareSmallContent(const BenchTree& tree, int runs);

// What a search finds put into the list with the search's dialog in front, against inserting the same rows
// with drawing suspended; and what drawing and polling take of a whole search.
[[nodiscard]] bool CompareRows(const BenchTree& tree, int runs);

// What the shell is asked for while the list is filled, against the kinds of files that it is filled with.
[[nodiscard]] bool CompareShellQuestions(const BenchTree& tree);

// The folder browser's tree of many folders, against listing the same folders and inserting the same items
// into a tree with drawing suspended.
[[nodiscard]] bool CompareBrowser(const BenchTree& tree, int runs);

// A sort of many rows of the result list by each column, against the control's own sort of them by an
// integer.
[[nodiscard]] bool CompareSorting(int runs);

// The program's start up to its painted window, against that of a bare window with an empty list; and the
// program's size.
[[nodiscard]] bool CompareStart(int runs);
