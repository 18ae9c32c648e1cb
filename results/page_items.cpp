#include "results/page_items.h"

#include "resources/resource_ids.h"

void ShowIcon(HWND page, HICON icon) {
    SendDlgItemMessageW(page, STATIC_ICON, STM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
}

void FreeIcon(HWND page) {
    const LRESULT icon = SendDlgItemMessageW(page, STATIC_ICON, STM_SETIMAGE, IMAGE_ICON, 0);
    if (icon != 0) DestroyIcon(reinterpret_cast<HICON>(icon));
}

bool FindFile(const wchar_t* path, WIN32_FIND_DATAW& data) {
    const HANDLE search = ce::FindFirstFileW(path, &data);
    if (search == INVALID_HANDLE_VALUE) return false;
    ce::FindClose(search);
    return true;
}
