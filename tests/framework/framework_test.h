#pragma once

// What the framework's tests share: an application with its window map for each test, a listener that notes
// what reaches it, and small helpers around real windows.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/program_context.h"
#include "framework/application.h"
#include "framework/container_window.h"
#include "framework/property_set.h"

// Gives each test an application and a program context of its own: this program's instance, English.
class FrameworkTest : public testing::Test {
  protected:
    FrameworkTest();
    ~FrameworkTest() override;

    Application application_{L"Framework test", 0, nullptr};

  private:
    ProgramContext contextBefore_;
};

struct NotedEvent {
    std::uintptr_t extra;
    std::intptr_t argument;
    MessageRecord record;
};

// A target for handlers; it has no window.
class Listener : public WindowObject {
  public:
    Listener() : WindowObject(nullptr, nullptr) {}

    LRESULT TakeEvent(EventArguments& arguments);
    LRESULT TakeMessage(MessageRecord& record);

    LRESULT answer = 0;
    std::vector<NotedEvent> events;
    std::vector<MessageRecord> messages;
};

// A place for a window of 200 x 150 at the screen's corner, as a top-level window without a frame.
PropertySet PopupProperties();
// A place for a control of 80 x 24 inside a parent, with this id.
PropertySet ChildProperties(int id);

// A visible top-level window with children.
class TestWindow : public ContainerWindow {
  public:
    TestWindow() : TestWindow(PopupProperties()) {}
    explicit TestWindow(PropertySet properties) : ContainerWindow(nullptr, L"Test window", properties) {}
};

// Dispatches what is waiting.
void PumpMessages();

// Posts the key as the keyboard does and dispatches it; inside a dialog, its keyboard rules come first.
void TypeKey(HWND window, WPARAM key, HWND dialog = nullptr);

// Holds Shift down, for what asks the keyboard's state.
class ShiftHeld {
  public:
    ShiftHeld();
    ~ShiftHeld();
    ShiftHeld(const ShiftHeld&) = delete;
    ShiftHeld& operator=(const ShiftHeld&) = delete;

  private:
    BYTE before_[256];
};

[[nodiscard]] std::wstring TextOf(HWND window);
// What WM_NOTIFY brings, sent to the window as its control would.
LRESULT SendNotification(HWND window, HWND control, UINT id, UINT code);
LRESULT SendCommand(HWND window, int id, int code, HWND control);
