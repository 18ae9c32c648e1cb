#include "fileops/inside_source.h"

#include <cwchar>

#include "search/split_path.h"

bool IsInsideSource(const wchar_t* source, const wchar_t* destination) {
    const PathParts parts = SplitPath(source);
    const std::size_t folderLength = std::wcslen(parts.folder);
    if (std::wcslen(destination) == folderLength && _wcsnicmp(parts.folder, destination, folderLength) == 0)
        return true;

    const std::size_t sourceLength = std::wcslen(source);
    if (_wcsnicmp(destination, source, sourceLength) != 0) return false;
    const wchar_t following = destination[sourceLength];
    return following == L'\0' || following == L'\\' || following == L'/';
}
