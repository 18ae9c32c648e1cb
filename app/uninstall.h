#pragma once

// The registry work of an uninstall.

#include "platform/windows_ce.h"

// Whether the key can be opened and has a sub-key.
[[nodiscard]] bool HasSubKey(HKEY root, const wchar_t* path);

// Removes the key with all its sub-keys. Returns the registry's error code, except that a wrong parameter
// counts as success.
LONG DeleteRegistryKey(HKEY root, const wchar_t* path);

// Removes the product's key and then the maker's, where no other product keeps a key under it. False when the
// product's key cannot be removed; the maker's is then left alone.
[[nodiscard]] bool RemoveRegistryKeys(HKEY root, const wchar_t* makerKey, const wchar_t* productKey);
