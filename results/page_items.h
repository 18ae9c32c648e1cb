#pragma once

// What the pages of the properties sheet share.

#include "platform/windows_ce.h"

// Puts the icon into the page's icon static. Null leaves the static empty.
void ShowIcon(HWND page, HICON icon);

// Frees what ShowIcon put there, at the end of the page: a static does not.
void FreeIcon(HWND page);

// The directory record of the path itself; false when nothing is found.
[[nodiscard]] bool FindFile(const wchar_t* path, WIN32_FIND_DATAW& data);
