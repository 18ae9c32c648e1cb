#pragma once

// What the programs that a start is compared with have in common, in as few calls as it takes.

#include <windows.h>

#include <commctrl.h>

inline LRESULT CALLBACK PlainFrameProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

// A hidden window of the screen's size, known by its class.
inline HWND MakePlainFrame(HINSTANCE instance, const wchar_t* className) {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = PlainFrameProcedure;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = className;
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    RegisterClassW(&windowClass);
    return CreateWindowExW(0, className, L"Plain", WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU, 0, 0,
                           GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), nullptr, nullptr,
                           instance, nullptr);
}

// An empty list with as many columns as the result list.
inline HWND AddPlainList(HWND window, int top, int bottom) {
    constexpr int ColumnCount = 5;
    RECT area;
    GetClientRect(window, &area);
    const HWND list = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, top,
                                      area.right, bottom - top, window, nullptr, nullptr, nullptr);
    for (int i = 0; i < ColumnCount; ++i) {
        LVCOLUMNW column = {};
        column.mask = LVCF_WIDTH | LVCF_TEXT;
        column.cx = 90;
        column.pszText = const_cast<wchar_t*>(L"Column");
        SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
    }
    return list;
}

// Until the window is closed; the program's exit code.
inline int ShowAndRun(HWND window) {
    ShowWindow(window, SW_SHOW);
    UpdateWindow(window);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}
