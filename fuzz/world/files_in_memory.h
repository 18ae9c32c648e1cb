#pragma once

// A file system in memory, in the place of the seam's calls for as long as it lives. Names are told apart
// whatever their case. It fails where it is told to, and lets somebody look at every change before it is
// made.

#include <map>
#include <string>
#include <vector>

#include "platform/windows_ce.h"

struct FileInMemory {
    // As it was given.
    std::wstring path;
    DWORD attributes = 0;
    // Of files: one number for each content, none of which is 0.
    int content = 0;
    DWORD written = 0;

    [[nodiscard]] bool IsFolder() const { return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }
    [[nodiscard]] bool IsLink() const { return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0; }
};

// A call that would change something.
enum class Change { Attributes, Delete, Move, Copy, CreateFolder, RemoveFolder };

class FilesInMemory {
  public:
    FilesInMemory();
    virtual ~FilesInMemory();
    FilesInMemory(const FilesInMemory&) = delete;
    FilesInMemory& operator=(const FilesInMemory&) = delete;

    void AddFile(const std::wstring& path, int content, DWORD written, DWORD attributes);
    // Where nothing stands yet and the folder above does.
    void AddFolder(const std::wstring& path, DWORD furtherAttributes = 0);

    // Null where nothing stands.
    [[nodiscard]] const FileInMemory* Find(const std::wstring& path) const;
    // By folded path.
    [[nodiscard]] const std::map<std::wstring, FileInMemory>& All() const { return files_; }
    [[nodiscard]] static std::wstring Folded(std::wstring path);

    int openListings = 0;

  protected:
    // The error with which the call is to fail, 0 for none: the one that it has of itself, or another one.
    // The second path is empty for calls with one.
    virtual DWORD Judge(Change change, const std::wstring& path, const std::wstring& target, DWORD error) = 0;

  private:
    struct Listing;

    FileInMemory* Lookup(const std::wstring& path);
    bool HasFolderAbove(const std::wstring& path) const;
    bool HasEntries(const std::wstring& path) const;
    BOOL Try(Change change, const std::wstring& path, const std::wstring& target, DWORD error);
    DWORD ErrorOfCopy(const std::wstring& from, const std::wstring& to) const;
    DWORD ErrorOfMove(const std::wstring& from, const std::wstring& to) const;

    static HANDLE Start(const wchar_t* pattern, WIN32_FIND_DATAW* data);
    static BOOL Next(HANDLE search, WIN32_FIND_DATAW* data);
    static BOOL End(HANDLE search);
    static DWORD Attributes(const wchar_t* path);
    static BOOL SetAttributes(const wchar_t* path, DWORD attributes);
    static BOOL Delete(const wchar_t* path);
    static BOOL Move(const wchar_t* from, const wchar_t* to);
    static BOOL Copy(const wchar_t* from, const wchar_t* to, BOOL failIfExists);
    static BOOL CreateFolder(const wchar_t* path, SECURITY_ATTRIBUTES* security);
    static BOOL RemoveFolder(const wchar_t* path);
    static bool IsFolderLink(const wchar_t* path);

    FileInMemory root_{L"\\", FILE_ATTRIBUTE_DIRECTORY};
    std::map<std::wstring, FileInMemory> files_;
    ce::FileCalls before_;
};
