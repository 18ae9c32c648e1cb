#include "search/entry_filter.h"

#include <cwchar>

#include "base/paths.h"
#include "search/content_matches.h"
#include "search/date_and_size.h"
#include "search/substring_search.h"

namespace {

// A shorter file is read in a few milliseconds, even if all its lines have to be read.
constexpr DWORD LongFileSize = 1024 * 1024;

bool IsLongFile(const WIN32_FIND_DATAW& entry) {
    return entry.nFileSizeHigh != 0 || entry.nFileSizeLow >= LongFileSize;
}

bool NamePasses(const wchar_t* name, const wchar_t* substring) {
    if (substring[0] == L'\0') return true;
    return FindWide(name, static_cast<int>(std::wcslen(name)), substring,
                    static_cast<int>(std::wcslen(substring))) != nullptr;
}

}  // namespace

WalkStep TestEntry(SearchWalk& walk, const wchar_t* folder, const WIN32_FIND_DATAW& entry) {
    if (walk.PumpAndPoll() == WalkStep::Stop) return WalkStep::Stop;
    if (!PassesDateAndSize(walk.conditions, entry)) return WalkStep::GoOn;
    if (!NamePasses(entry.cFileName, walk.nameSubstring)) return WalkStep::GoOn;
    wchar_t fullPath[MAX_PATH];
    // QUIRK: long-paths-are-passed-over
    if (!JoinPath(fullPath, folder, entry.cFileName)) return WalkStep::GoOn;
    if (walk.conditions.Has(SearchConditions::ContentString)) {
        if (IsLongFile(entry)) walk.progress.BeforeLongFile();
        if (!ContentMatches(walk.conditions, fullPath, entry)) return WalkStep::GoOn;
    }
    walk.sink.AddMatch(fullPath, entry);
    return WalkStep::GoOn;
}
