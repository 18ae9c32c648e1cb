// The walk that lists a folder once, over trees in memory, against the one that lists it for every pass: the
// same matches in the same order; and stopped at any question it has found a beginning of them. Longest
// input: 256 bytes.

#include "fuzz/fuzz_targets.h"
#include "fuzz/world/files_in_memory.h"
#include "search/search_walk.h"
#include "tests/search/plain_walk.h"
#include "tests/search/recorded_search.h"

namespace {

class Files final : public FilesInMemory {
  private:
    DWORD Judge(Change, const std::wstring&, const std::wstring&, DWORD) override {
        throw Finding("a walk changes nothing");
    }
};

std::wstring SomeName(FuzzInput& input) {
    static constexpr const wchar_t* Names[] = {L"a",    L"b.txt", L"B.TXT", L"c.htm", L"d.html", L"README",
                                               L".txt", L"x y.c", L"f.",    L"sub",   L"s.txt"};
    const std::size_t choice = input.UpTo(15);
    if (choice == 15) return std::wstring(100, L'n');
    return Names[choice % std::size(Names)] + (input.Flag() ? L"" : std::to_wstring(input.UpTo(9)));
}

void MakeTree(FuzzInput& input, Files& files) {
    std::vector<std::wstring> folders = {L""};
    for (std::size_t count = input.UpTo(20); count > 0; --count) {
        const std::wstring path = folders[input.UpTo(folders.size() - 1)] + L'\\' + SomeName(input);
        const std::size_t kind = input.UpTo(7);
        if (path.size() >= MAX_PATH || files.Find(path) != nullptr) continue;
        if (kind < 4) {
            files.AddFile(path, 1, input.Byte(), FILE_ATTRIBUTE_ARCHIVE);
        } else {
            files.AddFolder(path, kind == 4 ? FILE_ATTRIBUTE_REPARSE_POINT : 0);
            folders.push_back(path);
        }
    }
}

// None up to three, now and then one for which there was no memory.
std::vector<const wchar_t*> SomePatterns(FuzzInput& input) {
    static constexpr const wchar_t* Patterns[] = {L"*.*",   L"*.txt",      L"*.htm", L"?.*",
                                                  L"*t*",   L"a",          L"*",     L"none*",
                                                  L"*.TXT", L"sub\\*.txt", L"*\\a*", nullptr};
    std::vector<const wchar_t*> patterns;
    for (std::size_t count = input.UpTo(3); count > 0; --count)
        patterns.push_back(input.OneOf(Patterns));
    return patterns;
}

bool IsBeginningOf(const std::vector<std::wstring>& part, const std::vector<std::wstring>& whole) {
    return part.size() <= whole.size() && std::equal(part.begin(), part.end(), whole.begin());
}

}  // namespace

void FuzzWalks(FuzzInput& input) {
    static constexpr const wchar_t* Substrings[] = {L"", L"", L"t", L"txt"};
    static constexpr const wchar_t* Starts[] = {L"\\", L"\\", L"\\", L"\\sub", L"\\none", L""};
    Files files;
    MakeTree(input, files);
    const std::uint16_t subFolders = input.UpTo(3) != 0 ? SearchConditions::SubFolders : 0;
    const std::uint16_t dates = input.Flag() ? SearchConditions::DateRange : 0;
    const auto flags = static_cast<std::uint16_t>(subFolders | dates);
    const std::vector<const wchar_t*> patterns = SomePatterns(input);
    const wchar_t* const substring = input.OneOf(Substrings);
    const wchar_t* const start = input.OneOf(Starts);
    const FILETIME latest = {input.Byte(), 0};

    RecordedWalk plain(flags, patterns, substring);
    plain.conditions.toTime = latest;
    PlainWalkFolder(plain.walk, start);
    RecordedWalk recorded(flags, patterns, substring);
    recorded.conditions.toTime = latest;
    WalkFolder(recorded.walk, start);
    Require(recorded.sink.paths == plain.sink.paths, "the matches are the plain ones");
    Require(recorded.progress.folders == plain.progress.folders,
            "the folders are entered in the plain order");

    RecordedWalk stopped(flags, patterns, substring);
    stopped.conditions.toTime = latest;
    stopped.progress.stopAtQuestion = 1 + static_cast<int>(input.UpTo(63));
    WalkFolder(stopped.walk, start);
    Require(IsBeginningOf(stopped.sink.paths, plain.sink.paths), "a stopped walk has found a beginning");
    Require(files.openListings == 0, "every listing is closed");
}
