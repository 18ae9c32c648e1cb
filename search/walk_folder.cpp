#include "search/walk_folder.h"

#include "platform/windows_ce.h"
#include "search/join_path.h"
#include "search/skipped_names.h"
#include "search/test_entry.h"

namespace {

// One enumeration of a folder, closed at the end of its life.
class Enumeration {
  public:
    Enumeration(const wchar_t* folder, const wchar_t* pattern) {
        wchar_t path[MAX_PATH];
        if (JoinPath(path, folder, pattern)) handle = ce::FindFirstFileW(path, &data);
    }
    Enumeration(const Enumeration&) = delete;
    Enumeration& operator=(const Enumeration&) = delete;
    ~Enumeration() {
        if (HasEntry()) ce::FindClose(handle);
    }

    [[nodiscard]] bool HasEntry() const { return handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] const WIN32_FIND_DATAW& Entry() const { return data; }
    [[nodiscard]] bool MoveOn() { return ce::FindNextFileW(handle, &data) != FALSE; }

  private:
    HANDLE handle = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW data;
};

// Tests what matches one pattern. False when the stop was seen before an entry: the folder is then done with.
bool TestMatchesOf(SearchWalk& walk, const wchar_t* folder, const wchar_t* pattern) {
    Enumeration enumeration(folder, pattern);
    if (!enumeration.HasEntry()) return true;
    do {
        if (walk.PumpAndPollStop()) return false;
        if (IsSkippedName(enumeration.Entry().cFileName)) continue;
        // A stop seen here ends this enumeration only; the next one meets it again at its first entry.
        if (!TestEntry(walk, folder, enumeration.Entry())) break;
    } while (enumeration.MoveOn());
    return true;
}

bool TestEntries(SearchWalk& walk, const wchar_t* folder) {
    for (const ListObject* item = walk.patterns.First(); item != nullptr; item = walk.patterns.Next()) {
        if (!TestMatchesOf(walk, folder, static_cast<const StringObject*>(item)->Text())) return false;
    }
    return true;
}

void WalkSubFolders(SearchWalk& walk, const wchar_t* folder) {
    Enumeration enumeration(folder, L"*");
    if (!enumeration.HasEntry()) return;
    wchar_t subFolder[MAX_PATH];
    do {
        if (walk.PumpAndPollStop()) return;
        const WIN32_FIND_DATAW& entry = enumeration.Entry();
        if (IsSkippedName(entry.cFileName)) continue;
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) continue;
        if (!JoinPath(subFolder, folder, entry.cFileName)) continue;
        // A link to a folder is an entry like any other, but what it leads to stands elsewhere.
        if (ce::IsFolderLink(subFolder, entry)) continue;
        WalkFolder(walk, subFolder);
    } while (enumeration.MoveOn());
}

}  // namespace

void WalkFolder(SearchWalk& walk, const wchar_t* folder) {
    walk.progress.EnterFolder(folder);
    if (!TestEntries(walk, folder)) return;
    if (walk.conditions.Has(SearchConditions::SubFolders)) WalkSubFolders(walk, folder);
}
