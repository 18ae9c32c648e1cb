#pragma once

// The system's calls that can fail, as the program imports them: what each answers then, and with which
// codes. Left out are calls that only ask for what is there, those that fail for nothing but a wrong
// argument, and those without which no window could be closed.

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace probe {

constexpr std::size_t MostCodes = 8;

struct RefusableCall {
    enum Way {
        TellsByLastError,  // answers `answer`, the code is the last error
        AnswersCode,       // the code is its answer
    };
    const char* name;
    Way way;
    long long answer;
    // Ended by the first 0 behind the first one, which may be 0.
    std::array<DWORD, MostCodes> codes;

    [[nodiscard]] constexpr std::size_t CodeCount() const {
        std::size_t count = 1;
        while (count < MostCodes && codes[count] != 0)
            ++count;
        return count;
    }
};

constexpr const char* AnyWindow = "(any window)";

// A disk that is full, damaged, write-protected, not ready or gone; a file that others use or nobody may
// touch.
constexpr RefusableCall RefusableCalls[] = {
    // The registry.
    {"RegOpenKeyExW", RefusableCall::AnswersCode, 0, {2, 5, 8, 1018}},
    {"RegCreateKeyExW", RefusableCall::AnswersCode, 0, {5, 8, 112, 1018}},
    {"RegQueryValueExW", RefusableCall::AnswersCode, 0, {2, 5, 8, 234}},
    {"RegSetValueExW", RefusableCall::AnswersCode, 0, {5, 8, 112, 1018}},
    {"RegEnumKeyExW", RefusableCall::AnswersCode, 0, {5, 8, 234, 259}},
    {"RegDeleteTreeW", RefusableCall::AnswersCode, 0, {2, 5, 8, 1018}},
    // Files and folders.
    {"CreateFileW", RefusableCall::TellsByLastError, -1, {5, 2, 3, 8, 19, 21, 23, 32}},
    {"GetFileAttributesW", RefusableCall::TellsByLastError, -1, {5, 2, 3, 8, 21, 23, 32}},
    {"SetFileAttributesW", RefusableCall::TellsByLastError, 0, {5, 2, 3, 8, 19, 21, 32, 112}},
    {"DeleteFileW", RefusableCall::TellsByLastError, 0, {5, 2, 3, 19, 21, 23, 32, 112}},
    {"MoveFileW", RefusableCall::TellsByLastError, 0, {5, 2, 3, 19, 21, 32, 112, 183}},
    {"CopyFileW", RefusableCall::TellsByLastError, 0, {5, 2, 3, 19, 21, 23, 32, 112}},
    {"CreateDirectoryW", RefusableCall::TellsByLastError, 0, {5, 3, 19, 21, 112, 183}},
    {"RemoveDirectoryW", RefusableCall::TellsByLastError, 0, {5, 2, 3, 19, 21, 32, 145}},
    {"FindFirstFileExW", RefusableCall::TellsByLastError, -1, {5, 2, 3, 8, 18, 21, 23, 32}},
    {"FindFirstFileW", RefusableCall::TellsByLastError, -1, {5, 2, 3, 8, 18, 21, 23, 32}},
    {"FindNextFileW", RefusableCall::TellsByLastError, 0, {18, 5, 8, 21, 23, 1167}},
    {"GetFileInformationByHandle", RefusableCall::TellsByLastError, 0, {5, 1, 8, 21, 31}},
    {"GetFinalPathNameByHandleW", RefusableCall::TellsByLastError, 0, {5, 1, 3, 8, 21}},
    {"GetFileType", RefusableCall::TellsByLastError, 0, {5, 21}},
    {"GetFullPathNameW", RefusableCall::TellsByLastError, 0, {8, 206}},
    {"GetShortPathNameW", RefusableCall::TellsByLastError, 0, {2, 5, 8}},
    {"GetCurrentDirectoryW", RefusableCall::TellsByLastError, 0, {8, 21}},
    {"GetWindowsDirectoryW", RefusableCall::TellsByLastError, 0, {8}},
    {"GetVolumeNameForVolumeMountPointW", RefusableCall::TellsByLastError, 0, {5, 21}},
    {"GetDiskFreeSpaceExW", RefusableCall::TellsByLastError, 0, {21, 3, 5, 31}},
    {"GetDriveTypeW", RefusableCall::TellsByLastError, 0, {21}},
    {"GetLogicalDrives", RefusableCall::TellsByLastError, 0, {8}},
    {"_open_osfhandle", RefusableCall::TellsByLastError, -1, {4}},
    {"_fdopen", RefusableCall::TellsByLastError, 0, {8}},
    {"_read", RefusableCall::TellsByLastError, -1, {23, 5, 21, 33}},
    {"fread", RefusableCall::TellsByLastError, 0, {23, 21}},
    // Memory; a piece at a time, in tests of its own, as well.
    {"malloc", RefusableCall::TellsByLastError, 0, {8}},
    {"LocalAlloc", RefusableCall::TellsByLastError, 0, {8}},
    {"GlobalMemoryStatusEx", RefusableCall::TellsByLastError, 0, {8}},
    // Libraries, their routines, objects of other libraries, the shell.
    {"LoadLibraryExW", RefusableCall::TellsByLastError, 0, {126, 8, 193}},
    {"GetProcAddress", RefusableCall::TellsByLastError, 0, {127}},
    {"GetModuleHandleW", RefusableCall::TellsByLastError, 0, {126}},
    {"CoInitializeEx", RefusableCall::AnswersCode, 0, {0x8007000E, 0x80010106}},
    {"CoCreateInstance", RefusableCall::AnswersCode, 0, {0x8007000E, 0x80040154, 0x80070005}},
    {"SHGetFileInfoW", RefusableCall::TellsByLastError, 0, {2, 5, 8}},
    {"ShellExecuteExW", RefusableCall::TellsByLastError, 0, {2, 3, 5, 8, 1155}},
    // Resources.
    {"FindResourceW", RefusableCall::TellsByLastError, 0, {1813, 8}},
    {"LoadResource", RefusableCall::TellsByLastError, 0, {8}},
    {"LockResource", RefusableCall::TellsByLastError, 0, {8}},
    {"SizeofResource", RefusableCall::TellsByLastError, 0, {8}},
    {"LoadStringW", RefusableCall::TellsByLastError, 0, {1813}},
    {"LoadMenuW", RefusableCall::TellsByLastError, 0, {8}},
    {"LoadAcceleratorsW", RefusableCall::TellsByLastError, 0, {8}},
    {"LoadImageW", RefusableCall::TellsByLastError, 0, {8}},
    {"LoadIconW", RefusableCall::TellsByLastError, 0, {8}},
    {"LoadCursorW", RefusableCall::TellsByLastError, 0, {8}},
    // Windows, dialogs, controls and what belongs to them. The first is no call of the program's: any window,
    // made by the program or by the system for it.
    {AnyWindow, RefusableCall::TellsByLastError, 0, {8}},
    {"RegisterClassW", RefusableCall::TellsByLastError, 0, {8}},
    {"GetClassInfoW", RefusableCall::TellsByLastError, 0, {1411}},
    {"GetClassNameW", RefusableCall::TellsByLastError, 0, {8}},
    {"CreateWindowExW", RefusableCall::TellsByLastError, 0, {8, 1158}},
    {"CreateDialogIndirectParamW", RefusableCall::TellsByLastError, 0, {8, 1158}},
    {"DialogBoxIndirectParamW", RefusableCall::TellsByLastError, -1, {8, 1158}},
    {"MessageBoxW", RefusableCall::TellsByLastError, 0, {8, 1158}},
    {"InitCommonControlsEx", RefusableCall::TellsByLastError, 0, {8}},
    {"CreatePropertySheetPageW", RefusableCall::TellsByLastError, 0, {8}},
    {"PropertySheetW", RefusableCall::TellsByLastError, -1, {8}},
    {"SetTimer", RefusableCall::TellsByLastError, 0, {8, 1158}},
    {"SetWindowsHookExW", RefusableCall::TellsByLastError, 0, {8, 1158}},
    {"SetWindowLongPtrW", RefusableCall::TellsByLastError, 0, {8}},
    {"SetClassLongPtrW", RefusableCall::TellsByLastError, 0, {8}},
    {"SetWindowTextW", RefusableCall::TellsByLastError, 0, {8}},
    {"SetDlgItemTextW", RefusableCall::TellsByLastError, 0, {8}},
    {"GetWindowTextW", RefusableCall::TellsByLastError, 0, {8}},
    {"GetDlgItemTextW", RefusableCall::TellsByLastError, 0, {8}},
    {"SetWindowPos", RefusableCall::TellsByLastError, 0, {8}},
    {"MoveWindow", RefusableCall::TellsByLastError, 0, {8}},
    {"ScrollWindowEx", RefusableCall::TellsByLastError, 0, {8}},
    {"SetForegroundWindow", RefusableCall::TellsByLastError, 0, {0}},
    {"SetFocus", RefusableCall::TellsByLastError, 0, {5}},
    {"PostMessageW", RefusableCall::TellsByLastError, 0, {1816, 8}},
    {"GetMessageW", RefusableCall::TellsByLastError, -1, {8}},
    {"TrackPopupMenuEx", RefusableCall::TellsByLastError, 0, {8}},
    {"GetMenuItemInfoW", RefusableCall::TellsByLastError, 0, {8}},
    {"SystemParametersInfoW", RefusableCall::TellsByLastError, 0, {8}},
    // Drawing.
    {"CreateFontIndirectW", RefusableCall::TellsByLastError, 0, {8}},
    {"GetObjectW", RefusableCall::TellsByLastError, 0, {6}},
    {"GetStockObject", RefusableCall::TellsByLastError, 0, {8}},
    {"GetSysColorBrush", RefusableCall::TellsByLastError, 0, {8}},
    {"GetDC", RefusableCall::TellsByLastError, 0, {8}},
    {"BeginPaint", RefusableCall::TellsByLastError, 0, {8}},
    {"SelectObject", RefusableCall::TellsByLastError, 0, {8}},
    {"GetTextExtentPoint32W", RefusableCall::TellsByLastError, 0, {8}},
    {"DrawTextW", RefusableCall::TellsByLastError, 0, {8}},
    {"ImageList_Create", RefusableCall::TellsByLastError, 0, {8}},
    {"ImageList_ReplaceIcon", RefusableCall::TellsByLastError, -1, {8}},
    {"ImageList_SetImageCount", RefusableCall::TellsByLastError, 0, {8}},
    {"ImageList_SetOverlayImage", RefusableCall::TellsByLastError, 0, {8}},
    // Texts, times, the device.
    {"MultiByteToWideChar", RefusableCall::TellsByLastError, 0, {1113, 122}},
    {"WideCharToMultiByte", RefusableCall::TellsByLastError, 0, {1113, 122}},
    {"CompareStringOrdinal", RefusableCall::TellsByLastError, 0, {87}},
    {"GetLocaleInfoW", RefusableCall::TellsByLastError, 0, {87}},
    {"GetDateFormatW", RefusableCall::TellsByLastError, 0, {87, 122}},
    {"GetTimeFormatW", RefusableCall::TellsByLastError, 0, {87, 122}},
    {"FileTimeToLocalFileTime", RefusableCall::TellsByLastError, 0, {87}},
    {"LocalFileTimeToFileTime", RefusableCall::TellsByLastError, 0, {87}},
    {"FileTimeToSystemTime", RefusableCall::TellsByLastError, 0, {87}},
    {"SystemTimeToFileTime", RefusableCall::TellsByLastError, 0, {87}},
    {"GetSystemMetrics", RefusableCall::TellsByLastError, 0, {0}},
};

constexpr LONG RefusableCallCount = static_cast<LONG>(std::size(RefusableCalls));

// The place of a call in the table.
constexpr LONG RefusableCallNamed(std::string_view name) {
    return static_cast<LONG>(std::ranges::find(RefusableCalls, name, &RefusableCall::name) -
                             std::begin(RefusableCalls));
}

}  // namespace probe
