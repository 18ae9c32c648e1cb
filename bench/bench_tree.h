#pragma once

// The folders that the benchmarks work on; tools/bench makes them.

#include <cstddef>
#include <string>
#include <vector>

class BenchTree {
  public:
    explicit BenchTree(std::wstring folder) : root(std::move(folder)) {}

    // 20,000 files in 500 folders, for the walk and the rows.
    [[nodiscard]] std::wstring Files() const { return root + L"\\files"; }
    // As many folders, for the folder browser.
    [[nodiscard]] std::wstring Folders() const { return root + L"\\folders"; }
    // 100 MB of text each, in 4 files and in 10,000.
    [[nodiscard]] std::wstring LargeTexts() const { return root + L"\\texts\\large"; }
    [[nodiscard]] std::wstring SmallTexts() const { return root + L"\\texts\\small"; }
    // A few files of many kinds.
    [[nodiscard]] std::wstring Kinds() const { return root + L"\\kinds"; }
    // The names of a real machine's files.
    [[nodiscard]] std::wstring Real() const { return root + L"\\real"; }

  private:
    std::wstring root;
};

// How many entries stand below the folder, by one pass of the system's own enumeration.
[[nodiscard]] std::size_t CountBarely(const std::wstring& folder);

// The paths of the files below the folder.
[[nodiscard]] std::vector<std::wstring> FilesBelow(const std::wstring& folder);
