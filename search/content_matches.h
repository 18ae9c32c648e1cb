#pragma once

// The last and most expensive test of an entry: whether the file holds the content string.

#include <cstdio>

#include "platform/system_types.h"
#include "search/line_readers.h"
#include "search/search_conditions.h"

// To be asked only with ContentString set. False for a folder, and for a file that cannot be opened (locked,
// vanished, no rights); a read error counts as the file's end. Pumps no message.
[[nodiscard]] bool ContentMatches(const SearchConditions& conditions, const wchar_t* fullPath,
                                  const WIN32_FIND_DATAW& entry);

// The bytes of a file on a disk, which is open as long as its source lives.
class FileByteSource final : public ByteSource {
  public:
    explicit FileByteSource(const wchar_t* path);
    FileByteSource(const FileByteSource&) = delete;
    FileByteSource& operator=(const FileByteSource&) = delete;
    ~FileByteSource() override;

    // False if the file could not be opened; there are no bytes then.
    [[nodiscard]] bool IsOpen() const { return file_ != nullptr; }

    std::size_t Fill(unsigned char* block, std::size_t size) override;

    // Begins again at the file's beginning.
    void Rewind();

  private:
    std::FILE* file_;
    bool ended_;
};
