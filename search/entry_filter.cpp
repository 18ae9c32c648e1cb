#include "search/entry_filter.h"

#include <cwchar>

#include "base/paths.h"
#include "search/content_matches.h"
#include "search/date_and_size.h"
#include "search/substring_search.h"

namespace {

// Read in a few milliseconds up to here, also where it takes the readers of lines.
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

bool TestEntry(SearchWalk& walk, const wchar_t* folder, const WIN32_FIND_DATAW& entry) {
    if (walk.PumpAndPollStop()) return false;
    if (!PassesDateAndSize(walk.conditions, entry)) return true;
    if (!NamePasses(entry.cFileName, walk.nameSubstring)) return true;
    wchar_t fullPath[MAX_PATH];
    // QUIRK: long-paths-are-passed-over
    if (!JoinPath(fullPath, folder, entry.cFileName)) return true;
    if (walk.conditions.Has(SearchConditions::ContentString)) {
        if (IsLongFile(entry)) walk.progress.BeforeLongFile();
        if (!ContentMatches(walk.conditions, fullPath, entry)) return true;
    }
    walk.sink.AddMatch(fullPath, entry);
    return true;
}
