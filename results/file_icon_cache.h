#pragma once

// The two shared image lists of the results, large and small, with the same icons at the same indexes, and
// which icon belongs to which file. Each application, each icon file and each file type is asked for its icon
// once. The first object builds the lists, the last one frees them.

#include "platform/windows_ce.h"

class FileTypeTable;

class FileIconCache {
  public:
    // Which kinds of icon may be loaded if they are missing. The highest bit of the last stands for no kind.
    static constexpr unsigned Applications = 1;
    static constexpr unsigned IconFiles = 2;
    static constexpr unsigned RegisteredTypes = 4;
    static constexpr unsigned AllKinds = 15;

    // The fixed images.
    static constexpr int DocumentImage = 0;
    static constexpr int ApplicationImage = 1;
    static constexpr int FolderImage = 2;
    static constexpr int ShortcutMarkImage = 3;

    FileIconCache();
    ~FileIconCache();
    FileIconCache(const FileIconCache&) = delete;
    FileIconCache& operator=(const FileIconCache&) = delete;

    // Empties the lists and the map and loads the fixed images.
    void Fill();

    // The image index of a file: a folder's is fixed, an application's and an icon file's are its own, any
    // other file's is that of its registered type.
    [[nodiscard]] int ImageOf(const wchar_t* path, DWORD attributes, unsigned kinds);

    [[nodiscard]] HIMAGELIST LargeImages() const;
    [[nodiscard]] HIMAGELIST SmallImages() const;
    // Null if there was no memory for it.
    [[nodiscard]] const FileTypeTable* Types() const;

  private:
    struct Shared;

    static Shared* shared;
    static int liveObjects;
};
