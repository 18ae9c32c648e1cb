#include <string>

#include "bench/benches.h"
#include "bench/comparison.h"
#include "bench/ready_rows.h"
#include "bench/shipped_program.h"
#include "tests/support/driver_error.h"

namespace {

// What one run of the program took, from its start to its end, or the plain list of the same rows.
struct Life {
    double firstFind = 0;
    double clearing = 0;
    double secondFind = 0;
    double closing = 0;
    double offScreen = 0;
};

class RowsComparison {
  public:
    RowsComparison(const BenchTree& benchTree, int files)
        : tree_(benchTree), folder_(benchTree.Rows(files)), rows_(RowsBelow(folder_)) {}

    [[nodiscard]] bool HasRows() const { return !rows_.empty(); }

    // The same program, ended with an empty list: what its closing takes without rows.
    double CloseEmpty() {
        ShippedProgram program;
        place_ = program.ListPlace();
        program.Ask(tree_.Empty());
        program.Find();
        return program.Close().ended;
    }

    Life LiveInProgram() {
        Life life;
        const double closingEmpty = CloseEmpty();
        ShippedProgram program;
        life.firstFind = FindAll(program);
        life.clearing = FindNothing(program) - FindNothing(program);
        life.secondFind = FindAll(program);
        const ShippedProgram::Closing closing = program.Close();
        life.closing = closing.ended - closingEmpty;
        life.offScreen = closing.offScreen;
        return life;
    }

    Life LivePlainly() {
        Life life;
        PlainList list(place_);
        life.firstFind = FillPlainly(list);
        life.clearing = MillisecondsOf([&] { list.DeleteAll(); });
        life.secondFind = FillPlainly(list);
        life.closing = MillisecondsOf([&] { list.DeleteAll(); });
        return life;
    }

  private:
    double FindAll(ShippedProgram& program) {
        program.Ask(folder_);
        const double took = program.Find();
        if (program.Rows() != static_cast<int>(rows_.size())) throw DriverError("rows are missing");
        return took;
    }

    double FindNothing(ShippedProgram& program) {
        program.Ask(tree_.Empty());
        const double took = program.Find();
        if (program.Rows() != 0) throw DriverError("there are rows of an empty folder");
        return took;
    }

    double FillPlainly(PlainList& list) {
        return MillisecondsOf([&] {
            static_cast<void>(CountBarely(folder_));
            list.Insert(rows_);
        });
    }

    const BenchTree& tree_;
    std::wstring folder_;
    std::vector<ReadyRow> rows_;
    RECT place_ = {};
};

}  // namespace

bool CompareRows(const BenchTree& tree, int files, int turns) {
    RowsComparison comparison(tree, files);
    if (!comparison.HasRows()) return false;
    static_cast<void>(comparison.CloseEmpty());
    static_cast<void>(comparison.LivePlainly());
    Pairs first, second, clearing, closing, offScreen;
    for (int turn = 0; turn < turns; ++turn) {
        Life ours;
        Life bare;
        TakeTurn(
            turn, [&] { ours = comparison.LiveInProgram(); }, [&] { bare = comparison.LivePlainly(); });
        first.Add(ours.firstFind, bare.firstFind);
        second.Add(ours.secondFind, bare.secondFind);
        clearing.Add(ours.clearing, bare.clearing);
        closing.Add(ours.closing, bare.closing);
        offScreen.Add(ours.offScreen, bare.closing);
    }
    const std::string count = std::to_string(files) + " rows";
    first.Print("find of " + count + ", first after a start", 1.3);
    second.Print("find of " + count + ", second", 1.3);
    clearing.Print("clearing of " + count + " before a find", 1.1);
    closing.Print("closing with " + count, 1.1);
    offScreen.Print("window off the screen / clearing, " + count, 0);
    return true;
}
