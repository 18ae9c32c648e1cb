#include "framework/container_window.h"

#include <cstdint>

#include "framework/application.h"
#include "framework/property_set.h"

namespace {

PropertySet& WithClippedChildren(PropertySet& properties) {
    properties.Add(property::Style, WS_CLIPCHILDREN);
    return properties;
}

}  // namespace

ContainerWindow::ContainerWindow(WindowObject* parentObject, const wchar_t* title, PropertySet& properties)
    : WindowObject(parentObject, title, WithClippedChildren(properties)) {}

ContainerWindow::ContainerWindow(WindowObject* parentObject, HWND existing, Ownership ownership)
    : WindowObject(parentObject, existing, ownership) {}

WindowObject* ContainerWindow::ObjectOf(HWND window) {
    const WindowMap* map = Application::Windows();
    return map != nullptr ? map->Find(window) : nullptr;
}

LRESULT ContainerWindow::DispatchToClass(MessageRecord& record) {
    switch (record.message) {
        case WM_COMMAND:
            return OnWmCommand(record);
        case WM_NOTIFY:
            return OnWmNotify(record);
        case WM_DRAWITEM:
            return OnWmDrawItem(record);
        case WM_ACTIVATE:
            return OnWmActivate(record);
        case WM_DESTROY:
            return OnWmDestroy(record);
        default:
            return WindowObject::DispatchToClass(record);
    }
}

NativeCodeTable ContainerWindow::NativeCodes() const {
    return CommonNotificationCodes();
}

LRESULT ContainerWindow::OnWmCommand(MessageRecord& record) {
    const auto control = reinterpret_cast<HWND>(record.lParam);
    const EventSource command = LOWORD(record.wParam);
    const WindowObject* object = control != nullptr ? ObjectOf(control) : nullptr;
    if (object == nullptr) {
        RaiseEvent(event::Command, command, 0, record);
        return record.result;
    }
    // QUIRK: unknown-codes-are-clicks
    const EventCode code = TranslateNativeCode(object->NativeCodes(), CommandCodeOf(record));
    if (code == event::RaiseAsCommand) {
        RaiseEvent(event::Command, command, 0, record);
    } else {
        RaiseEvent(code, reinterpret_cast<EventSource>(control), 0, record);
    }
    return record.result;
}

LRESULT ContainerWindow::OnWmNotify(MessageRecord& record) {
    const auto* header = reinterpret_cast<const NMHDR*>(record.lParam);
    const WindowObject* object = header != nullptr ? ObjectOf(header->hwndFrom) : nullptr;
    if (object == nullptr) return record.result;
    RaiseNotification(object->NativeCodes(), reinterpret_cast<EventSource>(header->hwndFrom), record);
    return record.result;
}

std::uint32_t ContainerWindow::CommandCodeOf(const MessageRecord& record) {
    return static_cast<std::uint32_t>(static_cast<std::int16_t>(HIWORD(record.wParam)));
}

void ContainerWindow::RaiseNotification(NativeCodeTable controlCodes, EventSource source,
                                        MessageRecord& record) {
    const auto* header = reinterpret_cast<const NMHDR*>(record.lParam);
    const EventCode code = TranslateNotification(header->code, controlCodes);
    if (code != event::Command) RaiseEvent(code, source, record.lParam, record);
}

EventCode ContainerWindow::TranslateNotification(std::uint32_t native, NativeCodeTable controlCodes) const {
    const EventCode code = TranslateNativeCode(NativeCodes(), native, event::AskControl);
    return code == event::AskControl ? TranslateNativeCode(controlCodes, native) : code;
}

LRESULT ContainerWindow::OnWmDrawItem(MessageRecord& record) {
    const auto* item = reinterpret_cast<const DRAWITEMSTRUCT*>(record.lParam);
    if (item == nullptr) return 1;
    const EventSource source = ObjectOf(item->hwndItem) != nullptr
                                   ? reinterpret_cast<EventSource>(item->hwndItem)
                                   : static_cast<EventSource>(item->CtlID);
    RaiseEvent(event::DrawItem, source, record.lParam, record);
    return 1;
}

LRESULT ContainerWindow::OnWmActivate(MessageRecord& record) {
    KeepFocus(record);
    return 0;
}

void ContainerWindow::KeepFocus(const MessageRecord& record) {
    if (LOWORD(record.wParam) == WA_INACTIVE) {
        const HWND focus = GetFocus();
        if (HoldsWindow(focus)) rememberedFocus_ = focus;
    } else if (HoldsWindow(rememberedFocus_)) {
        SetFocus(NearestThatTakesFocus(rememberedFocus_));
    } else if (!HoldsWindow(GetFocus())) {
        SetFocus(Handle());
    }
}

bool ContainerWindow::HoldsWindow(HWND window) const {
    return window != nullptr && (window == Handle() || IsChild(Handle(), window));
}

bool ContainerWindow::CanTakeFocus(HWND control) const {
    for (; control != nullptr && control != Handle(); control = GetParent(control)) {
        const auto style = static_cast<DWORD>(GetWindowLongW(control, GWL_STYLE));
        if ((style & WS_VISIBLE) == 0 || (style & WS_DISABLED) != 0) return false;
    }
    return control == Handle();
}

HWND ContainerWindow::NearestThatTakesFocus(HWND control) const {
    for (; control != Handle(); control = GetParent(control)) {
        if (CanTakeFocus(control)) return control;
        const HWND next = GetNextDlgTabItem(GetParent(control), control, FALSE);
        if (HoldsWindow(next) && CanTakeFocus(next)) return next;
    }
    return Handle();
}

LRESULT ContainerWindow::OnWmDestroy(MessageRecord&) {
    return 0;
}
