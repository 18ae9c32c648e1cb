#pragma once

// The folders that the benchmarks work on; tools/bench makes them.

#include <cstddef>
#include <string>
#include <vector>

#include "platform/system_types.h"

class BenchTree {
  public:
    explicit BenchTree(std::wstring folder) : root_(std::move(folder)) {}

    // So many files of different names, sizes and times, forty in each folder.
    [[nodiscard]] std::wstring Rows(int files) const { return root_ + L"\\rows " + std::to_wstring(files); }
    // 20,000 files in 500 folders, for the walk.
    [[nodiscard]] std::wstring Files() const { return root_ + L"\\files"; }
    // The names of a real machine's files.
    [[nodiscard]] std::wstring Real() const { return root_ + L"\\real"; }
    // As many folders, for the folder browser.
    [[nodiscard]] std::wstring Folders() const { return root_ + L"\\folders"; }
    // 100 MB in 4 files: "english", "crlf", "japanese" or "random".
    [[nodiscard]] std::wstring Corpus(const std::wstring& name) const {
        return root_ + L"\\corpora\\" + name;
    }
    // The English text once more, in 10,000 files.
    [[nodiscard]] std::wstring SmallTexts() const { return root_ + L"\\small"; }
    // A few files of many kinds.
    [[nodiscard]] std::wstring Kinds() const { return root_ + L"\\kinds"; }
    [[nodiscard]] std::wstring Empty() const { return root_ + L"\\empty"; }

  private:
    std::wstring root_;
};

// One pass of the system's own enumeration, in its fastest form: visit(folder, entry) for everything below.
template <typename Visit>
void Enumerate(const std::wstring& folder, const Visit& visit) {
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileExW((folder + L"\\*").c_str(), FindExInfoBasic, &entry,
                                           FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const wchar_t* const name = entry.cFileName;
        if (name[0] == L'.' && (name[1] == L'\0' || (name[1] == L'.' && name[2] == L'\0'))) continue;
        visit(folder, entry);
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) Enumerate(folder + L"\\" + name, visit);
    } while (FindNextFileW(search, &entry));
    FindClose(search);
}

// How many entries one such pass finds.
[[nodiscard]] std::size_t CountBarely(const std::wstring& folder);

// The paths of the files below the folder.
[[nodiscard]] std::vector<std::wstring> FilesBelow(const std::wstring& folder);
