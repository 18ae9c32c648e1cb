#include "framework/window_class.h"

#include <new>

#include "base/program_context.h"
#include "framework/property_set.h"
#include "platform/ce_windows.h"
#include "platform/windows_ce.h"

namespace {

constexpr PropertyValue RedrawOnSizeChange = CS_HREDRAW | CS_VREDRAW;

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

void RegisterWindowClass(const PropertySet& properties, WNDPROC procedure) {
    const wchar_t* name = properties.GetText(property::ClassName);
    WNDCLASSW windowClass{};
    if (GetClassInfoW(Context().instance, name, &windowClass)) return;

    windowClass = {};
    windowClass.style = static_cast<UINT>(properties.Get(property::ClassStyle, RedrawOnSizeChange));
    windowClass.lpfnWndProc = reinterpret_cast<WNDPROC>(
        properties.Get(property::WindowProcedure, reinterpret_cast<PropertyValue>(procedure)));
    windowClass.cbClsExtra = static_cast<int>(properties.Get(property::ClassExtraBytes));
    windowClass.cbWndExtra = static_cast<int>(properties.Get(property::WindowExtraBytes));
    windowClass.hInstance = Context().instance;
    windowClass.hIcon = reinterpret_cast<HICON>(properties.Get(property::ClassIcon));
    windowClass.hCursor = reinterpret_cast<HCURSOR>(properties.Get(property::ClassCursor));
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(properties.Get(
        property::ClassBackground, reinterpret_cast<PropertyValue>(GetStockObject(WHITE_BRUSH))));
    windowClass.lpszMenuName = properties.GetText(property::ClassMenuName);
    windowClass.lpszClassName = name;
    ce::RegisterClassW(&windowClass);
}

// The replacement is never installed twice, not even if another procedure has been installed in front of it
// since: a procedure that calls itself never returns.
WNDPROC ReplaceProcedure(HWND window, WNDPROC replacement) {
    if (const SubclassedWindow* known = *LinkTo(window)) return known->procedure;
    if (!IsWindow(window)) return nullptr;
    auto* entry = new (std::nothrow) SubclassedWindow{window, nullptr, subclassedWindows};
    if (entry == nullptr) return nullptr;
    entry->procedure = ce::SetWindowProcedure(window, replacement);
    // A window that keeps its own procedure may be tried again.
    if (entry->procedure == nullptr) {
        delete entry;
        return nullptr;
    }
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
