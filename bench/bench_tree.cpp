#include "bench/bench_tree.h"

#include "platform/system_types.h"

namespace {

// Calls visit(path's folder, entry) for everything in the folder and below.
template <typename Visit>
void List(const std::wstring& folder, const Visit& visit) {
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const wchar_t* const name = data.cFileName;
        if (name[0] == L'.' && (name[1] == L'\0' || (name[1] == L'.' && name[2] == L'\0'))) continue;
        visit(folder, data);
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) List(folder + L"\\" + name, visit);
    } while (FindNextFileW(search, &data));
    FindClose(search);
}

}  // namespace

std::size_t CountBarely(const std::wstring& folder) {
    std::size_t entries = 0;
    List(folder, [&](const std::wstring&, const WIN32_FIND_DATAW&) { ++entries; });
    return entries;
}

std::vector<std::wstring> FilesBelow(const std::wstring& folder) {
    std::vector<std::wstring> files;
    List(folder, [&](const std::wstring& place, const WIN32_FIND_DATAW& entry) {
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return;
        files.push_back(place + L"\\" + entry.cFileName);
    });
    return files;
}
