#pragma once

// Paths as the operations use them: extended by a name, shortened again, and compared.

#include <cstddef>

#include "platform/system_types.h"

using PathBuffer = wchar_t[MAX_PATH];

[[nodiscard]] bool IsSeparator(wchar_t unit);

// Extends a path by a name for as long as this object lives. A walk needs one buffer for each of its paths,
// whatever its depth; a buffer per level would overflow the stack in a deep tree.
class PathExtension {
  public:
    // The name must not be part of the path's own buffer.
    PathExtension(PathBuffer& path, const wchar_t* name);
    ~PathExtension();
    PathExtension(const PathExtension&) = delete;
    PathExtension& operator=(const PathExtension&) = delete;

    // False if the name does not fit or is no file's name (such as "b:x"); the path is then unchanged.
    [[nodiscard]] bool Fits() const { return fits_; }

    // Extends it by the last name of another path.
    [[nodiscard]] static PathExtension ByNameOf(const wchar_t* other, PathBuffer& path);
    // Does not extend it.
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
