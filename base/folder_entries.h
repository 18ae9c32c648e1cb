#pragma once

// One enumeration of a folder, and the names that every walk passes over.

#include "base/paths.h"
#include "platform/handles.h"

class FolderEntries {
  public:
    // Positioned on the first entry that matches; a folder that cannot be listed has none.
    FolderEntries(const wchar_t* folder, const wchar_t* pattern) {
        wchar_t path[MAX_PATH];
        if (JoinPath(path, folder, pattern)) search_.Reset(ce::FindFirstFileW(path, &data_));
    }

    [[nodiscard]] bool HasEntry() const { return static_cast<bool>(search_); }
    [[nodiscard]] const WIN32_FIND_DATAW& Entry() const { return data_; }
    [[nodiscard]] bool MoveOn() { return ce::FindNextFileW(search_.Get(), &data_) != FALSE; }

  private:
    UniqueFind search_;
    WIN32_FIND_DATAW data_;
};

// Every walk over a folder asks this before it handles an entry.
// QUIRK: no-name-is-skipped. Windows CE lists no "." and "..", so there is nothing to skip; this is the one
// place to change for a system that lists them.
[[nodiscard]] inline bool IsSkippedName(const wchar_t* /*fileName*/) {
    return false;
}
