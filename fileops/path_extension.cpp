#include "fileops/path_extension.h"

#include <cwchar>

#include "base/join_path.h"
#include "base/split_path.h"

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
