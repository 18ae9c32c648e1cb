#pragma once

// The shell's names for kinds of files ("Text Document"), each asked for once: a question costs more than the
// whole rest of a row.

#include <string>
#include <unordered_map>

#include "platform/system_types.h"

class FileTypeTable;

class TypeNames {
  public:
    // The types tell which extensions are of one kind; they outlive this object. Null for each on its own.
    explicit TypeNames(const FileTypeTable* fileTypes = nullptr) : types(fileTypes) {}
    void UseTypes(const FileTypeTable* fileTypes) { types = fileTypes; }

    // The type name of the file at this path, empty for some types. Empty, and asked for
    // again next time, where the shell has no answer. The text lives until the next call.
    [[nodiscard]] const wchar_t* Of(const wchar_t* fullPath, DWORD attributes);

  private:
    [[nodiscard]] std::wstring KeyOf(const wchar_t* fullPath, DWORD attributes) const;

    const FileTypeTable* types;
    std::unordered_map<std::wstring, std::wstring> names;  // by what KeyOf makes of a path
};
