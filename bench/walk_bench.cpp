#include <cstdio>

#include "bench/benches.h"
#include "bench/comparison.h"
#include "bench/shipped_program.h"

namespace {

constexpr wchar_t NoSuchName[] = L"no such name";

struct Walk {
    double find;
    double listing;
    double dialog;
};

}  // namespace

// A walk is what the search takes above one of an empty folder, whose time is that of the dialog.
bool CompareWalk(const char* what, const BenchTree& tree, const std::wstring& folder, int turns) {
    const std::size_t entries = CountBarely(folder);
    ShippedProgram program;
    program.Ask(folder);
    program.Find();
    if (entries == 0 || program.Rows() != static_cast<int>(entries)) {
        std::printf("the walk of %s found %d of %zu entries\n", what, program.Rows(), entries);
        return false;
    }
    const auto find = [&](const std::wstring& where) {
        program.Ask(where, NoSuchName);
        return program.Find();
    };
    find(folder);
    Pairs whole, walks;
    for (int turn = 0; turn < turns; ++turn) {
        Walk took = {};
        TakeTurn(
            turn,
            [&] {
                took.dialog = find(tree.Empty());
                took.find = find(folder);
            },
            [&] { took.listing = MillisecondsOf([&] { static_cast<void>(CountBarely(folder)); }); });
        walks.Add(took.find - took.dialog, took.listing);
        whole.Add(took.find, took.listing);
    }
    const std::string text = std::to_string(entries) + " entries" + what;
    walks.Print("walk of " + text + ", without the dialog", 1.1);
    whole.Print("the whole find, with the dialog", 0);
    const bool foundNothing = program.Rows() == 0;
    program.Close();
    return foundNothing;
}
