#pragma once

// The last and most expensive test of an entry: whether the file holds the content string.

#include "platform/handles.h"
#include "search/line_readers.h"
#include "search/search_conditions.h"

// To be asked only with ContentString set. False for a folder, and for a file that cannot be opened (locked,
// vanished, no rights); a read error counts as the file's end. Pumps no message.
[[nodiscard]] bool ContentMatches(const SearchConditions& conditions, const wchar_t* fullPath,
                                  const WIN32_FIND_DATAW& entry);

// The bytes of a file on disk, which stays open as long as this object lives.
class FileByteSource final : public ByteSource {
  public:
    explicit FileByteSource(const wchar_t* path);

    // False if the file could not be opened; it then has no bytes.
    [[nodiscard]] bool IsOpen() const { return static_cast<bool>(file_); }

    std::size_t Fill(unsigned char* block, std::size_t size) override;

    // Goes back to the beginning of the file.
    void Rewind();

  private:
    UniqueStream file_;
    bool ended_;
};
