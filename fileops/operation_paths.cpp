#include "fileops/operation_paths.h"

#include <cwchar>

#include "base/paths.h"
#include "platform/name_wildcard.h"

bool IsSeparator(wchar_t unit) {
    return unit == L'\\' || unit == L'/';
}

PathExtension::PathExtension(PathBuffer& path) : extended_(path), length_(std::wcslen(path)) {}

PathExtension::PathExtension(PathBuffer& path, const wchar_t* name) : PathExtension(path) {
    const wchar_t firstUnit = path[0];
    // A name that starts like a drive would be joined without a separator, to the path of something else.
    const bool startsLikeDrive = name[0] != L'\0' && name[1] == L':';
    fits_ = !startsLikeDrive && JoinPath(path, path, name);
    // A path that does not fit is emptied.
    if (!fits_) path[0] = firstUnit;
}

PathExtension::~PathExtension() {
    extended_[length_] = L'\0';
}

PathExtension PathExtension::ByNameOf(const wchar_t* other, PathBuffer& path) {
    return PathExtension(path, SplitPath(other).name);
}

PathExtension PathExtension::ByNothing(PathBuffer& path) {
    return PathExtension(path);
}

bool IsInsideSource(const wchar_t* source, const wchar_t* destination) {
    const PathParts parts = SplitPath(source);
    const std::size_t folderLength = std::wcslen(parts.folder);
    const std::size_t destinationLength = std::wcslen(destination);
    if (destinationLength == folderLength && NamesTheSame(parts.folder, destination, folderLength))
        return true;

    const std::size_t sourceLength = std::wcslen(source);
    if (destinationLength < sourceLength || !NamesTheSame(destination, source, sourceLength)) return false;
    // A root ends in its separator, and everything on the device is inside it.
    if (sourceLength > 0 && IsSeparator(source[sourceLength - 1])) return true;
    const wchar_t following = destination[sourceLength];
    return following == L'\0' || IsSeparator(following);
}
