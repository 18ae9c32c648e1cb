#include "bench/bench_tree.h"

std::size_t CountBarely(const std::wstring& folder) {
    std::size_t entries = 0;
    Enumerate(folder, [&](const std::wstring&, const WIN32_FIND_DATAW&) { ++entries; });
    return entries;
}

std::vector<std::wstring> FilesBelow(const std::wstring& folder) {
    std::vector<std::wstring> files;
    Enumerate(folder, [&](const std::wstring& place, const WIN32_FIND_DATAW& entry) {
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return;
        files.push_back(place + L"\\" + entry.cFileName);
    });
    return files;
}
