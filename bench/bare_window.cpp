// The least that a program with a list can be: a window, an empty list with the columns of the result list,
// and a message loop. Its start is the limit for the program's own.

#include <windows.h>

#include <commctrl.h>

namespace {

constexpr int ColumnCount = 5;
constexpr int ColumnWidth = 90;

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

void AddList(HWND window) {
    RECT area;
    GetClientRect(window, &area);
    const HWND list = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0,
                                      area.right, area.bottom, window, nullptr, nullptr, nullptr);
    for (int i = 0; i < ColumnCount; ++i) {
        LVCOLUMNW column = {};
        column.mask = LVCF_WIDTH | LVCF_TEXT;
        column.cx = ColumnWidth;
        column.pszText = const_cast<wchar_t*>(L"Column");
        SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
    }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = L"QuorinBareWindow";
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    RegisterClassW(&windowClass);
    const HWND window = CreateWindowExW(
        0, windowClass.lpszClassName, L"Bare", WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU, 0, 0,
        GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), nullptr, nullptr, instance, nullptr);
    AddList(window);
    ShowWindow(window, SW_SHOW);
    UpdateWindow(window);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
