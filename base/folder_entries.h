#pragma once

// One enumeration of a folder, closed at the end of its life.

#include "platform/windows_ce.h"
#include "base/join_path.h"

class FolderEntries {
  public:
    // Stands on the first entry that matches; there is none in a folder that cannot be listed.
    FolderEntries(const wchar_t* folder, const wchar_t* pattern) {
        wchar_t path[MAX_PATH];
        if (JoinPath(path, folder, pattern)) handle = ce::FindFirstFileW(path, &data);
    }
    FolderEntries(const FolderEntries&) = delete;
    FolderEntries& operator=(const FolderEntries&) = delete;
    ~FolderEntries() {
        if (HasEntry()) ce::FindClose(handle);
    }

    [[nodiscard]] bool HasEntry() const { return handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] const WIN32_FIND_DATAW& Entry() const { return data; }
    [[nodiscard]] bool MoveOn() { return ce::FindNextFileW(handle, &data) != FALSE; }

  private:
    HANDLE handle = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW data;
};
