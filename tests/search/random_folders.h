#pragma once

// Trees and patterns by chance, for walks that are compared with a plain one.

#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "tests/search/fake_folders.h"

class RandomFolders {
  public:
    explicit RandomFolders(unsigned seed) : engine_(seed) {}

    // A number from 0 up to this one.
    int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(engine_); }

    // Adds files, folders, links and folders that cannot be listed, this many levels below the folder.
    void Fill(FakeFolders& folders, const std::wstring& folder, int depth);

    // None up to three, now and then one for which there was no memory.
    std::vector<const wchar_t*> SomePatterns();

  private:
    std::mt19937 engine_;
};
