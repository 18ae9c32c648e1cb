#include "tests/results/list_cells.h"

std::wstring CellOf(HWND list, int row, ResultColumn column) {
    wchar_t text[512] = L"";
    LVITEMW item = {};
    item.iSubItem = static_cast<int>(column);
    item.pszText = text;
    item.cchTextMax = 512;
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
}

std::vector<std::wstring> CellsOf(HWND list, int row) {
    std::vector<std::wstring> cells;
    for (int i = 0; i < ResultColumnCount; ++i)
        cells.push_back(CellOf(list, row, static_cast<ResultColumn>(i)));
    return cells;
}

LPARAM RowNumberOf(HWND list, int row) {
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    item.lParam = -1;
    SendMessageW(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return item.lParam;
}

bool IsRowSelected(HWND list, int row) {
    return SendMessageW(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) == LVIS_SELECTED;
}

WIN32_FIND_DATAW FileEntry(const std::wstring& name, DWORD size) {
    WIN32_FIND_DATAW entry = {};
    entry.dwFileAttributes = FILE_ATTRIBUTE_ARCHIVE;
    entry.nFileSizeLow = size;
    entry.ftLastWriteTime = FileTimeOf(2002, 7, 15, 0, 5, 30);
    name.copy(entry.cFileName, MAX_PATH - 1);
    return entry;
}

WIN32_FIND_DATAW FolderEntry(const std::wstring& name) {
    WIN32_FIND_DATAW entry = FileEntry(name);
    entry.dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY;
    return entry;
}

FILETIME FileTimeOf(WORD year, WORD month, WORD day, WORD hour, WORD minute, WORD second) {
    SYSTEMTIME time = {};
    time.wYear = year;
    time.wMonth = month;
    time.wDay = day;
    time.wHour = hour;
    time.wMinute = minute;
    time.wSecond = second;
    FILETIME converted = {};
    SystemTimeToFileTime(&time, &converted);
    return converted;
}
