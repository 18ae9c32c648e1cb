#include "framework/window_object.h"

#include <cwchar>
#include <new>

#include "base/program_context.h"
#include "framework/application.h"
#include "framework/message_boxes.h"
#include "framework/property_set.h"
#include "framework/window_class.h"

namespace {

constexpr int ClassNameCapacity = 128;

// QUIRK: class-named-value
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
    : parent_(parentObject) {
    JoinObjects();
    Create(title, properties);
}

WindowObject::WindowObject(WindowObject* parentObject, HWND existing, Ownership ownership)
    : parent_(parentObject) {
    JoinObjects();
    if (existing == nullptr) return;
    Attach(existing);
    ownsHandle_ = ownership == Ownership::Owned ||
                  (ownership == Ownership::FollowsParent && !IsDialogWindow(ParentHandle()));
}

WindowObject::~WindowObject() {
    events_.reset();
    messages_.reset();
    const HWND window = handle_;
    Detach();
    LeaveObjects();
    if (window != nullptr && ownsHandle_ && IsWindow(window)) DestroyWindow(window);
}

void WindowObject::Create(const wchar_t* title, PropertySet& properties) {
    if (!properties.Has(property::ClassName)) properties.SetText(property::ClassName, DefaultClassName);
    if (!properties.Has(property::ClassIsRegistered))
        RegisterWindowClass(properties, &FrameworkWindowProcedure);
    const wchar_t* className = properties.GetText(property::ClassName);
    const HWND window = ce::CreateWindowExW(
        StyleOf(properties, property::ExtendedStyle), className, title, StyleOf(properties, property::Style),
        NumberOf(properties, property::X), NumberOf(properties, property::Y),
        NumberOf(properties, property::Width), NumberOf(properties, property::Height), ParentHandle(),
        reinterpret_cast<HMENU>(properties.Get(property::ControlId)), Context().instance,
        reinterpret_cast<void*>(properties.Get(property::CreationParameter)));
    if (window == nullptr || !Attach(window)) {
        handle_ = nullptr;
        // A window that is not in the map would handle no message and never report its end.
        if (window != nullptr) DestroyWindow(window);
        // QUIRK: failed-window-is-not-fatal
        ShowFatal(ParentHandle(), L"CreateWindow(%s:%s)", className, title != nullptr ? title : L"");
        return;
    }
    ownsHandle_ = true;
}

void WindowObject::JoinObjects() {
    nextObject_ = firstObject;
    firstObject = this;
}

void WindowObject::LeaveObjects() {
    WindowObject** link = &firstObject;
    while (*link != this)
        link = &(*link)->nextObject_;
    *link = nextObject_;
    for (WindowObject* object = firstObject; object != nullptr; object = object->nextObject_)
        object->Forget(this);
}

bool WindowObject::Attach(HWND window) {
    handle_ = window;
    WindowMap* map = Application::Windows();
    return map != nullptr && map->Insert(window, this);
}

void WindowObject::Detach() {
    if (WindowMap* map = Application::Windows(); map != nullptr && handle_ != nullptr)
        map->Remove(handle_, this);
    handle_ = nullptr;
}

void WindowObject::WindowIsGone(HWND window) {
    for (WindowObject* object = firstObject; object != nullptr; object = object->nextObject_) {
        const HWND own = object->handle_;
        if (own != nullptr && (own == window || !IsWindow(own))) object->LoseWindow();
    }
    ForgetProcedure(window);
}

void WindowObject::LoseWindow() {
    Detach();
    ownsHandle_ = false;
    savedProcedure_ = nullptr;
}

void WindowObject::Forget(const WindowObject* gone) {
    if (parent_ == gone) parent_ = nullptr;
    if (events_ != nullptr) events_->RemoveTarget(gone);
    if (messages_ != nullptr) messages_->RemoveTarget(gone);
}

// A control that could not be entered in the map is left alone: its messages would find neither an object nor
// the control's own procedure.
void WindowObject::Subclass() {
    if (savedProcedure_ != nullptr || handle_ == nullptr) return;
    const WindowMap* const map = Application::Windows();
    if (map != nullptr && map->Find(handle_) == nullptr) return;
    savedProcedure_ = ReplaceProcedure(handle_, &FrameworkWindowProcedure);
}

bool WindowObject::RaiseEvent(EventCode code, EventSource source, std::intptr_t argument,
                              MessageRecord& record) {
    const EventEntry* entry = events_ != nullptr ? events_->Find(code, source) : nullptr;
    if (entry == nullptr) return false;
    EventArguments arguments{entry->extra, argument, record};
    record.result = (entry->target->*entry->method)(arguments);
    return true;
}

RECT WindowObject::LayoutRectangle() const {
    RECT client{};
    GetClientRect(handle_, &client);
    return client;
}

void WindowObject::Move(int x, int y, int width, int height) {
    MoveWindow(handle_, x, y, width, height, TRUE);
}

NativeCodeTable WindowObject::NativeCodes() const {
    return {};
}

std::span<const EventCode> WindowObject::OwnEvents() const {
    return {};
}

LRESULT WindowObject::DefaultProcessing(MessageRecord& record) {
    if (savedProcedure_ != nullptr) {
        return CallWindowProcW(savedProcedure_, handle_, record.message, record.wParam, record.lParam);
    }
    return DefWindowProcW(handle_, record.message, record.wParam, record.lParam);
}

LRESULT WindowObject::Dispatch(MessageRecord& record) {
    const MessageEntry* entry = messages_ != nullptr ? messages_->Find(record.message) : nullptr;
    if (entry == nullptr) return DispatchToClass(record);
    record.extra = entry->extra;
    return (entry->target->*entry->method)(record);
}

LRESULT WindowObject::DispatchToClass(MessageRecord& record) {
    return DefaultProcessing(record);
}

void WindowObject::AddEventHandler(EventCode code, EventSource source, WindowObject* target,
                                   EventMethod method, std::uintptr_t extra) {
    if (events_ == nullptr) events_.reset(new (std::nothrow) EventTable);
    if (events_ != nullptr) events_->Add(code, source, target, method, extra);
}

void WindowObject::AddNotificationHandler(EventCode code, WindowObject* target, EventMethod method,
                                          std::uintptr_t extra) {
    if (handle_ == nullptr) return;
    for (const EventCode own : OwnEvents()) {
        if (own == code) {
            AddEventHandler(code, reinterpret_cast<EventSource>(handle_), target, method, extra);
            return;
        }
    }
    if (parent_ == nullptr) return;
    const EventSource source = IsDialogWindow(parent_->handle_)
                                   ? static_cast<EventSource>(GetDlgCtrlID(handle_))
                                   : reinterpret_cast<EventSource>(handle_);
    parent_->AddEventHandler(code, source, target, method, extra);
}

void WindowObject::AddMessageHandler(UINT message, WindowObject* target, MessageMethod method,
                                     std::uintptr_t extra) {
    if (messages_ == nullptr) messages_.reset(new (std::nothrow) MessageTable);
    if (messages_ != nullptr) messages_->Add(message, target, method, extra);
}

void WindowObject::Enable() {
    ShowWindow(handle_, SW_SHOW);
    EnableWindow(handle_, TRUE);
    ShowWindow(handle_, SW_SHOW);
}

// QUIRK: disabling-hides-first. That makes it repaint as disabled.
void WindowObject::Disable() {
    ShowWindow(handle_, SW_HIDE);
    EnableWindow(handle_, FALSE);
    ShowWindow(handle_, SW_SHOW);
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

// A handler may delete its object, so the object is not used after the handler has returned.
LRESULT CALLBACK FrameworkWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = DispatchToObject(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) WindowObject::WindowIsGone(window);
    return result;
}
