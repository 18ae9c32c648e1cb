// quorin_bench [--runs N] [FOLDER]: measures the program against the system's own limits on a tree that it
// makes in FOLDER (the system's temporary folder by default) and deletes afterwards. Prints one line per
// comparison; status 0, 1 when something did not do what it should, 2 for a command line that it does not
// understand.

#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/bench_tree.h"
#include "bench/benches.h"
#include "bench/comparison.h"
#include "platform/system_types.h"

namespace {

struct Options {
    int runs = 9;
    std::wstring folder;
};

bool ReadOptions(int count, wchar_t** words, Options& options) {
    for (int i = 1; i < count; ++i) {
        const std::wstring word = words[i];
        if (word == L"--runs" && i + 1 < count) {
            options.runs = static_cast<int>(std::wcstol(words[++i], nullptr, 10));
        } else if (options.folder.empty() && word.rfind(L"-", 0) != 0) {
            options.folder = word;
        } else {
            return false;
        }
    }
    return options.runs >= 1 && options.runs <= 1000;
}

std::wstring TemporaryFolder() {
    wchar_t folder[MAX_PATH] = L"";
    GetTempPathW(MAX_PATH, folder);
    return folder;
}

}  // namespace

int wmain(int count, wchar_t** words) {
    Options options;
    if (!ReadOptions(count, words, options)) {
        std::printf("usage: quorin_bench [--runs N] [FOLDER]\n");
        return 2;
    }
    if (options.folder.empty()) options.folder = TemporaryFolder();
    if (options.folder.back() != L'\\') options.folder += L'\\';
    const BenchTree tree(options.folder + L"quorin_bench_" + std::to_wstring(GetCurrentProcessId()));
    if (!tree.Valid()) {
        std::printf("the folders to work on could not be made\n");
        return 1;
    }
    std::printf("%zu entries to walk, %zu files with %zu bytes of text, best of %d runs in turns\n",
                tree.NamesEntries(), tree.TextFiles().size(), tree.TextBytes(), options.runs);
    PrintHeading();
    const bool done = CompareWalk(tree, options.runs) && CompareContent(tree, options.runs) &&
                      CompareRows(tree, options.runs) && CompareBrowser(tree, options.runs) &&
                      CompareSorting(options.runs);
    return done ? 0 : 1;
}
