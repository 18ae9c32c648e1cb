#pragma once

// The handheld's enumeration of a folder on the desktop's own: the folder is listed whole and names are
// matched here, since the desktop also matches the short names that it keeps beside the long ones.

#include "platform/system_types.h"

// As ce::FindFirstFileW, ce::FindNextFileW and ce::FindClose.
[[nodiscard]] HANDLE StartListing(const wchar_t* pattern, WIN32_FIND_DATAW* data);
[[nodiscard]] BOOL NextOfListing(HANDLE search, WIN32_FIND_DATAW* data);
BOOL EndListing(HANDLE search);
