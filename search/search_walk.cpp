#include "search/search_walk.h"

#include <cstddef>
#include <cstring>
#include <cwchar>
#include <new>

#include "base/folder_entries.h"
#include "base/paths.h"
#include "platform/name_wildcard.h"
#include "search/entry_filter.h"

// The results come pattern by pattern, then sub-folder by sub-folder, but opening a listing costs as much as
// 50 to 65 entries: so a folder is listed once. The matches of the first pattern are tested as they come;
// what the other patterns and the sub-folders need of the listing is kept until their turn.

namespace {

// A directory record kept for later, without the unused room after its name.
class KeptEntry final : public ListObject {
  public:
    // Null if there is no memory.
    [[nodiscard]] static KeptEntry* Create(const WIN32_FIND_DATAW& entry) {
        const std::size_t size = UsedBytes(entry.cFileName);
        auto* const bytes = new (std::nothrow) unsigned char[size];
        if (bytes == nullptr) return nullptr;
        std::memcpy(bytes, &entry, size);
        auto* const kept = new (std::nothrow) KeptEntry(bytes);
        if (kept == nullptr) delete[] bytes;
        return kept;
    }
    ~KeptEntry() override { delete[] used_; }

    [[nodiscard]] const wchar_t* Name() const { return reinterpret_cast<const wchar_t*>(used_ + NameOffset); }
    // Writes the record as it was.
    void CopyTo(WIN32_FIND_DATAW& entry) const { std::memcpy(&entry, used_, UsedBytes(Name())); }

  private:
    static constexpr std::size_t NameOffset = offsetof(WIN32_FIND_DATAW, cFileName);

    static std::size_t UsedBytes(const wchar_t* name) {
        return NameOffset + (std::wcslen(name) + 1) * sizeof(wchar_t);
    }

    explicit KeptEntry(unsigned char* usedBytes) : used_(usedBytes) {}

    // The record, up to the end of its name.
    unsigned char* used_;
};

// What one listing leaves to be handled afterwards, each in the order of the listing.
struct KeptEntries {
    // KeptEntry objects: what matches a pattern after the first.
    ObjectList laterMatches;
    // StringObjects: the names of the folders to enter.
    ObjectList subFolders;
    // False if memory ran out: the folder then has to be listed again.
    bool laterMatchesComplete = true;
    bool subFoldersComplete = true;
};

bool AppendOrDelete(ObjectList& list, ListObject* item) {
    if (item != nullptr && list.Append(item)) return true;
    delete item;
    return false;
}

const wchar_t* TextOf(const ListObject* pattern) {
    return static_cast<const StringObject*>(pattern)->Text();
}

// QUIRK: name-may-hold-a-path. A pattern with a separator or a drive in it looks into another folder than the
// one that is walked.
bool PatternsStayInFolder(ObjectList& patterns) {
    for (const ListObject* item = patterns.First(); item != nullptr; item = patterns.Next()) {
        if (std::wcspbrk(TextOf(item), L"\\/:") != nullptr) return false;
    }
    return true;
}

// A null item ends the patterns, even as the first of them.
const ListObject* FirstLaterPattern(ObjectList& patterns) {
    return patterns.First() != nullptr ? patterns.Next() : nullptr;
}

bool MatchesLaterPattern(ObjectList& patterns, const wchar_t* name) {
    for (const ListObject* item = FirstLaterPattern(patterns); item != nullptr; item = patterns.Next()) {
        if (MatchesWildcard(name, TextOf(item))) return true;
    }
    return false;
}

// QUIRK: links-are-not-entered. A link to a folder is an entry like any other, but its target is elsewhere.
bool IsFolderToEnter(const wchar_t* folder, const WIN32_FIND_DATAW& entry) {
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return false;
    wchar_t path[MAX_PATH];
    return JoinPath(path, folder, entry.cFileName) && !ce::IsFolderLink(path, entry);
}

void Keep(SearchWalk& walk, const wchar_t* folder, const WIN32_FIND_DATAW& entry, KeptEntries& kept) {
    if (kept.laterMatchesComplete && MatchesLaterPattern(walk.patterns, entry.cFileName)) {
        kept.laterMatchesComplete = AppendOrDelete(kept.laterMatches, KeptEntry::Create(entry));
    }
    if (kept.subFoldersComplete && walk.conditions.Has(SearchConditions::SubFolders) &&
        IsFolderToEnter(folder, entry)) {
        kept.subFoldersComplete = AppendOrDelete(kept.subFolders, StringObject::Create(entry.cFileName));
    }
}

WalkStep TestAndKeep(SearchWalk& walk, const wchar_t* folder, KeptEntries& kept) {
    FolderEntries enumeration(folder, L"*");
    if (!enumeration.HasEntry()) return WalkStep::GoOn;
    const ListObject* const first = walk.patterns.First();
    do {
        if (walk.PumpAndPoll() == WalkStep::Stop) return WalkStep::Stop;
        const WIN32_FIND_DATAW& entry = enumeration.Entry();
        if (IsSkippedName(entry.cFileName)) continue;
        Keep(walk, folder, entry, kept);
        if (first == nullptr || !MatchesWildcard(entry.cFileName, TextOf(first))) continue;
        if (TestEntry(walk, folder, entry) == WalkStep::Stop) return WalkStep::Stop;
    } while (enumeration.MoveOn());
    return WalkStep::GoOn;
}

WalkStep TestKeptMatches(SearchWalk& walk, const wchar_t* folder, const wchar_t* pattern,
                         ObjectList& matches) {
    WIN32_FIND_DATAW entry;
    for (const ListObject* item = matches.First(); item != nullptr; item = matches.Next()) {
        const auto* const kept = static_cast<const KeptEntry*>(item);
        if (!MatchesWildcard(kept->Name(), pattern)) continue;
        if (walk.PumpAndPoll() == WalkStep::Stop) return WalkStep::Stop;
        kept->CopyTo(entry);
        if (TestEntry(walk, folder, entry) == WalkStep::Stop) return WalkStep::Stop;
    }
    return WalkStep::GoOn;
}

WalkStep TestListedMatches(SearchWalk& walk, const wchar_t* folder, const wchar_t* pattern) {
    FolderEntries enumeration(folder, pattern);
    if (!enumeration.HasEntry()) return WalkStep::GoOn;
    do {
        if (walk.PumpAndPoll() == WalkStep::Stop) return WalkStep::Stop;
        if (IsSkippedName(enumeration.Entry().cFileName)) continue;
        if (TestEntry(walk, folder, enumeration.Entry()) == WalkStep::Stop) return WalkStep::Stop;
    } while (enumeration.MoveOn());
    return WalkStep::GoOn;
}

// The patterns from the list's cursor on; kept is null when their matches have to be listed.
// QUIRK: entry-once-a-pattern
WalkStep TestPatterns(SearchWalk& walk, const wchar_t* folder, const ListObject* pattern, ObjectList* kept) {
    for (; pattern != nullptr; pattern = walk.patterns.Next()) {
        const wchar_t* const text = TextOf(pattern);
        const WalkStep step = kept != nullptr ? TestKeptMatches(walk, folder, text, *kept)
                                              : TestListedMatches(walk, folder, text);
        if (step == WalkStep::Stop) return WalkStep::Stop;
    }
    return WalkStep::GoOn;
}

void WalkSubFolder(SearchWalk& walk, const wchar_t* folder, const wchar_t* name) {
    wchar_t subFolder[MAX_PATH];
    if (JoinPath(subFolder, folder, name)) WalkFolder(walk, subFolder);
}

void WalkKeptSubFolders(SearchWalk& walk, const wchar_t* folder, ObjectList& names) {
    for (const ListObject* item = names.First(); item != nullptr; item = names.Next()) {
        if (walk.PumpAndPoll() == WalkStep::Stop) return;
        WalkSubFolder(walk, folder, TextOf(item));
    }
}

void WalkListedSubFolders(SearchWalk& walk, const wchar_t* folder) {
    FolderEntries enumeration(folder, L"*");
    if (!enumeration.HasEntry()) return;
    do {
        if (walk.PumpAndPoll() == WalkStep::Stop) return;
        const WIN32_FIND_DATAW& entry = enumeration.Entry();
        if (IsSkippedName(entry.cFileName) || !IsFolderToEnter(folder, entry)) continue;
        WalkSubFolder(walk, folder, entry.cFileName);
    } while (enumeration.MoveOn());
}

void WalkListedOnce(SearchWalk& walk, const wchar_t* folder) {
    KeptEntries kept;
    if (TestAndKeep(walk, folder, kept) == WalkStep::Stop) return;
    ObjectList* const laterMatches = kept.laterMatchesComplete ? &kept.laterMatches : nullptr;
    if (TestPatterns(walk, folder, FirstLaterPattern(walk.patterns), laterMatches) == WalkStep::Stop) return;
    if (kept.subFoldersComplete) {
        WalkKeptSubFolders(walk, folder, kept.subFolders);
    } else {
        WalkListedSubFolders(walk, folder);
    }
}

}  // namespace

void WalkFolder(SearchWalk& walk, const wchar_t* folder) {
    walk.progress.EnterFolder(folder);
    if (PatternsStayInFolder(walk.patterns)) {
        WalkListedOnce(walk, folder);
        return;
    }
    if (TestPatterns(walk, folder, walk.patterns.First(), nullptr) == WalkStep::Stop) return;
    if (walk.conditions.Has(SearchConditions::SubFolders)) WalkListedSubFolders(walk, folder);
}
