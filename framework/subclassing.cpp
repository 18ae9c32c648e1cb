#include "framework/subclassing.h"

#include <new>

namespace {

struct SubclassedWindow {
    HWND window;
    WNDPROC procedure;
    SubclassedWindow* next;
};

SubclassedWindow* subclassedWindows = nullptr;

SubclassedWindow** LinkTo(HWND window) {
    SubclassedWindow** link = &subclassedWindows;
    while (*link != nullptr && (*link)->window != window)
        link = &(*link)->next;
    return link;
}

}  // namespace

// The replacement is not put in twice, not even when something else has been put before it: a procedure that
// is its own successor never comes back.
WNDPROC ReplaceProcedure(HWND window, WNDPROC replacement) {
    if (const SubclassedWindow* known = *LinkTo(window)) return known->procedure;
    if (!IsWindow(window)) return nullptr;
    auto* entry = new (std::nothrow) SubclassedWindow{window, nullptr, subclassedWindows};
    if (entry == nullptr) return nullptr;
    entry->procedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(replacement)));
    subclassedWindows = entry;
    return entry->procedure;
}

void ForgetProcedure(HWND window) {
    SubclassedWindow** link = LinkTo(window);
    SubclassedWindow* entry = *link;
    if (entry == nullptr) return;
    *link = entry->next;
    delete entry;
}
