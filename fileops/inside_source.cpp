#include "fileops/inside_source.h"

#include <cwchar>

#include "platform/name_wildcard.h"
#include "base/split_path.h"

bool IsInsideSource(const wchar_t* source, const wchar_t* destination) {
    const PathParts parts = SplitPath(source);
    const std::size_t folderLength = std::wcslen(parts.folder);
    const std::size_t destinationLength = std::wcslen(destination);
    if (destinationLength == folderLength && NamesTheSame(parts.folder, destination, folderLength))
        return true;

    const std::size_t sourceLength = std::wcslen(source);
    if (destinationLength < sourceLength || !NamesTheSame(destination, source, sourceLength)) return false;
    const wchar_t following = destination[sourceLength];
    return following == L'\0' || following == L'\\' || following == L'/';
}
