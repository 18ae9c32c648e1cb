#pragma once

// One registry key at a time below a root, closed by the destructor; and reading and writing of single DWORD
// values.

#include "platform/handles.h"
#include "platform/windows_ce.h"

class RegistryKey {
  public:
    explicit RegistryKey(HKEY rootKey) : root_(rootKey) {}

    // Returns false if the key cannot be opened or created. A key that is still open is closed first.
    bool Open(const wchar_t* path);
    bool Create(const wchar_t* path);
    void Close() { key_.Reset(); }

    // Reads a text value; sizeInBytes is the size of the buffer, at least one unit. A value that cannot be
    // read or does not fit leaves an empty text, and false is returned. Values of text types are terminated
    // if there is room; others are left as they were read.
    bool QueryString(const wchar_t* name, wchar_t* buffer, DWORD sizeInBytes) const;

    [[nodiscard]] HKEY Handle() const { return key_.Get(); }

  private:
    HKEY root_;
    UniqueKey key_;
};

// Both return the registry's error code, 0 for success. A value of another type or size is read as far as it
// fits in a DWORD.
LONG ReadRegistryDword(HKEY root, const wchar_t* path, const wchar_t* name, DWORD& value);
LONG WriteRegistryDword(HKEY root, const wchar_t* path, const wchar_t* name, DWORD value);
