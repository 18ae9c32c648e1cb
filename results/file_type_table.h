#pragma once

// The registered file types, read from the registry once and shared: the first object builds the table, the
// last one frees it. Extensions registered in between are not seen.

#include <memory>
#include <vector>

#include "results/file_type_info.h"
#include "results/string_hash_table.h"

class FileTypeTable {
  public:
    FileTypeTable();
    ~FileTypeTable();
    FileTypeTable(const FileTypeTable&) = delete;
    FileTypeTable& operator=(const FileTypeTable&) = delete;

    // The records in the order in which they were made.
    [[nodiscard]] int Count() const;
    [[nodiscard]] const FileTypeInfo& At(int index) const;

    // The type key of the path's extension (from the last "."); empty for an unknown one.
    [[nodiscard]] const wchar_t* TypeKeyOf(const wchar_t* path) const;

  private:
    struct Shared;

    static void Build(Shared& table);
    static void AddExtension(Shared& table, const wchar_t* extension);

    static Shared* shared;
    static int liveObjects;
};
