// The windows of the program's first picture, made by the shortest calls that make them, with nothing behind
// them: what a start costs above the bare window whoever makes it.

#include "bench/plain_frame.h"
#include "resources/resource_ids.h"

namespace {

constexpr int TabHeight = 126;
constexpr int BarHeight = 26;

INT_PTR CALLBACK DialogProcedure(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

void SetSmallIcon(HWND window, HINSTANCE instance) {
    const HANDLE icon =
        LoadImageW(instance, MAKEINTRESOURCEW(ICON_PROGRAM), IMAGE_ICON, 16, 16, LR_DEFAULTCOLOR);
    SendMessageW(window, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon));
}

void SetFont(HWND control) {
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
}

HWND MakeControl(HWND parent, const wchar_t* className, DWORD style, const RECT& place) {
    const HWND control = CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, place.left,
                                         place.top, place.right - place.left, place.bottom - place.top,
                                         parent, nullptr, nullptr, nullptr);
    SetFont(control);
    return control;
}

// The three menus and the two pictures.
void AddBar(HWND window, const RECT& place) {
    const HWND bar = MakeControl(window, TOOLBARCLASSNAMEW,
                                 TBSTYLE_FLAT | TBSTYLE_LIST | CCS_NODIVIDER | CCS_NORESIZE, place);
    SendMessageW(bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    const TBADDBITMAP pictures = {HINST_COMMCTRL, IDB_STD_SMALL_COLOR};
    SendMessageW(bar, TB_ADDBITMAP, 15, reinterpret_cast<LPARAM>(&pictures));
    TBBUTTON buttons[5] = {};
    const wchar_t* const captions[] = {L"File", L"View", L"Option"};
    for (int i = 0; i < 5; ++i) {
        buttons[i].fsState = TBSTATE_ENABLED;
        buttons[i].fsStyle = BTNS_AUTOSIZE;
        buttons[i].idCommand = i + 1;
        buttons[i].iBitmap = i < 3 ? I_IMAGENONE : STD_FIND;
        buttons[i].iString = i < 3 ? reinterpret_cast<INT_PTR>(captions[i]) : 0;
    }
    SendMessageW(bar, TB_ADDBUTTONSW, 5, reinterpret_cast<LPARAM>(buttons));
}

void AddTabs(HWND window, HINSTANCE instance, const RECT& place) {
    const HWND tabs = MakeControl(window, WC_TABCONTROLW, 0, place);
    for (int i = 0; i < 3; ++i) {
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<wchar_t*>(L"Page");
        SendMessageW(tabs, TCM_INSERTITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    }
    RECT area = place;
    SendMessageW(tabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    const HWND page = CreateDialogParamW(instance, L"NAME_E", tabs, DialogProcedure, 0);
    SetWindowPos(page, nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
                 SWP_NOZORDER | SWP_SHOWWINDOW);
    SetFocus(tabs);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
    const INITCOMMONCONTROLSEX classes = {sizeof(classes),
                                          ICC_LISTVIEW_CLASSES | ICC_TAB_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
    const HWND window = MakePlainFrame(instance, L"QuorinSameWindows");
    SetSmallIcon(window, instance);
    RECT area;
    GetClientRect(window, &area);
    AddBar(window, {0, area.bottom - BarHeight, area.right, area.bottom});
    AddTabs(window, instance, {0, 0, area.right, TabHeight});
    SetFont(AddPlainList(window, TabHeight, area.bottom - BarHeight));
    return ShowAndRun(window);
}
