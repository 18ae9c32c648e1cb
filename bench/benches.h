#pragma once

// The comparisons. Each checks that both sides did the same work, and answers false with a message when
// they did not. The goals are those of docs/benchmarks.md.

#include "bench/bench_tree.h"

// A find of so many files from its command to the picture, the first and the second after a start, against
// one enumeration and the insertion of ready rows; clearing the list, and closing the program, against the
// plain list's own clearing.
[[nodiscard]] bool CompareRows(const BenchTree& tree, int files, int turns);

// The private memory that so many rows take, against that of the same rows in a plain list.
[[nodiscard]] bool CompareMemory(const BenchTree& tree, int files);

// The part of it that runs in a process of its own: the kilobytes that the folder's rows take in a plain list
// that has been filled with them so many times.
[[nodiscard]] int MemoryOfPlainRows(const std::wstring& folder, int times);

// A sort by a click on each heading, against the control's own sort of the same rows by an integer.
[[nodiscard]] bool CompareSorting(const BenchTree& tree, int files, double goal, int turns);

// A find of a name that nothing has, against one bare enumeration.
[[nodiscard]] bool CompareWalk(const char* what, const BenchTree& tree, const std::wstring& folder,
                               int turns);

// Content searches that find nothing, with and without folding, against reading the same bytes.
[[nodiscard]] bool CompareLargeContent(const BenchTree& tree, int turns);

// The same over many small files, against opening, reading and closing them.
[[nodiscard]] bool CompareSmallContent(const BenchTree& tree, int turns);

// What the shell is asked for while the list is filled, against the kinds of files that it is filled with.
[[nodiscard]] bool CompareShellQuestions(const BenchTree& tree);

// The folder browser's tree of many folders, against listing the same folders and inserting the same items
// into a tree with drawing suspended.
[[nodiscard]] bool CompareBrowser(const BenchTree& tree, int turns);

// The program's start to its first picture and until everything is loaded, against that of the same windows
// with nothing behind them; and the program's size.
[[nodiscard]] bool CompareStart(int turns);
