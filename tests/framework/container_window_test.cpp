#include "framework/container_window.h"

#include <memory>

#include "framework/list_view.h"
#include "tests/framework/framework_test.h"

namespace {

constexpr int ButtonId = 10201;

// A control whose own table makes commands of one code and knows another.
class SpecialControl : public Control {
  public:
    SpecialControl(WindowObject* parentObject, PropertySet& properties)
        : Control(parentObject, L"Button", properties) {}

    [[nodiscard]] NativeCodeTable NativeCodes() const override {
        static constexpr NativeCode codes[] = {{5, event::RaiseAsCommand}, {6, event::FocusGained}, {10, 53}};
        return codes;
    }
};

// A window with a table of its own for notifications.
class SpecialWindow : public TestWindow {
  public:
    [[nodiscard]] NativeCodeTable NativeCodes() const override {
        static constexpr NativeCode codes[] = {{6, event::MaximumText}, {10, event::AskControl}};
        return codes;
    }
};

EventSource SourceOf(HWND window) {
    return reinterpret_cast<EventSource>(window);
}

class ContainerEvents : public FrameworkTest {
  protected:
    ContainerEvents() {
        PropertySet properties = ChildProperties(ButtonId);
        button_ = std::make_unique<Control>(&window_, L"Button", properties);
    }

    // A control of the window that has no object.
    HWND ForeignControl(const wchar_t* className, int id, DWORD style = 0) {
        return ::CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, 0, 60, 60, 24,
                                 window_.Handle(), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                                 Context().instance, nullptr);
    }

    TestWindow window_;
    std::unique_ptr<Control> button_;
    Listener listener_;
};

TEST_F(ContainerEvents, window_clips_its_children) {
    EXPECT_NE(GetWindowLongW(window_.Handle(), GWL_STYLE) & WS_CLIPCHILDREN, 0);
}

TEST_F(ContainerEvents, a_command_without_a_control_is_raised_by_its_id) {
    window_.OnCommand(40100, &listener_, &Listener::TakeEvent, 7);
    listener_.answer = 3;
    EXPECT_EQ(SendCommand(window_.Handle(), 40100, 0, nullptr), 3);
    EXPECT_EQ(SendCommand(window_.Handle(), 40100, 1, nullptr), 3) << "an accelerator's";
    ASSERT_EQ(listener_.events.size(), 2U);
    EXPECT_EQ(listener_.events[0].extra, 7U);
    EXPECT_EQ(listener_.events[0].record.message, static_cast<UINT>(WM_COMMAND));
    EXPECT_EQ(SendCommand(window_.Handle(), 40101, 0, nullptr), 0);
    EXPECT_EQ(listener_.events.size(), 2U);
}

TEST_F(ContainerEvents, a_real_click_is_raised_by_the_control) {
    button_->OnNotification(event::Command, &listener_, &Listener::TakeEvent);
    Listener byId;
    window_.OnCommand(ButtonId, &byId, &Listener::TakeEvent);
    SendMessageW(button_->Handle(), BM_CLICK, 0, 0);
    EXPECT_EQ(listener_.events.size(), 1U);
    EXPECT_TRUE(byId.events.empty());
}

TEST_F(ContainerEvents, a_control_s_code_is_translated_by_the_control_s_table) {
    window_.OnEvent(event::ButtonDoubleClicked, SourceOf(button_->Handle()), &listener_,
                    &Listener::TakeEvent);
    SendCommand(window_.Handle(), ButtonId, 5, button_->Handle());
    EXPECT_EQ(listener_.events.size(), 1U);
    SendCommand(window_.Handle(), ButtonId, 6, button_->Handle());
    EXPECT_EQ(listener_.events.size(), 1U);
}

TEST_F(ContainerEvents, a_control_s_code_that_its_table_lacks_is_raised_as_0) {
    window_.OnEvent(event::Command, SourceOf(button_->Handle()), &listener_, &Listener::TakeEvent);
    SendCommand(window_.Handle(), ButtonId, 99, button_->Handle());
    EXPECT_EQ(listener_.events.size(), 1U);
}

// The error codes of list and combo boxes are negative, and the message has 16 bits for them.
TEST_F(ContainerEvents, a_list_or_combo_box_without_memory_tells_so) {
    PropertySet lists = ChildProperties(10401);
    PropertySet combos = ChildProperties(10402);
    Control list(&window_, L"ListBox", lists);
    Control combo(&window_, L"combobox", combos);
    list.OnNotification(event::OutOfMemory, &listener_, &Listener::TakeEvent, 1);
    combo.OnNotification(event::OutOfMemory, &listener_, &Listener::TakeEvent, 2);
    SendCommand(window_.Handle(), 10401, -2, list.Handle());
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].extra, 1U);
    SendCommand(window_.Handle(), 10402, -1, combo.Handle());
    ASSERT_EQ(listener_.events.size(), 2U);
    EXPECT_EQ(listener_.events[1].extra, 2U);
}

TEST_F(ContainerEvents, a_real_edit_tells_that_its_text_changed) {
    PropertySet properties = ChildProperties(10701);
    Control edit(&window_, L"Edit", properties);
    edit.OnNotification(event::TextChanged, &listener_, &Listener::TakeEvent);
    SendMessageW(edit.Handle(), WM_CHAR, L'a', 1);
    EXPECT_EQ(listener_.events.size(), 1U);
}

TEST_F(ContainerEvents, a_control_without_an_object_is_raised_by_its_id_whatever_the_code) {
    const HWND foreign = ForeignControl(L"Button", 321);
    window_.OnCommand(321, &listener_, &Listener::TakeEvent);
    SendMessageW(foreign, BM_CLICK, 0, 0);
    EXPECT_EQ(listener_.events.size(), 1U);
    SendCommand(window_.Handle(), 321, 5, foreign);
    EXPECT_EQ(listener_.events.size(), 2U);
}

TEST_F(ContainerEvents, code_90_is_raised_exactly_as_a_menu_command_of_the_same_id) {
    PropertySet properties = ChildProperties(40100);
    SpecialControl special(&window_, properties);
    window_.OnCommand(40100, &listener_, &Listener::TakeEvent);
    Listener byControl;
    window_.OnEvent(event::RaiseAsCommand, SourceOf(special.Handle()), &byControl, &Listener::TakeEvent);
    window_.OnEvent(event::Command, SourceOf(special.Handle()), &byControl, &Listener::TakeEvent);
    SendCommand(window_.Handle(), 40100, 5, special.Handle());
    EXPECT_EQ(listener_.events.size(), 1U);
    EXPECT_TRUE(byControl.events.empty());
    SendCommand(window_.Handle(), 40100, 99, special.Handle());
    EXPECT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(byControl.events.size(), 1U);
}

TEST_F(ContainerEvents, a_notification_is_raised_by_the_control_with_its_structure) {
    window_.OnEvent(event::DoubleClick, SourceOf(button_->Handle()), &listener_, &Listener::TakeEvent);
    listener_.answer = 12;
    NMHDR header{button_->Handle(), ButtonId, NM_DBLCLK};
    EXPECT_EQ(SendMessageW(window_.Handle(), WM_NOTIFY, ButtonId, reinterpret_cast<LPARAM>(&header)), 12);
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].argument, reinterpret_cast<std::intptr_t>(&header));
    EXPECT_EQ(listener_.events[0].record.message, static_cast<UINT>(WM_NOTIFY));
}

TEST_F(ContainerEvents, a_notification_of_a_control_without_an_object_is_not_raised) {
    const HWND foreign = ForeignControl(L"Button", 321);
    window_.OnEvent(event::DoubleClick, SourceOf(foreign), &listener_, &Listener::TakeEvent);
    window_.OnEvent(event::DoubleClick, 321, &listener_, &Listener::TakeEvent);
    window_.OnCommand(321, &listener_, &Listener::TakeEvent);
    window_.OnEvent(event::Command, SourceOf(foreign), &listener_, &Listener::TakeEvent);
    EXPECT_EQ(SendNotification(window_.Handle(), foreign, 321, NM_DBLCLK), 0);
    EXPECT_TRUE(listener_.events.empty());
}

// Buttons notify of a pointer that comes over them, and of being drawn.
TEST_F(ContainerEvents, a_notification_that_no_table_knows_is_no_click) {
    button_->OnNotification(event::Command, &listener_, &Listener::TakeEvent);
    for (const UINT code : {UINT{NM_CUSTOMDRAW}, UINT{NM_SETFOCUS}, static_cast<UINT>(-1249)})
        SendNotification(window_.Handle(), button_->Handle(), ButtonId, code);
    EXPECT_TRUE(listener_.events.empty());
}

TEST_F(ContainerEvents, a_notification_or_a_drawing_without_its_structure_is_ignored) {
    window_.OnEvent(event::DrawItem, 0, &listener_, &Listener::TakeEvent);
    EXPECT_EQ(SendMessageW(window_.Handle(), WM_NOTIFY, ButtonId, 0), 0);
    EXPECT_EQ(SendMessageW(window_.Handle(), WM_DRAWITEM, ButtonId, 0), 1);
    EXPECT_TRUE(listener_.events.empty());
}

TEST_F(ContainerEvents, a_notification_is_translated_by_the_window_unless_it_asks_the_control) {
    SpecialWindow special;
    PropertySet properties = ChildProperties(5);
    SpecialControl control(&special, properties);
    const EventSource source = SourceOf(control.Handle());
    Listener windows;
    Listener controls;
    special.OnEvent(event::MaximumText, source, &windows, &Listener::TakeEvent);
    special.OnEvent(event::FocusGained, source, &controls, &Listener::TakeEvent);
    special.OnEvent(53, source, &controls, &Listener::TakeEvent);
    SendNotification(special.Handle(), control.Handle(), 5, 6);
    EXPECT_EQ(windows.events.size(), 1U) << "both know the code: the window's word stands";
    EXPECT_TRUE(controls.events.empty());
    SendNotification(special.Handle(), control.Handle(), 5, 10);
    EXPECT_EQ(windows.events.size(), 1U);
    EXPECT_EQ(controls.events.size(), 1U);
}

TEST_F(ContainerEvents, a_real_list_view_s_item_change_and_key_are_raised) {
    PropertySet properties = ChildProperties(900);
    ListView list(&window_, properties);
    Listener keys;
    list.OnNotification(event::ItemChanged, &listener_, &Listener::TakeEvent);
    list.OnNotification(event::KeyDown, &keys, &Listener::TakeEvent);
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    wchar_t text[] = L"row";
    item.pszText = text;
    SendMessageW(list.Handle(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    listener_.events.clear();
    item.stateMask = LVIS_SELECTED;
    item.state = LVIS_SELECTED;
    SendMessageW(list.Handle(), LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(listener_.events.size(), 1U);
    SendMessageW(list.Handle(), WM_KEYDOWN, VK_F2, 1);
    EXPECT_EQ(keys.events.size(), 1U);
}

TEST_F(ContainerEvents, drawing_of_an_item_is_raised_by_the_control_and_answered_1) {
    window_.OnEvent(event::DrawItem, SourceOf(button_->Handle()), &listener_, &Listener::TakeEvent);
    DRAWITEMSTRUCT item{};
    item.CtlID = ButtonId;
    item.hwndItem = button_->Handle();
    const auto address = reinterpret_cast<LPARAM>(&item);
    EXPECT_EQ(SendMessageW(window_.Handle(), WM_DRAWITEM, ButtonId, address), 1);
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].argument, address);
    listener_.answer = 44;
    EXPECT_EQ(SendMessageW(window_.Handle(), WM_DRAWITEM, ButtonId, address), 1)
        << "whatever the handler says";
}

TEST_F(ContainerEvents, a_real_owner_drawn_button_without_an_object_is_drawn_by_its_id) {
    window_.OnEvent(event::DrawItem, 654, &listener_, &Listener::TakeEvent);
    const HWND foreign = ForeignControl(L"Button", 654, BS_OWNERDRAW);
    RedrawWindow(foreign, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    ASSERT_FALSE(listener_.events.empty());
    EXPECT_EQ(listener_.events[0].record.message, static_cast<UINT>(WM_DRAWITEM));
}

TEST_F(ContainerEvents, drawing_of_an_item_that_nobody_draws_is_answered_1) {
    DRAWITEMSTRUCT item{};
    item.CtlID = 9;
    EXPECT_EQ(SendMessageW(window_.Handle(), WM_DRAWITEM, 9, reinterpret_cast<LPARAM>(&item)), 1);
}

class ContainerFocus : public ContainerEvents {
  protected:
    ContainerFocus() : other_(ForeignControl(L"Edit", 11)) {}

    void Activate(WORD how) const { SendMessageW(window_.Handle(), WM_ACTIVATE, how, 0); }

    HWND other_;
};

TEST_F(ContainerFocus, goes_back_to_where_it_was_when_the_window_was_deactivated) {
    SetFocus(button_->Handle());
    Activate(WA_INACTIVE);
    SetFocus(other_);
    Activate(WA_ACTIVE);
    EXPECT_EQ(GetFocus(), button_->Handle());
}

TEST_F(ContainerFocus, goes_back_after_another_window_was_active) {
    SetFocus(other_);
    {
        TestWindow second;
        SetActiveWindow(second.Handle());
        ASSERT_EQ(GetActiveWindow(), second.Handle());
        ASSERT_NE(GetFocus(), other_);
        SetActiveWindow(window_.Handle());
    }
    EXPECT_EQ(GetFocus(), other_);
}

TEST_F(ContainerFocus, of_the_window_itself_is_remembered_too) {
    SetFocus(button_->Handle());
    Activate(WA_INACTIVE);
    SetFocus(window_.Handle());
    Activate(WA_INACTIVE);
    SetFocus(other_);
    Activate(WA_CLICKACTIVE);
    EXPECT_EQ(GetFocus(), window_.Handle());
}

TEST_F(ContainerFocus, goes_to_the_window_when_nothing_was_remembered) {
    TestWindow fresh;
    SetFocus(button_->Handle());
    SendMessageW(fresh.Handle(), WM_ACTIVATE, WA_ACTIVE, 0);
    EXPECT_EQ(GetFocus(), fresh.Handle());
}

TEST_F(ContainerFocus, inside_the_window_stays_when_nothing_was_remembered) {
    SetFocus(other_);
    Activate(WA_ACTIVE);
    EXPECT_EQ(GetFocus(), other_);
}

TEST_F(ContainerFocus, is_not_sought_in_a_control_that_is_gone) {
    SetFocus(other_);
    Activate(WA_INACTIVE);
    DestroyWindow(other_);
    SetFocus(nullptr);
    Activate(WA_ACTIVE);
    EXPECT_EQ(GetFocus(), window_.Handle());
}

TEST_F(ContainerFocus, outside_the_window_is_not_remembered) {
    const TestWindow second;
    SetFocus(button_->Handle());
    Activate(WA_INACTIVE);
    SetFocus(second.Handle());
    Activate(WA_INACTIVE);
    Activate(WA_ACTIVE);
    EXPECT_EQ(GetFocus(), button_->Handle());
}

class ContainerFocusOfStops : public ContainerFocus {
  protected:
    ContainerFocusOfStops() {
        for (const HWND stop : {button_->Handle(), other_})
            SetWindowLongPtrW(stop, GWL_STYLE, GetWindowLongPtrW(stop, GWL_STYLE) | WS_TABSTOP);
        SetFocus(other_);
        Activate(WA_INACTIVE);
        SetFocus(nullptr);
    }
    static void Hide(HWND control) { ShowWindow(control, SW_HIDE); }
};

TEST_F(ContainerFocusOfStops, goes_to_the_next_stop_when_its_control_was_disabled_meanwhile) {
    EnableWindow(other_, FALSE);
    Activate(WA_ACTIVE);
    EXPECT_EQ(GetFocus(), button_->Handle());
}

TEST_F(ContainerFocusOfStops, goes_to_the_next_stop_when_its_control_was_hidden_meanwhile) {
    Hide(other_);
    Activate(WA_ACTIVE);
    EXPECT_EQ(GetFocus(), button_->Handle());
}

TEST_F(ContainerFocusOfStops, goes_to_the_window_when_no_control_can_take_it) {
    Hide(other_);
    EnableWindow(button_->Handle(), FALSE);
    Activate(WA_ACTIVE);
    EXPECT_EQ(GetFocus(), window_.Handle());
}

TEST_F(ContainerFocusOfStops, goes_beside_a_hidden_part_that_its_control_lies_in) {
    const HWND part = ForeignControl(L"Static", 12);
    SetParent(other_, part);
    Hide(part);
    Activate(WA_ACTIVE);
    EXPECT_EQ(GetFocus(), button_->Handle());
}

}  // namespace
