#pragma once

// The system as the fuzzer makes it up: what the native tests have of it, and the calls of the sources that
// are compiled for the fuzzer besides. Stands before the tests' own where includes are looked for.

#include <climits>

#include "tests/native/windows.h"

// Of the system's LONG, which is narrower than this machine's.
#undef LONG_MAX
#define LONG_MAX INT_MAX

#define WINAPI
#define FALSE 0
#define TRUE 1

// Code pages (made_up_code_page.h).
#define WC_NO_BEST_FIT_CHARS 0x00000400
#define MB_ERR_INVALID_CHARS 0x00000008

int WideCharToMultiByte(UINT codePage, DWORD flags, const wchar_t* units, int unitCount, char* bytes,
                        int byteCount, const char* unknown, BOOL* replaced);
int MultiByteToWideChar(UINT codePage, DWORD flags, const char* bytes, int byteCount, wchar_t* units,
                        int unitCount);

using HKEY = struct MadeUpKey*;
using REGSAM = DWORD;
struct SECURITY_ATTRIBUTES;

using INT_PTR = std::intptr_t;
using DWORD_PTR = std::uintptr_t;

#define FILE_ATTRIBUTE_READONLY 0x1
#define FILE_ATTRIBUTE_ARCHIVE 0x20
#define FILE_ATTRIBUTE_NORMAL 0x80
#define FILE_ATTRIBUTE_REPARSE_POINT 0x400
#define INVALID_FILE_ATTRIBUTES 0xFFFFFFFF
#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(-1))

#define ERROR_SUCCESS 0
#define ERROR_FILE_NOT_FOUND 2
#define ERROR_PATH_NOT_FOUND 3
#define ERROR_ACCESS_DENIED 5
#define ERROR_NO_MORE_FILES 18
#define ERROR_CRC 23
#define ERROR_SHARING_VIOLATION 32
#define ERROR_INVALID_PARAMETER 87
#define ERROR_DISK_FULL 112
#define ERROR_DIR_NOT_EMPTY 145
#define ERROR_ALREADY_EXISTS 183
#define ERROR_MORE_DATA 234
#define ERROR_USER_MAPPED_FILE 1224

using LANGID = WORD;
using ULONGLONG = std::uint64_t;
using FARPROC = INT_PTR (*)();

// The clock (made_up_clock.h).
BOOL SystemTimeToFileTime(const SYSTEMTIME* moment, FILETIME* time);

DWORD GetLastError();
void SetLastError(DWORD error);

// The registry (made_up_registry.h).
#define KEY_READ 0x20019
#define KEY_ALL_ACCESS 0xF003F
#define REG_NONE 0
#define REG_SZ 1
#define REG_EXPAND_SZ 2
#define REG_BINARY 3
#define REG_DWORD 4
#define REG_MULTI_SZ 7

LONG RegOpenKeyExW(HKEY root, const wchar_t* path, DWORD options, REGSAM access, HKEY* key);
LONG RegCreateKeyExW(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* className, DWORD options,
                     REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* key, DWORD* disposition);
LONG RegQueryValueExW(HKEY key, const wchar_t* name, DWORD* reserved, DWORD* type, BYTE* data, DWORD* size);
LONG RegSetValueExW(HKEY key, const wchar_t* name, DWORD reserved, DWORD type, const BYTE* data, DWORD size);
LONG RegDeleteTreeW(HKEY root, const wchar_t* path);
LONG RegCloseKey(HKEY key);
int lstrcmpiW(const wchar_t* first, const wchar_t* second);

// Windows, of which there are none.
#define WM_CLOSE 0x0010
#define WM_KEYDOWN 0x0100
#define WM_COMMAND 0x0111
#define WA_INACTIVE 0
#define IDCANCEL 2
#define VK_RETURN 0x0D
#define VK_ESCAPE 0x1B
#define KF_REPEAT 0x4000
#define SW_SHOWNORMAL 1
#define LOWORD(word) (static_cast<WORD>(word))
#define HIWORD(word) (static_cast<WORD>((word) >> 16))

inline BOOL ShowWindow(HWND, int) {
    return TRUE;
}
inline BOOL UpdateWindow(HWND) {
    return TRUE;
}
inline BOOL EnableWindow(HWND, BOOL) {
    return FALSE;
}
inline BOOL SetWindowTextW(HWND, const wchar_t*) {
    return TRUE;
}
inline BOOL SetDlgItemTextW(HWND, int, const wchar_t*) {
    return TRUE;
}
inline BOOL PostMessageW(HWND, UINT, WPARAM, LPARAM) {
    return TRUE;
}

// Places and fonts of made-up dialogs (made_up_dialog.h).
#define GWL_STYLE (-16)
#define SWP_NOZORDER 0x0004
#define SWP_NOACTIVATE 0x0010
#define SS_ICON 0x03
#define SS_TYPEMASK 0x1F
#define SS_ELLIPSISMASK 0xC000
#define SS_ENDELLIPSIS 0x4000
#define BS_GROUPBOX 0x07
#define BS_TYPEMASK 0x0F
#define FW_NORMAL 400
#define FW_BOLD 700

using HFONT = struct MadeUpFont*;
struct LOGFONTW {
    LONG lfHeight;
    LONG lfWeight;
};

HFONT CreateFontIndirectW(const LOGFONTW* description);
void DeleteFont(HFONT font);
int GetObjectW(HFONT font, int size, void* description);
HWND GetDlgItem(HWND dialog, int id);
BOOL GetWindowRect(HWND window, RECT* place);
BOOL SetWindowPos(HWND window, HWND before, int x, int y, int width, int height, UINT flags);
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaints);
LONG GetWindowLongW(HWND window, int index);

// Seconds since 1980, whose days are taken for a day of January each: the order is all that counts.
inline BOOL FileTimeToSystemTime(const FILETIME* time, SYSTEMTIME* moment) {
    const DWORD seconds = time->dwLowDateTime;
    *moment = {};
    moment->wYear = 1980;
    moment->wMonth = 1;
    moment->wDay = static_cast<WORD>(1 + seconds / 86400 % 31);
    moment->wHour = static_cast<WORD>(seconds / 3600 % 24);
    moment->wMinute = static_cast<WORD>(seconds / 60 % 60);
    moment->wSecond = static_cast<WORD>(seconds % 60);
    return TRUE;
}
