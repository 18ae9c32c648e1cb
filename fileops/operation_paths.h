#pragma once

// How the operations work with the texts of paths.

#include <cstddef>

#include "platform/system_types.h"

using PathBuffer = wchar_t[MAX_PATH];

[[nodiscard]] bool IsSeparator(wchar_t unit);

// A path that is longer by a name for as long as this object lives. A walk keeps one buffer for each of its
// paths whatever its depth; a buffer per level would not fit on the stack of a deep tree.
class PathExtension {
  public:
    // The name may not lie in the path.
    PathExtension(PathBuffer& path, const wchar_t* name);
    ~PathExtension();
    PathExtension(const PathExtension&) = delete;
    PathExtension& operator=(const PathExtension&) = delete;

    // False when there is no room for the name, or the name is none of a file (as "b:x"); the path is then as
    // it was.
    [[nodiscard]] bool Fits() const { return fits_; }

    // Longer by the last name of another path.
    [[nodiscard]] static PathExtension ByNameOf(const wchar_t* other, PathBuffer& path);
    // Not longer at all.
    [[nodiscard]] static PathExtension ByNothing(PathBuffer& path);

  private:
    explicit PathExtension(PathBuffer& path);

    PathBuffer& extended_;
    std::size_t length_;
    bool fits_ = true;
};

// The overlap test that keeps a folder from being copied into itself: whether the source already lies in the
// destination folder, or the destination is the source or lies inside it. By the texts of the two paths, in
// any letter case, as the file system compares names. "\a" does not hold "\ab".
[[nodiscard]] bool IsInsideSource(const wchar_t* source, const wchar_t* destination);
