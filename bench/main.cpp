// quorin_bench [--runs N] FOLDER [PART...]: measures the program against the system's own limits on the
// folders that tools/bench makes in FOLDER, in all parts or in those named. Prints one line per comparison;
// status 0, 1 when something did not do what it should, 2 for a command line that it does not understand.

#include <cstdio>
#include <cwchar>
#include <functional>
#include <string>
#include <vector>

#include "base/program_context.h"
#include "bench/bench_tree.h"
#include "bench/benches.h"
#include "bench/comparison.h"
#include "tests/support/driver_error.h"

namespace {

constexpr int Few = 1000;
constexpr int Many = 20000;
constexpr int VeryMany = 100000;

struct Options {
    int turns = 9;
    std::wstring folder;
    std::vector<std::wstring> parts;
};

struct Part {
    const wchar_t* name;
    std::function<bool()> run;
};

bool ReadOptions(int count, wchar_t** words, Options& options) {
    for (int i = 1; i < count; ++i) {
        const std::wstring word = words[i];
        if (word == L"--runs" && i + 1 < count) {
            options.turns = static_cast<int>(std::wcstol(words[++i], nullptr, 10));
        } else if (word.rfind(L"-", 0) == 0) {
            return false;
        } else if (options.folder.empty()) {
            options.folder = word;
        } else {
            options.parts.push_back(word);
        }
    }
    return options.turns >= 1 && options.turns <= 1000 && !options.folder.empty();
}

std::vector<Part> PartsOf(const BenchTree& tree, int turns) {
    // What takes seconds gives a true ratio in fewer turns.
    const int fewer = turns / 3 + 1;
    return {
        {L"start", [=] { return CompareStart(turns); }},
        {L"rows-1000", [=] { return CompareRows(tree, Few, turns); }},
        {L"rows-20000", [=] { return CompareRows(tree, Many, turns); }},
        {L"rows-100000", [=] { return CompareRows(tree, VeryMany, fewer); }},
        {L"memory", [=] { return CompareMemory(tree, Many) && CompareMemory(tree, VeryMany); }},
        {L"sort-20000", [=] { return CompareSorting(tree, Many, 2.7, turns); }},
        {L"sort-100000", [=] { return CompareSorting(tree, VeryMany, 1.7, fewer); }},
        {L"walk", [=] { return CompareWalk("", tree, tree.Files(), turns); }},
        {L"real", [=] { return CompareWalk(" of a real tree", tree, tree.Real(), fewer); }},
        {L"large", [=] { return CompareLargeContent(tree, 3 * turns); }},
        {L"small", [=] { return CompareSmallContent(tree, turns); }},
        {L"shell", [=] { return CompareShellQuestions(tree); }},
        {L"browser", [=] { return CompareBrowser(tree, fewer); }},
    };
}

bool IsAsked(const Options& options, const wchar_t* part) {
    for (const std::wstring& name : options.parts) {
        if (name == part) return true;
    }
    return options.parts.empty();
}

int RunParts(const Options& options) {
    std::printf("%d pairs of turns, the two sides in alternating order\n", options.turns);
    PrintHeading();
    std::size_t partsRun = 0;
    for (const Part& part : PartsOf(BenchTree(options.folder), options.turns)) {
        if (!IsAsked(options, part.name)) continue;
        ++partsRun;
        if (part.run()) continue;
        std::printf("the part '%ls' failed\n", part.name);
        return 1;
    }
    return partsRun > 0 && partsRun >= options.parts.size() ? 0 : 2;
}

}  // namespace

int wmain(int count, wchar_t** words) {
    ContextForStartUp().instance = GetModuleHandleW(nullptr);
    if (count == 4 && std::wstring(words[1]) == L"--memory-of-rows")
        return MemoryOfPlainRows(words[2], static_cast<int>(std::wcstol(words[3], nullptr, 10)));
    Options options;
    if (!ReadOptions(count, words, options)) {
        std::printf("usage: quorin_bench [--runs N] FOLDER [PART...]\n");
        return 2;
    }
    try {
        return RunParts(options);
    } catch (const DriverError& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
