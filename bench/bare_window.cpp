// The least that a program with a list can be: a window, an empty list with the columns of the result list,
// and a message loop. Its start is the limit for the program's own.

#include "bench/plain_frame.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    const HWND window = MakePlainFrame(instance, L"QuorinBareWindow");
    RECT area;
    GetClientRect(window, &area);
    AddPlainList(window, 0, area.bottom);
    return ShowAndRun(window);
}
