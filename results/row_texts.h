#pragma once

// What the cells of a row show.

#include "platform/system_types.h"

// Room for any of the texts below.
constexpr int RowTextCapacity = 256;

// The low 32 bits of a size, taken as a signed number: whole megabytes from 1,048,576, whole
// kilobytes from 1,024, else bytes ("5M", "12K", "517"). Truncates, never rounds.
void FormatResultSize(DWORD lowSize, wchar_t (&text)[RowTextCapacity]);

// The folder of a result's full path: "\" for what lies in the root, empty without a separator, and never a
// trailing backslash otherwise.
void FolderOfResult(const wchar_t* fullPath, wchar_t (&folder)[MAX_PATH]);

// A local time as "yy/MM/dd HH:mm:ss", the same in both languages.
void FormatResultTime(const SYSTEMTIME& local, wchar_t (&text)[2 * RowTextCapacity]);
