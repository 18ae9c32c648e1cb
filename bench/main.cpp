// quorin_bench [--runs N] [--only PART] FOLDER: measures the program against the system's own limits on the
// folders that tools/bench makes in FOLDER. Prints one line per comparison; status 0, 1 when something did
// not do what it should, 2 for a command line that it does not understand.

#include <cstdio>
#include <cwchar>
#include <functional>
#include <string>

#include "bench/bench_tree.h"
#include "bench/benches.h"
#include "bench/comparison.h"

namespace {

struct Options {
    int runs = 9;
    std::wstring only;
    std::wstring folder;
};

bool ReadOptions(int count, wchar_t** words, Options& options) {
    for (int i = 1; i < count; ++i) {
        const std::wstring word = words[i];
        if (word == L"--runs" && i + 1 < count) {
            options.runs = static_cast<int>(std::wcstol(words[++i], nullptr, 10));
        } else if (word == L"--only" && i + 1 < count) {
            options.only = words[++i];
        } else if (options.folder.empty() && word.rfind(L"-", 0) != 0) {
            options.folder = word;
        } else {
            return false;
        }
    }
    return options.runs >= 1 && options.runs <= 1000 && !options.folder.empty();
}

struct Part {
    const wchar_t* name;
    std::function<bool()> run;
};

}  // namespace

int wmain(int count, wchar_t** words) {
    Options options;
    if (!ReadOptions(count, words, options)) {
        std::printf("usage: quorin_bench [--runs N] [--only PART] FOLDER\n");
        return 2;
    }
    const BenchTree tree(options.folder);
    const int runs = options.runs;
    // What takes seconds gives a true ratio in fewer turns.
    const int fewerRuns = runs / 3 + 1;
    const Part parts[] = {
        {L"walk", [&] { return CompareWalk("20,000 files", tree.Files(), runs); }},
        {L"real", [&] { return CompareWalk("a real tree", tree.Real(), runs); }},
        {L"large", [&] { return CompareLargeContent(tree, runs); }},
        {L"small", [&] { return CompareSmallContent(tree, fewerRuns); }},
        {L"rows", [&] { return CompareRows(tree, runs); }},
        {L"shell", [&] { return CompareShellQuestions(tree); }},
        {L"sort", [&] { return CompareSorting(runs); }},
        {L"browser", [&] { return CompareBrowser(tree, fewerRuns); }},
        {L"start", [&] { return CompareStart(runs); }},
    };
    std::printf("best of %d runs in turns, in milliseconds\n", runs);
    PrintHeading();
    int partsRun = 0;
    for (const Part& part : parts) {
        if (!options.only.empty() && options.only != part.name) continue;
        ++partsRun;
        if (!part.run()) return 1;
    }
    return partsRun > 0 ? 0 : 2;
}
