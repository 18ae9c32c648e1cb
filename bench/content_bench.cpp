#include <cstdio>
#include <string>
#include <vector>

#include "app/start_up.h"
#include "base/program_context.h"
#include "bench/benches.h"
#include "bench/comparison.h"
#include "search/content_matches.h"
#include "search/search_query.h"
#include "tests/support/asked_query.h"

namespace {

constexpr DWORD BlockSizes[] = {65536, 131072, 262144, 524288, 1048576};
constexpr DWORD LargestBlock = 1048576;
alignas(4096) char block[LargestBlock];

struct Corpus {
    const char* name;
    const wchar_t* folder;
    const wchar_t* sought;  // no file has it
    double goal;
    double goalFolding;
};
// Nearly each line of the English text has "that" and "thing".
constexpr Corpus Corpora[] = {
    {"English", L"english", L"zqxj vkw", 1.5, 1.7},
    {"English, a near miss a line", L"english", L"thzt", 4, 5},
    {"English, whole words missed", L"english", L"that things", 4, 5},
    {"CR LF text", L"crlf", L"zqxj vkw", 1.5, 1.7},
    {"Shift-JIS text", L"japanese", L"\u691c\u7d22\u8a9e", 1.5, 1.7},
    {"random bytes", L"random", L"zqxj vkw", 1.5, 1.7},
};

std::size_t ReadBarely(const std::vector<std::wstring>& files, DWORD size) {
    std::size_t bytes = 0;
    for (const std::wstring& path : files) {
        const HANDLE file =
            CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        if (file == INVALID_HANDLE_VALUE) continue;
        // A read that comes short is the last.
        for (DWORD read = size; read == size; bytes += read) {
            if (!ReadFile(file, block, size, &read, nullptr)) read = 0;
        }
        CloseHandle(file);
    }
    return bytes;
}

double TimeOfReading(const std::vector<std::wstring>& files, DWORD size) {
    return MillisecondsOf([&] { static_cast<void>(ReadBarely(files, size)); });
}

// By the best of a few readings with each.
DWORD FastestBlockSize(const std::vector<std::wstring>& files) {
    constexpr int Readings = 7;
    DWORD fastest = BlockSizes[0];
    double least = TimeOfReading(files, fastest);
    for (int reading = 0; reading < Readings; ++reading) {
        for (const DWORD size : BlockSizes) {
            const double took = TimeOfReading(files, size);
            if (took >= least) continue;
            least = took;
            fastest = size;
        }
    }
    return fastest;
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

bool CompareFiles(const Corpus& corpus, const std::vector<std::wstring>& files, DWORD blockSize, int turns) {
    std::size_t matches = 0;
    for (const bool folding : {false, true}) {
        const SearchConditions conditions = ConditionsFor(corpus.sought, folding);
        Compare(
            std::string("content, ") + corpus.name + (folding ? ", case ignored" : ", case checked"),
            folding ? corpus.goalFolding : corpus.goal, turns,
            [&] { return MillisecondsOf([&] { matches += SearchFiles(files, conditions); }); },
            [&] { return TimeOfReading(files, blockSize); });
    }
    if (files.empty() || matches > 0) std::printf("the texts are not as they should be\n");
    return !files.empty() && matches == 0;
}

// What Shift-JIS text is searched for with is what the program has chosen for the system.
void ChooseConversion() {
    ProgramContext& context = ContextForStartUp();
    if (context.toMultiByte != nullptr) return;
    context.conversionLibrary = LoadLibraryW(L"P:\\TKCONV.DLL");
    DecideLanguage(context);
}

}  // namespace

bool CompareLargeContent(const BenchTree& tree, int turns) {
    ChooseConversion();
    for (const Corpus& corpus : Corpora) {
        const std::vector<std::wstring> files = FilesBelow(tree.Corpus(corpus.folder));
        const DWORD blockSize = FastestBlockSize(files);
        std::printf("(%zu bytes, bare reading in blocks of %lu KB)\n", ReadBarely(files, blockSize),
                    static_cast<unsigned long>(blockSize / 1024));
        if (!CompareFiles(corpus, files, blockSize, turns)) return false;
    }
    return true;
}

bool CompareSmallContent(const BenchTree& tree, int turns) {
    const std::vector<std::wstring> files = FilesBelow(tree.SmallTexts());
    // Every file holds the one text.
    if (SearchFiles(files, ConditionsFor(L"that", false)) != files.size()) return false;
    return CompareFiles({"10,000 small files", nullptr, L"zqxj vkw", 1.08, 1.08}, files, BlockSizes[0],
                        turns);
}
