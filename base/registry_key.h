#pragma once

// One registry key at a time under a root, closed by itself, and the one-shot access to DWORD values.

#include "platform/handles.h"
#include "platform/windows_ce.h"

class RegistryKey {
  public:
    explicit RegistryKey(HKEY rootKey) : root_(rootKey) {}

    // False when it cannot be opened or created. A key that is still open is closed first.
    bool Open(const wchar_t* path);
    bool Create(const wchar_t* path);
    void Close() { key_.Reset(); }

    // Reads a text value; sizeInBytes is the buffer's, of one unit at least. A value that cannot be read or
    // does not fit leaves an empty text and answers false. Text types are terminated where there is room for
    // it; others are left as read.
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
