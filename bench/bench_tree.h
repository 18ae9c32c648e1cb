#pragma once

// The folders that the benchmarks work on, made anew under a folder and deleted at the end.

#include <cstddef>
#include <string>
#include <vector>

class BenchTree {
  public:
    // Makes everything below `folder`, which must not exist. Valid() tells whether that went well.
    explicit BenchTree(std::wstring folder);
    BenchTree(const BenchTree&) = delete;
    BenchTree& operator=(const BenchTree&) = delete;
    ~BenchTree();

    [[nodiscard]] bool Valid() const { return valid; }

    // Small files in many folders, for the walk.
    [[nodiscard]] std::wstring NamesFolder() const { return root + L"\\names"; }
    [[nodiscard]] std::size_t NamesEntries() const { return namesEntries; }

    // Nothing but folders, for the folder browser, and how many stand below.
    [[nodiscard]] std::wstring FoldersFolder() const { return root + L"\\folders"; }
    [[nodiscard]] std::size_t FolderCount() const { return folderCount; }

    // Text in large and small files, for the content search, and the files' paths.
    [[nodiscard]] std::wstring TextsFolder() const { return root + L"\\texts"; }
    [[nodiscard]] const std::vector<std::wstring>& TextFiles() const { return textFiles; }
    [[nodiscard]] std::size_t TextBytes() const { return textBytes; }

  private:
    void MakeNames();
    void MakeFolders();
    void MakeTexts();
    void AddFolder(const std::wstring& path);
    void AddFile(const std::wstring& path, const std::string& bytes);

    std::wstring root;
    bool valid = true;
    std::size_t namesEntries = 0;
    std::size_t folderCount = 0;
    std::vector<std::wstring> textFiles;
    std::size_t textBytes = 0;
};
