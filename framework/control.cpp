#include "framework/control.h"

#include "framework/property_set.h"

namespace {

PropertySet& WithControlDefaults(PropertySet& properties, const wchar_t* className) {
    properties.Add(property::Style, WS_CHILD | WS_VISIBLE);
    properties.Add(property::ClassIsRegistered, 1);
    properties.AddText(property::ClassName, className);
    return properties;
}

}  // namespace

HWND DialogItem(const WindowObject& dialog, int id) {
    return GetDlgItem(dialog.Handle(), id);
}

Control::Control(WindowObject* parentObject, const wchar_t* className, PropertySet& properties)
    : WindowObject(parentObject, L"", WithControlDefaults(properties, className)),
      nativeCodes_(NativeCodesOfClass(className)) {}

Control::Control(WindowObject* parentObject, HWND existing, const wchar_t* className, Ownership ownership)
    : WindowObject(parentObject, existing, ownership), nativeCodes_(NativeCodesOfClass(className)) {}

SYSTEMTIME DatePicker::Date() const {
    SYSTEMTIME date{};
    SendMessageW(window_, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&date));
    return date;
}

int TabControl::AppendItem(const wchar_t* text) {
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<wchar_t*>(text);
    const LRESULT count = SendMessageW(Handle(), TCM_GETITEMCOUNT, 0, 0);
    return static_cast<int>(
        SendMessageW(Handle(), TCM_INSERTITEMW, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(&item)));
}

int TabControl::Selected() const {
    return static_cast<int>(SendMessageW(Handle(), TCM_GETCURSEL, 0, 0));
}

void TabControl::Select(int index) {
    ce::SelectTab(Handle(), index);
}

RECT TabControl::DisplayArea() const {
    RECT area{};
    GetClientRect(Handle(), &area);
    SendMessageW(Handle(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    return area;
}
