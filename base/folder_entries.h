#pragma once

// One enumeration of a folder, closed at the end of its life.

#include "base/join_path.h"
#include "platform/windows_ce.h"

class FolderEntries {
  public:
    // Stands on the first entry that matches; there is none in a folder that cannot be listed.
    FolderEntries(const wchar_t* folder, const wchar_t* pattern) {
        wchar_t path[MAX_PATH];
        if (JoinPath(path, folder, pattern)) handle_ = ce::FindFirstFileW(path, &data_);
    }
    FolderEntries(const FolderEntries&) = delete;
    FolderEntries& operator=(const FolderEntries&) = delete;
    ~FolderEntries() {
        if (HasEntry()) ce::FindClose(handle_);
    }

    [[nodiscard]] bool HasEntry() const { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] const WIN32_FIND_DATAW& Entry() const { return data_; }
    [[nodiscard]] bool MoveOn() { return ce::FindNextFileW(handle_, &data_) != FALSE; }

  private:
    HANDLE handle_ = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW data_;
};
