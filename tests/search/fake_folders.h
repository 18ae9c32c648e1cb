#pragma once

// A file system made of nothing but listings, in the place of the seam's calls for as long as it lives. It
// lists in the order in which entries were added, fails where it is told to, and counts what is opened and
// closed.

#include <map>
#include <string>
#include <vector>

#include "platform/windows_ce.h"
#include "tests/support/replaced_calls.h"

class FakeFolders {
  public:
    FakeFolders();
    FakeFolders(const FakeFolders&) = delete;
    FakeFolders& operator=(const FakeFolders&) = delete;
    ~FakeFolders();

    void AddFile(const std::wstring& folder, const std::wstring& name, DWORD size = 1);
    void AddFolder(const std::wstring& folder, const std::wstring& name, DWORD furtherAttributes = 0);
    void SetWritten(const std::wstring& folder, const std::wstring& name, const FILETIME& time);
    // The content that the file at the path gives when it is opened. A file without one cannot be opened.
    void SetContent(const std::wstring& path, const std::string& bytes);
    // Listing this folder fails with the code.
    void FailListing(const std::wstring& folder, DWORD code);
    // What IsFolderLink answers for the path of a marked folder.
    void SetFolderLink(const std::wstring& path);

    // The patterns and paths asked for, in order.
    std::vector<std::wstring> listed;
    std::vector<std::wstring> opened;
    int openListings = 0;

  private:
    struct Listing;

    void Add(const std::wstring& folder, const WIN32_FIND_DATAW& entry);
    static HANDLE Start(const wchar_t* pattern, WIN32_FIND_DATAW* data);
    static BOOL Next(HANDLE search, WIN32_FIND_DATAW* data);
    static BOOL End(HANDLE search);
    static std::FILE* Open(const wchar_t* path);
    static bool IsLink(const wchar_t* path);

    std::map<std::wstring, std::vector<WIN32_FIND_DATAW>> folders_;
    std::map<std::wstring, std::string> contents_;
    std::map<std::wstring, DWORD> failures_;
    std::vector<std::wstring> links_;

    Replaced<decltype(ce::FileCalls::findFirstFile)> replacedStart_{ce::fileCalls.findFirstFile, Start};
    Replaced<decltype(ce::FileCalls::findNextFile)> replacedNext_{ce::fileCalls.findNextFile, Next};
    Replaced<decltype(ce::FileCalls::findClose)> replacedEnd_{ce::fileCalls.findClose, End};
    Replaced<decltype(ce::FileCalls::openForReading)> replacedOpen_{ce::fileCalls.openForReading, Open};
    Replaced<decltype(ce::FileCalls::isFolderLink)> replacedLink_{ce::fileCalls.isFolderLink, IsLink};
};
