#include <cstdio>

#include "bench/bench_search.h"
#include "bench/benches.h"
#include "bench/comparison.h"

namespace {

constexpr DWORD BlockSize = 65536;
alignas(4096) char block[BlockSize];

std::size_t ReadBarely(const std::vector<std::wstring>& files) {
    std::size_t bytes = 0;
    for (const std::wstring& path : files) {
        const HANDLE file =
            CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        if (file == INVALID_HANDLE_VALUE) continue;
        DWORD read = 0;
        while (ReadFile(file, block, BlockSize, &read, nullptr) && read > 0)
            bytes += read;
        CloseHandle(file);
    }
    return bytes;
}

// Every file holds the text that each begins with, and none holds the other.
bool ComparesWhatItShould(const BenchTree& tree, AnsweredSource source) {
    CountingSink sink;
    SilentProgress progress;
    SearchConditions conditions;
    source.content = L"Line 0 of";
    RunSearch(conditions, source, sink, progress);
    if (sink.matches != tree.TextFiles().size() || ReadBarely(tree.TextFiles()) != tree.TextBytes()) {
        std::printf("the content search found %zu of %zu files\n", sink.matches, tree.TextFiles().size());
        return false;
    }
    return true;
}

}  // namespace

bool CompareContent(const BenchTree& tree, int runs) {
    AnsweredSource source = SearchBelow(tree.TextsFolder());
    if (!ComparesWhatItShould(tree, source)) return false;
    CountingSink sink;
    SilentProgress progress;
    SearchConditions conditions;
    source.content = L"no such text";
    const auto search = [&] { RunSearch(conditions, source, sink, progress); };
    const auto read = [&] { ReadBarely(tree.TextFiles()); };
    MeasureAndPrint({"content search, case checked / reading the bytes", search, read}, runs);
    source.caseOptionState = 0;
    MeasureAndPrint({"content search, case ignored / reading the bytes", search, read}, runs);
    return sink.matches == 0;
}
