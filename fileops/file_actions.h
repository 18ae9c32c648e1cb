#pragma once

// The file-system calls that change something, with every failure put into the program's own words. Each
// shows exactly one box, owned by the given window, when the call fails, and answers false; nothing is
// retried.

#include "platform/system_types.h"

bool DeleteFileOrReport(HWND owner, const wchar_t* path);
bool MoveFileOrReport(HWND owner, const wchar_t* from, const wchar_t* to);
bool CopyFileOrReport(HWND owner, const wchar_t* from, const wchar_t* to, bool failIfExists);
bool CreateDirectoryOrReport(HWND owner, const wchar_t* path, SECURITY_ATTRIBUTES* security);
bool SetAttributesOrReport(HWND owner, const wchar_t* path, DWORD attributes);
bool RemoveDirectoryOrReport(HWND owner, const wchar_t* path);

// Makes what is missing of the path. A folder that cannot be made is reported in one box, owned by the
// window, and the answer is false; so it is, without a word, where a file stands in the way and for a path
// without a separator.
[[nodiscard]] bool CreateFolderPath(HWND owner, const wchar_t* path);
