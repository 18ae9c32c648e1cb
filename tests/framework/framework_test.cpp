#include "tests/framework/framework_test.h"

#include <iterator>

FrameworkTest::FrameworkTest() : contextBefore_(Context()) {
    ProgramContext& context = ContextForStartUp();
    context = ProgramContext{};
    context.instance = GetModuleHandleW(nullptr);
    context.uiLanguage = UiLanguage::English;
}

FrameworkTest::~FrameworkTest() {
    PumpMessages();
    ContextForStartUp() = contextBefore_;
}

LRESULT Listener::TakeEvent(EventArguments& arguments) {
    events.push_back({arguments.extra, arguments.argument, arguments.record});
    return answer;
}

LRESULT Listener::TakeMessage(MessageRecord& record) {
    messages.push_back(record);
    return answer;
}

PropertySet PopupProperties() {
    PropertySet properties;
    properties.Set(property::Style, WS_POPUP | WS_VISIBLE);
    properties.SetText(property::ClassName, L"FrameworkTestWindow");
    properties.Set(property::Width, 200);
    properties.Set(property::Height, 150);
    return properties;
}

PropertySet ChildProperties(int id) {
    PropertySet properties;
    properties.Set(property::ControlId, static_cast<PropertyValue>(id));
    properties.Set(property::X, 10);
    properties.Set(property::Y, 20);
    properties.Set(property::Width, 80);
    properties.Set(property::Height, 24);
    return properties;
}

void PumpMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void TypeKey(HWND window, WPARAM key, HWND dialog) {
    PostMessageW(window, WM_KEYDOWN, key, 1);
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (dialog != nullptr && IsDialogMessageW(dialog, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

ShiftHeld::ShiftHeld() {
    GetKeyState(VK_SHIFT);  // the thread's state exists from the first question on
    GetKeyboardState(before_);
    BYTE held[sizeof before_];
    std::copy(std::begin(before_), std::end(before_), held);
    held[VK_SHIFT] = 0x80;
    SetKeyboardState(held);
}

ShiftHeld::~ShiftHeld() {
    SetKeyboardState(before_);
}

std::wstring TextOf(HWND window) {
    wchar_t text[256] = L"";
    GetWindowTextW(window, text, static_cast<int>(std::size(text)));
    return text;
}

LRESULT SendNotification(HWND window, HWND control, UINT id, UINT code) {
    NMHDR header{control, id, code};
    return SendMessageW(window, WM_NOTIFY, id, reinterpret_cast<LPARAM>(&header));
}

LRESULT SendCommand(HWND window, int id, int code, HWND control) {
    return SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
}
