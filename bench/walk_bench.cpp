#include <cstdio>

#include "bench/bench_search.h"
#include "bench/benches.h"
#include "bench/comparison.h"

namespace {

// Counts what the system lists, each folder once.
std::size_t ListBarely(const std::wstring& folder) {
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return 0;
    std::size_t entries = 0;
    do {
        if (data.cFileName[0] == L'.') continue;
        ++entries;
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            entries += ListBarely(folder + L"\\" + data.cFileName);
        }
    } while (FindNextFileW(search, &data));
    FindClose(search);
    return entries;
}

}  // namespace

bool CompareWalk(const BenchTree& tree, int runs) {
    AnsweredSource source = SearchBelow(tree.NamesFolder());
    CountingSink sink;
    SilentProgress progress;
    SearchConditions conditions;
    RunSearch(conditions, source, sink, progress);
    if (sink.matches != tree.NamesEntries() || ListBarely(tree.NamesFolder()) != tree.NamesEntries()) {
        std::printf("the walk found %zu of %zu entries\n", sink.matches, tree.NamesEntries());
        return false;
    }
    source.name = L"no such name";
    MeasureAndPrint(
        {"walk without a match / bare enumeration", [&] { RunSearch(conditions, source, sink, progress); },
         [&] { ListBarely(tree.NamesFolder()); }},
        runs);
    return sink.matches == 0;
}
