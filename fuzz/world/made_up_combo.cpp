// What conditions/history_combo.h of this folder answers to messages.

#include <cstdlib>
#include <cwchar>

#include "conditions/history_combo.h"

LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& entries = *reinterpret_cast<std::vector<std::wstring>*>(window);
    switch (message) {
        case CB_RESETCONTENT:
            entries.clear();
            return 0;
        case CB_GETCOUNT:
            return static_cast<LRESULT>(entries.size());
        case CB_GETLBTEXTLEN:
            return static_cast<LRESULT>(entries.at(wParam).size());
        case CB_GETLBTEXT:
            std::wcscpy(reinterpret_cast<wchar_t*>(lParam), entries.at(wParam).c_str());
            return static_cast<LRESULT>(entries[wParam].size());
        default:
            std::abort();
    }
}
