#pragma once

// The registry as Windows CE keeps it.

#include "platform/system_types.h"

namespace ce {

// The access mask is not enforced there: retried for reading only when the system refuses it.
LONG RegOpenKeyExW(HKEY root, const wchar_t* path, DWORD options, REGSAM access, HKEY* key);

LONG RegCreateKeyExW(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* className, DWORD options,
                     REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* key, DWORD* disposition);

// The value "Default" is the key's own, unnamed value where the key has none of that name.
LONG RegQueryValueExW(HKEY key, const wchar_t* name, DWORD* reserved, DWORD* type, BYTE* data, DWORD* size);

// Takes the sub-keys along.
LONG RegDeleteKeyW(HKEY root, const wchar_t* path);

}  // namespace ce
