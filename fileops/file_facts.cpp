#include "fileops/file_facts.h"

#include "platform/handles.h"
#include "platform/windows_ce.h"

bool HasAttribute(const wchar_t* path, DWORD attribute) {
    const DWORD attributes = ce::GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

PathKind KindOf(const wchar_t* path) {
    WIN32_FIND_DATAW entry{};
    entry.dwFileAttributes = ce::GetFileAttributesW(path);
    if (entry.dwFileAttributes == INVALID_FILE_ATTRIBUTES) return PathKind::Nothing;
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return PathKind::File;
    return ce::IsFolderLink(path, entry) ? PathKind::LinkToFolder : PathKind::Folder;
}

bool PathExists(const wchar_t* path) {
    return ce::GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

bool IsFolder(const wchar_t* path) {
    return HasAttribute(path, FILE_ATTRIBUTE_DIRECTORY);
}

bool FindFile(const wchar_t* path, WIN32_FIND_DATAW& data) {
    return bool{UniqueFind(ce::FindFirstFileW(path, &data))};
}
