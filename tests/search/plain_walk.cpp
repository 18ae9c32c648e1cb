#include "tests/search/plain_walk.h"

#include <vector>

#include "base/paths.h"
#include "platform/windows_ce.h"
#include "search/entry_filter.h"

namespace {

std::vector<WIN32_FIND_DATAW> Listed(const wchar_t* folder, const wchar_t* pattern) {
    std::vector<WIN32_FIND_DATAW> entries;
    wchar_t path[MAX_PATH];
    if (!JoinPath(path, folder, pattern)) return entries;
    WIN32_FIND_DATAW entry;
    const HANDLE search = ce::FindFirstFileW(path, &entry);
    if (search == INVALID_HANDLE_VALUE) return entries;
    do {
        entries.push_back(entry);
    } while (ce::FindNextFileW(search, &entry));
    ce::FindClose(search);
    return entries;
}

}  // namespace

void PlainWalkFolder(SearchWalk& walk, const wchar_t* folder) {
    walk.progress.EnterFolder(folder);
    for (const ListObject* item = walk.patterns.First(); item != nullptr; item = walk.patterns.Next()) {
        for (const WIN32_FIND_DATAW& entry : Listed(folder, static_cast<const StringObject*>(item)->Text())) {
            if (TestEntry(walk, folder, entry) == WalkStep::Stop) return;
        }
    }
    if (!walk.conditions.Has(SearchConditions::SubFolders)) return;
    for (const WIN32_FIND_DATAW& entry : Listed(folder, L"*")) {
        wchar_t subFolder[MAX_PATH];
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) continue;
        if (!JoinPath(subFolder, folder, entry.cFileName) || ce::IsFolderLink(subFolder, entry)) continue;
        PlainWalkFolder(walk, subFolder);
    }
}
