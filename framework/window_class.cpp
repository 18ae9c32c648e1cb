#include "framework/window_class.h"

#include "base/program_context.h"
#include "framework/property_set.h"
#include "platform/windows_ce.h"

namespace {

constexpr PropertyValue RedrawOnSizeChange = CS_HREDRAW | CS_VREDRAW;

PropertyValue ValueOr(const PropertySet& properties, PropertyKey key, PropertyValue missing) {
    PropertyValue value = 0;
    return properties.Lookup(key, value) ? value : missing;
}

}  // namespace

void RegisterWindowClass(const PropertySet& properties, WNDPROC procedure) {
    const wchar_t* name = properties.GetText(property::ClassName);
    WNDCLASSW windowClass{};
    if (GetClassInfoW(Context().instance, name, &windowClass)) return;

    windowClass = {};
    windowClass.style = static_cast<UINT>(ValueOr(properties, property::ClassStyle, RedrawOnSizeChange));
    windowClass.lpfnWndProc = reinterpret_cast<WNDPROC>(
        ValueOr(properties, property::WindowProcedure, reinterpret_cast<PropertyValue>(procedure)));
    windowClass.cbClsExtra = static_cast<int>(properties.Get(property::ClassExtraBytes));
    windowClass.cbWndExtra = static_cast<int>(properties.Get(property::WindowExtraBytes));
    windowClass.hInstance = Context().instance;
    windowClass.hIcon = reinterpret_cast<HICON>(properties.Get(property::ClassIcon));
    windowClass.hCursor = reinterpret_cast<HCURSOR>(properties.Get(property::ClassCursor));
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(ValueOr(
        properties, property::ClassBackground, reinterpret_cast<PropertyValue>(GetStockObject(WHITE_BRUSH))));
    windowClass.lpszMenuName = properties.GetText(property::ClassMenuName);
    windowClass.lpszClassName = name;
    ce::RegisterClassW(&windowClass);
}
