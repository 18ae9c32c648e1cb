#pragma once

// Reads a list view back and makes entries for it.

#include <string>
#include <vector>

#include "platform/windows_ce.h"
#include "results/result_column.h"

[[nodiscard]] std::wstring CellOf(HWND list, int row, ResultColumn column);
// All five, in column order.
[[nodiscard]] std::vector<std::wstring> CellsOf(HWND list, int row);
[[nodiscard]] LPARAM RowNumberOf(HWND list, int row);
[[nodiscard]] bool IsRowSelected(HWND list, int row);

// A file of this size, written at 2002-07-15 00:05:30 UTC.
[[nodiscard]] WIN32_FIND_DATAW FileEntry(const std::wstring& name, DWORD size = 0);
[[nodiscard]] WIN32_FIND_DATAW FolderEntry(const std::wstring& name);
[[nodiscard]] FILETIME FileTimeOf(WORD year, WORD month, WORD day, WORD hour, WORD minute, WORD second);
