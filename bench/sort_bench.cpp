#include <algorithm>
#include <cstdio>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "bench/benches.h"
#include "bench/comparison.h"
#include "bench/ready_rows.h"
#include "bench/shipped_program.h"
#include "tests/support/driver_error.h"

namespace {

constexpr int NameColumn = 0;
constexpr int ModifiedColumn = 4;
constexpr const char* ColumnNames[ResultColumnCount] = {"name", "folder", "size", "type", "modified"};

// One number for each row, in two orders that have nothing to do with each other: each sort finds what the
// other has left.
class MixedNumbers {
  public:
    explicit MixedNumbers(std::size_t count) : now_(count), next_(count) {
        std::mt19937 random(7);
        for (std::vector<int>* numbers : {&now_, &next_}) {
            std::iota(numbers->begin(), numbers->end(), 0);
            std::shuffle(numbers->begin(), numbers->end(), random);
        }
    }
    const std::vector<int>& Next() {
        std::swap(now_, next_);
        return now_;
    }

  private:
    std::vector<int> now_;
    std::vector<int> next_;
};

// By another column first, so that the rows are never in the order that is asked for, or its reverse.
double SortInProgram(ShippedProgram& program, int column) {
    program.Raise();
    program.ClickHeading(column == NameColumn ? ModifiedColumn : NameColumn);
    const int placeBefore = program.SelectedRow();
    const double took = program.ClickHeading(column);
    if (program.SelectedRow() == placeBefore)
        throw DriverError("a click on a heading left row " + std::to_string(placeBefore) + " where it was");
    return took;
}

double SortPlainly(PlainList& list, const std::vector<int>& numbers) {
    list.Raise();
    return MillisecondsOf([&] { list.Sort(numbers); });
}

}  // namespace

bool CompareSorting(const BenchTree& tree, int files, double goal, int turns) {
    const std::vector<ReadyRow> rows = RowsBelow(tree.Rows(files));
    ShippedProgram program;
    program.Ask(tree.Rows(files));
    program.Find();
    // A file; the folders, which come first, have one place in more than one order.
    program.SelectLastRow();
    PlainList list(program.ListPlace());
    list.Insert(rows);
    if (rows.empty() || program.Rows() != list.Rows()) {
        std::printf("the lists have %d and %d rows\n", program.Rows(), list.Rows());
        return false;
    }
    MixedNumbers numbers(rows.size());
    for (int column = 0; column < ResultColumnCount; ++column) {
        Compare(
            "sort of " + std::to_string(files) + " rows by " + ColumnNames[column] + " / by an integer", goal,
            turns, [&] { return SortInProgram(program, column); },
            [&] { return SortPlainly(list, numbers.Next()); });
    }
    const bool complete = program.Rows() == list.Rows();
    program.Close();
    return complete;
}
