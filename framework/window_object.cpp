#include "framework/window_object.h"

#include <cwchar>
#include <new>

#include "base/app_globals.h"
#include "framework/application.h"
#include "framework/fatal_message.h"
#include "framework/property_keys.h"
#include "framework/subclassing.h"
#include "framework/window_class.h"

namespace {

constexpr int ClassNameCapacity = 128;

// The name is odd, but classes made without one are known by it.
constexpr const wchar_t* DefaultClassName = L"Value";

DWORD StyleOf(const PropertySet& properties, PropertyKey key) {
    return static_cast<DWORD>(properties.Get(key));
}

int NumberOf(const PropertySet& properties, PropertyKey key) {
    return static_cast<int>(properties.Get(key));
}

}  // namespace

bool IsDialogWindow(HWND window) {
    wchar_t name[ClassNameCapacity];
    return ce::GetClassNameW(window, name, ClassNameCapacity) > 0 && std::wcscmp(name, L"Dialog") == 0;
}

WindowObject* WindowObject::firstObject = nullptr;

WindowObject::WindowObject(WindowObject* parentObject, const wchar_t* title, PropertySet& properties)
    : parent(parentObject) {
    JoinObjects();
    Create(title, properties);
}

WindowObject::WindowObject(WindowObject* parentObject, HWND existing, Ownership ownership)
    : parent(parentObject) {
    JoinObjects();
    if (existing == nullptr) return;
    Attach(existing);
    ownsHandle = ownership == Ownership::Owned ||
                 (ownership == Ownership::FollowsParent && !IsDialogWindow(ParentHandle()));
}

WindowObject::~WindowObject() {
    events.reset();
    messages.reset();
    const HWND window = handle;
    Detach();
    LeaveObjects();
    if (window != nullptr && ownsHandle && IsWindow(window)) DestroyWindow(window);
}

void WindowObject::Create(const wchar_t* title, PropertySet& properties) {
    if (!properties.Has(property::ClassName)) properties.SetText(property::ClassName, DefaultClassName);
    if (!properties.Has(property::ClassIsRegistered)) RegisterWindowClass(properties);
    const wchar_t* className = properties.GetText(property::ClassName);
    const HWND window = ce::CreateWindowExW(
        StyleOf(properties, property::ExtendedStyle), className, title, StyleOf(properties, property::Style),
        NumberOf(properties, property::X), NumberOf(properties, property::Y),
        NumberOf(properties, property::Width), NumberOf(properties, property::Height), ParentHandle(),
        reinterpret_cast<HMENU>(properties.Get(property::ControlId)), Globals().instance,
        reinterpret_cast<void*>(properties.Get(property::CreationParameter)));
    if (window == nullptr) {
        ShowFatal(ParentHandle(), L"CreateWindow(%s:%s)", className, title != nullptr ? title : L"");
        return;
    }
    Attach(window);
    ownsHandle = true;
}

void WindowObject::JoinObjects() {
    nextObject = firstObject;
    firstObject = this;
}

void WindowObject::LeaveObjects() {
    WindowObject** link = &firstObject;
    while (*link != this)
        link = &(*link)->nextObject;
    *link = nextObject;
    for (WindowObject* object = firstObject; object != nullptr; object = object->nextObject)
        object->Forget(this);
}

bool WindowObject::Attach(HWND window) {
    handle = window;
    WindowMap* map = Application::Windows();
    return map != nullptr && map->Insert(window, this);
}

void WindowObject::Detach() {
    if (WindowMap* map = Application::Windows(); map != nullptr && handle != nullptr)
        map->Remove(handle, this);
    handle = nullptr;
}

void WindowObject::WindowIsGone(HWND window) {
    for (WindowObject* object = firstObject; object != nullptr; object = object->nextObject) {
        const HWND own = object->handle;
        if (own != nullptr && (own == window || !IsWindow(own))) object->LoseWindow();
    }
    ForgetProcedure(window);
}

void WindowObject::LoseWindow() {
    Detach();
    ownsHandle = false;
    savedProcedure = nullptr;
}

void WindowObject::Forget(const WindowObject* gone) {
    if (parent == gone) parent = nullptr;
    if (events != nullptr) events->RemoveTarget(gone);
    if (messages != nullptr) messages->RemoveTarget(gone);
}

void WindowObject::Subclass() {
    if (savedProcedure != nullptr || handle == nullptr) return;
    savedProcedure = ReplaceProcedure(handle, &FrameworkWindowProcedure);
}

bool WindowObject::RaiseEvent(EventCode code, EventSource source, std::intptr_t argument,
                              MessageRecord& record) {
    const EventEntry* entry = events != nullptr ? events->Find(code, source) : nullptr;
    if (entry == nullptr) return false;
    EventArguments arguments{entry->extra, argument, record};
    record.result = (entry->target->*entry->method)(arguments);
    return true;
}

RECT WindowObject::LayoutRectangle() const {
    RECT client{};
    GetClientRect(handle, &client);
    return client;
}

void WindowObject::Move(int x, int y, int width, int height) {
    MoveWindow(handle, x, y, width, height, TRUE);
}

NativeCodeTable WindowObject::NativeCodes() const {
    return {};
}

std::span<const EventCode> WindowObject::OwnEvents() const {
    return {};
}

LRESULT WindowObject::DefaultProcessing(MessageRecord& record) {
    if (savedProcedure != nullptr) {
        return CallWindowProcW(savedProcedure, handle, record.message, record.wParam, record.lParam);
    }
    return DefWindowProcW(handle, record.message, record.wParam, record.lParam);
}

LRESULT WindowObject::Dispatch(MessageRecord& record) {
    const MessageEntry* entry = messages != nullptr ? messages->Find(record.message) : nullptr;
    if (entry == nullptr) return DispatchToClass(record);
    record.extra = entry->extra;
    return (entry->target->*entry->method)(record);
}

LRESULT WindowObject::DispatchToClass(MessageRecord& record) {
    return DefaultProcessing(record);
}

void WindowObject::AddEventHandler(EventCode code, EventSource source, WindowObject* target,
                                   EventMethod method, std::uintptr_t extra) {
    if (events == nullptr) events.reset(new (std::nothrow) EventTable);
    if (events != nullptr) events->Add(code, source, target, method, extra);
}

void WindowObject::AddNotificationHandler(EventCode code, WindowObject* target, EventMethod method,
                                          std::uintptr_t extra) {
    if (handle == nullptr) return;
    for (const EventCode own : OwnEvents()) {
        if (own == code) {
            AddEventHandler(code, reinterpret_cast<EventSource>(handle), target, method, extra);
            return;
        }
    }
    if (parent == nullptr) return;
    const EventSource source = IsDialogWindow(parent->handle) ? static_cast<EventSource>(GetDlgCtrlID(handle))
                                                              : reinterpret_cast<EventSource>(handle);
    parent->AddEventHandler(code, source, target, method, extra);
}

void WindowObject::AddMessageHandler(UINT message, WindowObject* target, MessageMethod method,
                                     std::uintptr_t extra) {
    if (messages == nullptr) messages.reset(new (std::nothrow) MessageTable);
    if (messages != nullptr) messages->Add(message, target, method, extra);
}

void WindowObject::Enable() {
    ShowWindow(handle, SW_SHOW);
    EnableWindow(handle, TRUE);
    ShowWindow(handle, SW_SHOW);
}

// Hidden and shown again so that it repaints disabled.
void WindowObject::Disable() {
    ShowWindow(handle, SW_HIDE);
    EnableWindow(handle, FALSE);
    ShowWindow(handle, SW_SHOW);
}

namespace {

LRESULT DispatchToObject(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const WindowMap* map = Application::Windows();
    WindowObject* object = map != nullptr ? map->Find(window) : nullptr;
    if (object == nullptr || !IsWindow(window)) return DefWindowProcW(window, message, wParam, lParam);
    MessageRecord record{message, wParam, lParam, 0, 0};
    return object->Dispatch(record);
}

}  // namespace

// A handler may delete its object: nothing is asked of it when the handler has returned.
LRESULT CALLBACK FrameworkWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = DispatchToObject(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) WindowObject::WindowIsGone(window);
    return result;
}
