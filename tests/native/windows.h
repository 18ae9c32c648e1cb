#pragma once

// The few records and calls of the system that the rules need, for the build on this machine. wchar_t is
// wider here than on the target; the rules keep to units up to 0xFFFF.

#include <cstdarg>
#include <cstdint>
#include <cwchar>

#define MAX_PATH 260

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using UINT = std::uint32_t;
using BOOL = int;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using HANDLE = void*;
using HINSTANCE = struct HINSTANCE__*;
using HMODULE = HINSTANCE;
using HWND = struct HWND__*;

struct FILETIME {
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};
struct SYSTEMTIME {
    WORD wYear, wMonth, wDayOfWeek, wDay, wHour, wMinute, wSecond, wMilliseconds;
};
struct RECT {
    LONG left, top, right, bottom;
};
struct POINT {
    LONG x, y;
};
struct SIZE {
    LONG cx, cy;
};

#define FILE_ATTRIBUTE_DIRECTORY 0x10

struct WIN32_FIND_DATAW {
    DWORD dwFileAttributes;
    FILETIME ftCreationTime;
    FILETIME ftLastAccessTime;
    FILETIME ftLastWriteTime;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    DWORD dwReserved0;
    DWORD dwReserved1;
    wchar_t cFileName[MAX_PATH];
    wchar_t cAlternateFileName[14];
};

inline LONG CompareFileTime(const FILETIME* first, const FILETIME* second) {
    const std::uint64_t a = std::uint64_t{first->dwHighDateTime} << 32 | first->dwLowDateTime;
    const std::uint64_t b = std::uint64_t{second->dwHighDateTime} << 32 | second->dwLowDateTime;
    return a < b ? -1 : a > b ? 1 : 0;
}

inline int _vsnwprintf(wchar_t* text, std::size_t capacity, const wchar_t* format, std::va_list arguments) {
    return std::vswprintf(text, capacity, format, arguments);
}

#define LOCALE_SYSTEM_DEFAULT 0x0800

// Writes the number with two digits for each of the letters that the picture can hold, and quoted text as it
// stands: enough for pictures like yy'/'MM'/'dd. Returns the length with the terminator, 0 when it does not
// fit.
inline int FormatByPicture(const SYSTEMTIME& time, const wchar_t* picture, wchar_t* text, int capacity) {
    int length = 0;
    const auto put = [&](wchar_t unit) {
        if (length < capacity) text[length] = unit;
        ++length;
    };
    const auto put2 = [&](int number) {
        put(static_cast<wchar_t>(L'0' + number / 10 % 10));
        put(static_cast<wchar_t>(L'0' + number % 10));
    };
    while (*picture != L'\0') {
        if (*picture == L'\'') {
            for (++picture; *picture != L'\''; ++picture)
                put(*picture);
            ++picture;
            continue;
        }
        switch (*picture) {
            case L'y':
                put2(time.wYear % 100);
                break;
            case L'M':
                put2(time.wMonth);
                break;
            case L'd':
                put2(time.wDay);
                break;
            case L'H':
                put2(time.wHour);
                break;
            case L'm':
                put2(time.wMinute);
                break;
            default:
                put2(time.wSecond);
                break;
        }
        picture += 2;
    }
    put(L'\0');
    return length <= capacity ? length : 0;
}

inline int GetDateFormatW(DWORD, DWORD, const SYSTEMTIME* time, const wchar_t* picture, wchar_t* text,
                          int capacity) {
    if (time->wMonth < 1 || time->wMonth > 12 || time->wDay < 1 || time->wDay > 31) return 0;
    return FormatByPicture(*time, picture, text, capacity);
}
inline int GetTimeFormatW(DWORD, DWORD, const SYSTEMTIME* time, const wchar_t* picture, wchar_t* text,
                          int capacity) {
    if (time->wHour > 23 || time->wMinute > 59 || time->wSecond > 59 || time->wMilliseconds > 999) return 0;
    return FormatByPicture(*time, picture, text, capacity);
}
