#include "framework/window_object.h"

#include <memory>

#include "framework/control.h"
#include "tests/framework/foreign_window.h"
#include "tests/framework/framework_test.h"

namespace {

class WindowObjects : public FrameworkTest {
  protected:
    Listener listener_;
};

TEST_F(WindowObjects, created_without_a_class_name_get_the_class_value) {
    WNDCLASSW known{};
    ASSERT_FALSE(GetClassInfoW(Context().instance, L"Value", &known)) << "registered on first use only";
    PropertySet properties;
    properties.Set(property::Style, WS_POPUP);
    const WindowObject object(nullptr, L"Title", properties);
    ASSERT_NE(object.Handle(), nullptr);
    wchar_t name[32] = L"";
    GetClassNameW(object.Handle(), name, 32);
    EXPECT_EQ(std::wstring(name), L"Value");
    EXPECT_EQ(std::wstring(properties.GetText(property::ClassName)), L"Value") << "stored into the set";
    EXPECT_TRUE(GetClassInfoW(Context().instance, L"Value", &known));
}

TEST_F(WindowObjects, are_created_as_the_set_says) {
    TestWindow parent;
    PropertySet properties;
    properties.SetText(property::ClassName, L"ClassOfPlacedWindow");
    properties.Set(property::Style, WS_CHILD | WS_TABSTOP);
    properties.Set(property::ExtendedStyle, WS_EX_CLIENTEDGE);
    properties.Set(property::X, 11);
    properties.Set(property::Y, 22);
    properties.Set(property::Width, 133);
    properties.Set(property::Height, 44);
    properties.Set(property::ControlId, 1234);
    const WindowObject object(&parent, L"A title", properties);
    ASSERT_NE(object.Handle(), nullptr);
    EXPECT_EQ(TextOf(object.Handle()), L"A title");
    EXPECT_EQ(GetParent(object.Handle()), parent.Handle());
    EXPECT_EQ(GetDlgCtrlID(object.Handle()), 1234);
    EXPECT_EQ(GetWindowLongW(object.Handle(), GWL_STYLE) & (WS_CHILD | WS_TABSTOP), WS_CHILD | WS_TABSTOP);
    EXPECT_NE(GetWindowLongW(object.Handle(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
    RECT place{};
    GetWindowRect(object.Handle(), &place);
    MapWindowPoints(nullptr, parent.Handle(), reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.left, 11);
    EXPECT_EQ(place.top, 22);
    EXPECT_EQ(place.right - place.left, 133);
    EXPECT_EQ(place.bottom - place.top, 44);
    EXPECT_EQ(object.Parent(), &parent);
    EXPECT_EQ(object.ParentHandle(), parent.Handle());
}

std::uintptr_t seenParameter = 0;

LRESULT CALLBACK ParameterProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        seenParameter =
            reinterpret_cast<std::uintptr_t>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

TEST_F(WindowObjects, hand_the_creation_parameter_over) {
    seenParameter = 0;
    PropertySet properties;
    properties.SetText(property::ClassName, L"ClassWithParameter");
    properties.Set(property::Style, WS_POPUP);
    properties.Set(property::WindowProcedure, reinterpret_cast<PropertyValue>(&ParameterProcedure));
    properties.Set(property::CreationParameter, 4711);
    const WindowObject object(nullptr, L"", properties);
    EXPECT_EQ(seenParameter, 4711U);
}

TEST_F(WindowObjects, that_create_their_window_own_it_and_are_found_by_it) {
    HWND window = nullptr;
    {
        const TestWindow object;
        window = object.Handle();
        ASSERT_NE(window, nullptr);
        EXPECT_TRUE(object.OwnsHandle());
        EXPECT_EQ(Application::Windows()->Find(window), &object);
    }
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(Application::Windows()->Find(window), nullptr);
}

TEST_F(WindowObjects, that_wrap_a_window_are_found_by_it_and_leave_it_alive) {
    const ForeignWindow foreign;
    {
        const WindowObject wrapper(nullptr, foreign.window);
        EXPECT_FALSE(wrapper.OwnsHandle());
        EXPECT_EQ(Application::Windows()->Find(foreign.window), &wrapper);
    }
    EXPECT_TRUE(IsWindow(foreign.window));
    EXPECT_EQ(Application::Windows()->Find(foreign.window), nullptr);
}

TEST_F(WindowObjects, outlive_a_window_that_was_destroyed_before_them) {
    TestWindow parent;
    const HWND window = parent.Handle();
    PropertySet properties = ChildProperties(5);
    const auto child = std::make_unique<Control>(&parent, L"Button", properties);
    DestroyWindow(window);
    EXPECT_FALSE(IsWindow(child->Handle()));
}

TEST_F(WindowObjects, without_a_window_are_harmless) {
    WindowObject object(nullptr, nullptr);
    EXPECT_EQ(object.Handle(), nullptr);
    EXPECT_FALSE(object.OwnsHandle());
    object.Move(1, 2, 3, 4);
    object.Enable();
    object.Disable();
    object.Subclass();
    object.OnNotification(event::KeyDown, &listener_, &Listener::TakeEvent);
    const RECT area = object.LayoutRectangle();
    EXPECT_EQ(area.right, 0);
    EXPECT_EQ(area.bottom, 0);
    MessageRecord record;
    EXPECT_FALSE(object.RaiseEvent(event::KeyDown, 0, 0, record)) << "with no parent nobody takes it";
}

TEST_F(WindowObjects, start_unmarked_as_pages) {
    WindowObject object(nullptr, nullptr);
    EXPECT_FALSE(object.IsPage());
    object.MarkAsPage();
    EXPECT_TRUE(object.IsPage());
}

TEST_F(WindowObjects, lay_out_in_their_client_area_and_move) {
    PropertySet properties = PopupProperties();
    properties.Set(property::Style, WS_BORDER);
    TestWindow object(properties);
    object.Move(30, 40, 120, 90);
    RECT place{};
    GetWindowRect(object.Handle(), &place);
    EXPECT_EQ(place.left, 30);
    EXPECT_EQ(place.top, 40);
    EXPECT_EQ(place.right, 150);
    EXPECT_EQ(place.bottom, 130);
    const RECT area = object.LayoutRectangle();
    EXPECT_EQ(area.left, 0);
    EXPECT_EQ(area.top, 0);
    EXPECT_EQ(area.right, 120 - 2 * GetSystemMetrics(SM_CXBORDER));
    EXPECT_EQ(area.bottom, 90 - 2 * GetSystemMetrics(SM_CYBORDER));
}

TEST_F(WindowObjects, are_hidden_and_shown_again_when_disabled) {
    TestWindow object;
    object.OnMessage(WM_SHOWWINDOW, &listener_, &Listener::TakeMessage);
    object.OnMessage(WM_ENABLE, &listener_, &Listener::TakeMessage);
    object.Disable();
    ASSERT_EQ(listener_.messages.size(), 3U);
    EXPECT_EQ(listener_.messages[0].message, static_cast<UINT>(WM_SHOWWINDOW));
    EXPECT_EQ(listener_.messages[0].wParam, 0U);
    EXPECT_EQ(listener_.messages[1].message, static_cast<UINT>(WM_ENABLE));
    EXPECT_EQ(listener_.messages[1].wParam, 0U);
    EXPECT_EQ(listener_.messages[2].message, static_cast<UINT>(WM_SHOWWINDOW));
    EXPECT_EQ(listener_.messages[2].wParam, 1U);
    EXPECT_TRUE(IsWindowVisible(object.Handle()));
    EXPECT_FALSE(IsWindowEnabled(object.Handle()));
}

TEST_F(WindowObjects, are_shown_first_when_enabled) {
    TestWindow object;
    EnableWindow(object.Handle(), FALSE);
    ShowWindow(object.Handle(), SW_HIDE);
    object.OnMessage(WM_SHOWWINDOW, &listener_, &Listener::TakeMessage);
    object.OnMessage(WM_ENABLE, &listener_, &Listener::TakeMessage);
    object.Enable();
    ASSERT_EQ(listener_.messages.size(), 2U);
    EXPECT_EQ(listener_.messages[0].message, static_cast<UINT>(WM_SHOWWINDOW));
    EXPECT_EQ(listener_.messages[0].wParam, 1U);
    EXPECT_EQ(listener_.messages[1].message, static_cast<UINT>(WM_ENABLE));
    EXPECT_EQ(listener_.messages[1].wParam, 1U);
    EXPECT_TRUE(IsWindowVisible(object.Handle()));
    EXPECT_TRUE(IsWindowEnabled(object.Handle()));
}

}  // namespace
