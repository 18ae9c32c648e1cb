#include <cstdio>
#include <string>
#include <vector>

#include "bench/bench_search.h"
#include "bench/benches.h"
#include "bench/comparison.h"
#include "search/content_matches.h"
#include "search/search_query.h"

namespace {

constexpr DWORD BlockSize = 65536;
alignas(4096) char block[BlockSize];

std::size_t ReadBarely(const std::vector<std::wstring>& files) {
    std::size_t bytes = 0;
    for (const std::wstring& path : files) {
        const HANDLE file =
            CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        if (file == INVALID_HANDLE_VALUE) continue;
        // A read that comes short is the last.
        for (DWORD read = BlockSize; read == BlockSize; bytes += read) {
            if (!ReadFile(file, block, BlockSize, &read, nullptr)) read = 0;
        }
        CloseHandle(file);
    }
    return bytes;
}

SearchConditions ConditionsFor(const wchar_t* content, bool folding) {
    AskedQuery query;
    query.content = content;
    query.ignoreCase = folding;
    SearchConditions conditions;
    FillConditions(query, conditions);
    return conditions;
}

// How many of the files hold the text, asked as a search asks of each file that it comes to.
std::size_t SearchFiles(const std::vector<std::wstring>& files, const SearchConditions& conditions) {
    WIN32_FIND_DATAW entry = {};
    entry.dwFileAttributes = FILE_ATTRIBUTE_ARCHIVE;
    std::size_t matches = 0;
    for (const std::wstring& path : files) {
        if (ContentMatches(conditions, path.c_str(), entry)) ++matches;
    }
    return matches;
}

bool CompareContent(const char* what, const std::wstring& folder, int runs) {
    const std::vector<std::wstring> files = FilesBelow(folder);
    const std::size_t bytes = ReadBarely(files);
    // Every file holds the one text and none the other.
    const std::size_t found = SearchFiles(files, ConditionsFor(L"text that goes", false));
    if (files.empty() || found != files.size()) {
        std::printf("the content search found %zu of %zu files\n", found, files.size());
        return false;
    }
    std::printf("%s: %zu bytes in %zu files\n", what, bytes, files.size());
    std::size_t matches = 0;
    for (const bool folding : {false, true}) {
        const SearchConditions conditions = ConditionsFor(L"no such text", folding);
        MeasureAndPrint({std::string("content of ") + what + (folding ? ", case ignored" : ", case checked"),
                         [&] { matches += SearchFiles(files, conditions); }, [&] { ReadBarely(files); }},
                        runs);
    }
    return matches == 0;
}

}  // namespace

bool CompareLargeContent(const BenchTree& tree, int runs) {
    return CompareContent("large files", tree.LargeTexts(), runs);
}

bool CompareSmallContent(const BenchTree& tree, int runs) {
    return CompareContent("small files", tree.SmallTexts(), runs);
}
