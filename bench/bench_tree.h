#pragma once

// The folders that the benchmarks work on; tools/bench makes them.

#include <cstddef>
#include <string>
#include <vector>

class BenchTree {
  public:
    explicit BenchTree(std::wstring folder) : root_(std::move(folder)) {}

    // 20,000 files in 500 folders, for the walk and the rows.
    [[nodiscard]] std::wstring Files() const { return root_ + L"\\files"; }
    // As many folders, for the folder browser.
    [[nodiscard]] std::wstring Folders() const { return root_ + L"\\folders"; }
    // 100 MB of text each, in 4 files and in 10,000.
    [[nodiscard]] std::wstring LargeTexts() const { return root_ + L"\\texts\\large"; }
    [[nodiscard]] std::wstring SmallTexts() const { return root_ + L"\\texts\\small"; }
    // A few files of many kinds.
    [[nodiscard]] std::wstring Kinds() const { return root_ + L"\\kinds"; }
    // The names of a real machine's files.
    [[nodiscard]] std::wstring Real() const { return root_ + L"\\real"; }

  private:
    std::wstring root_;
};

// How many entries stand below the folder, by one pass of the system's own enumeration.
[[nodiscard]] std::size_t CountBarely(const std::wstring& folder);

// The paths of the files below the folder.
[[nodiscard]] std::vector<std::wstring> FilesBelow(const std::wstring& folder);
