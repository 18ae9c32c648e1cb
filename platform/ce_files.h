#pragma once

// Files and folders as Windows CE shows them. Every call goes through `FileCalls`, so that a test can make
// any of them fail with any code. A path is taken unit by unit: a name may end in a dot or a space, and no
// name is a device (LiteralPath).

#include <cstddef>
#include <cstdio>

#include "platform/system_types.h"

namespace ce {

struct FileCalls {
    HANDLE (*findFirstFile)(const wchar_t* pattern, WIN32_FIND_DATAW* data);
    BOOL (*findNextFile)(HANDLE search, WIN32_FIND_DATAW* data);
    BOOL (*findClose)(HANDLE search);
    std::FILE* (*openForReading)(const wchar_t* path);
    DWORD (*getFileAttributes)(const wchar_t* path);
    BOOL (*setFileAttributes)(const wchar_t* path, DWORD attributes);
    BOOL (*deleteFile)(const wchar_t* path);
    BOOL (*moveFile)(const wchar_t* from, const wchar_t* to);
    BOOL (*copyFile)(const wchar_t* from, const wchar_t* to, BOOL failIfExists);
    BOOL (*createDirectory)(const wchar_t* path, SECURITY_ATTRIBUTES* security);
    BOOL (*removeDirectory)(const wchar_t* path);
    bool (*isFolderLink)(const wchar_t* path);
};

// The calls in force; a test changes them through tests/support and puts them back.
extern FileCalls fileCalls;

// Enumerates the folder part of the pattern whole and matches names by their own text (MatchesWildcard);
// "." and ".." never appear, and a folder in which nothing matches answers INVALID_HANDLE_VALUE with
// ERROR_FILE_NOT_FOUND, a missing folder with ERROR_PATH_NOT_FOUND. A pattern without wildcards, the path of
// one file or folder, answers just that one. The handle is for ce::FindNextFileW and ce::FindClose only.
inline HANDLE FindFirstFileW(const wchar_t* pattern, WIN32_FIND_DATAW* data) {
    return fileCalls.findFirstFile(pattern, data);
}
inline BOOL FindNextFileW(HANDLE search, WIN32_FIND_DATAW* data) {
    return fileCalls.findNextFile(search, data);
}
inline BOOL FindClose(HANDLE search) {
    return fileCalls.findClose(search);
}

// _wfopen(path, L"rb"); null when it cannot be opened, and for what is no file on a disk. Others may go on
// reading, writing and deleting it.
inline std::FILE* OpenForReading(const wchar_t* path) {
    return fileCalls.openForReading(path);
}

// One read of the system, past the C library's buffer: how many bytes were written to the block, 0 at the end
// and for a read error. A read of a file on a disk that comes short is the last.
std::size_t ReadBlock(std::FILE* file, unsigned char* block, std::size_t size);

inline DWORD GetFileAttributesW(const wchar_t* path) {
    return fileCalls.getFileAttributes(path);
}
inline BOOL SetFileAttributesW(const wchar_t* path, DWORD attributes) {
    return fileCalls.setFileAttributes(path, attributes);
}
inline BOOL DeleteFileW(const wchar_t* path) {
    return fileCalls.deleteFile(path);
}
inline BOOL MoveFileW(const wchar_t* from, const wchar_t* to) {
    return fileCalls.moveFile(from, to);
}
inline BOOL CopyFileW(const wchar_t* from, const wchar_t* to, BOOL failIfExists) {
    return fileCalls.copyFile(from, to, failIfExists);
}
inline BOOL CreateDirectoryW(const wchar_t* path, SECURITY_ATTRIBUTES* security) {
    return fileCalls.createDirectory(path, security);
}
inline BOOL RemoveDirectoryW(const wchar_t* path) {
    return fileCalls.removeDirectory(path);
}

// Whether the folder at the path, listed as `entry`, is a link to one that stands elsewhere. A walk that
// entered it would find things twice, or never end. Windows CE knows no links; a volume mounted in a folder
// is none.
inline bool IsFolderLink(const wchar_t* path, const WIN32_FIND_DATAW& entry) {
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && fileCalls.isFolderLink(path);
}

// Whether both paths lead to one and the same file, however they are spelled and whatever links are on the
// way. False when either cannot be opened.
[[nodiscard]] bool IsSameFile(const wchar_t* first, const wchar_t* second);

}  // namespace ce
