#pragma once

// The file-system calls that change something, with every failure put into the program's own words. If the
// call fails, each shows exactly one box, owned by the given window, and returns false; nothing is retried.

#include "platform/system_types.h"

bool DeleteFileOrReport(HWND owner, const wchar_t* path);
bool MoveFileOrReport(HWND owner, const wchar_t* from, const wchar_t* to);
bool CopyFileOrReport(HWND owner, const wchar_t* from, const wchar_t* to, bool failIfExists);
bool CreateDirectoryOrReport(HWND owner, const wchar_t* path, SECURITY_ATTRIBUTES* security);
bool SetAttributesOrReport(HWND owner, const wchar_t* path, DWORD attributes);
bool RemoveDirectoryOrReport(HWND owner, const wchar_t* path);

// Creates what is missing of the path. A folder that cannot be created is reported in one box, owned by the
// window, and false is returned. If a file is in the way, or the path has no separator, false is returned
// without a box.
[[nodiscard]] bool CreateFolderPath(HWND owner, const wchar_t* path);
