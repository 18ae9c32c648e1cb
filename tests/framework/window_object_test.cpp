#include "framework/window_object.h"

#include "framework/control.h"
#include "tests/framework/framework_test.h"

namespace {

constexpr UINT TestMessage = WM_APP + 1;
constexpr UINT OtherMessage = WM_APP + 2;

LRESULT CALLBACK AnsweringProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == TestMessage) return static_cast<LRESULT>(wParam) + lParam;
    return DefWindowProcW(window, message, wParam, lParam);
}

// A window that the framework knows nothing of.
class ForeignWindow {
  public:
    ForeignWindow() {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = AnsweringProcedure;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.lpszClassName = L"ForeignWindow";
        ::RegisterClassW(&windowClass);
        window = ::CreateWindowExW(0, L"ForeignWindow", L"", WS_POPUP, 0, 0, 50, 40, nullptr, nullptr,
                                   GetModuleHandleW(nullptr), nullptr);
    }
    ~ForeignWindow() { DestroyWindow(window); }
    ForeignWindow(const ForeignWindow&) = delete;
    ForeignWindow& operator=(const ForeignWindow&) = delete;

    HWND window = nullptr;
};

class WindowObjects : public FrameworkTest {
  protected:
    Listener listener;
};

TEST_F(WindowObjects, created_without_a_class_name_get_the_class_value) {
    WNDCLASSW known{};
    ASSERT_FALSE(GetClassInfoW(Globals().instance, L"Value", &known)) << "registered on first use only";
    PropertySet properties;
    properties.Set(property::Style, WS_POPUP);
    const WindowObject object(nullptr, L"Title", properties);
    ASSERT_NE(object.Handle(), nullptr);
    wchar_t name[32] = L"";
    GetClassNameW(object.Handle(), name, 32);
    EXPECT_EQ(std::wstring(name), L"Value");
    EXPECT_EQ(std::wstring(properties.GetText(property::ClassName)), L"Value") << "stored into the set";
    EXPECT_TRUE(GetClassInfoW(Globals().instance, L"Value", &known));
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
    object.OnNotification(event::KeyDown, &listener, &Listener::TakeEvent);
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
    object.OnMessage(WM_SHOWWINDOW, &listener, &Listener::TakeMessage);
    object.OnMessage(WM_ENABLE, &listener, &Listener::TakeMessage);
    object.Disable();
    ASSERT_EQ(listener.messages.size(), 3U);
    EXPECT_EQ(listener.messages[0].message, static_cast<UINT>(WM_SHOWWINDOW));
    EXPECT_EQ(listener.messages[0].wParam, 0U);
    EXPECT_EQ(listener.messages[1].message, static_cast<UINT>(WM_ENABLE));
    EXPECT_EQ(listener.messages[1].wParam, 0U);
    EXPECT_EQ(listener.messages[2].message, static_cast<UINT>(WM_SHOWWINDOW));
    EXPECT_EQ(listener.messages[2].wParam, 1U);
    EXPECT_TRUE(IsWindowVisible(object.Handle()));
    EXPECT_FALSE(IsWindowEnabled(object.Handle()));
}

TEST_F(WindowObjects, are_shown_first_when_enabled) {
    TestWindow object;
    EnableWindow(object.Handle(), FALSE);
    ShowWindow(object.Handle(), SW_HIDE);
    object.OnMessage(WM_SHOWWINDOW, &listener, &Listener::TakeMessage);
    object.OnMessage(WM_ENABLE, &listener, &Listener::TakeMessage);
    object.Enable();
    ASSERT_EQ(listener.messages.size(), 2U);
    EXPECT_EQ(listener.messages[0].message, static_cast<UINT>(WM_SHOWWINDOW));
    EXPECT_EQ(listener.messages[0].wParam, 1U);
    EXPECT_EQ(listener.messages[1].message, static_cast<UINT>(WM_ENABLE));
    EXPECT_EQ(listener.messages[1].wParam, 1U);
    EXPECT_TRUE(IsWindowVisible(object.Handle()));
    EXPECT_TRUE(IsWindowEnabled(object.Handle()));
}

class Messages : public WindowObjects {};

TEST_F(Messages, reach_the_newest_handler_with_its_extra_word_and_bring_its_answer_back) {
    TestWindow object;
    Listener newest;
    object.OnMessage(TestMessage, &listener, &Listener::TakeMessage, 1);
    object.OnMessage(TestMessage, &newest, &Listener::TakeMessage, 2);
    newest.answer = 77;
    EXPECT_EQ(SendMessageW(object.Handle(), TestMessage, 5, 6), 77);
    EXPECT_TRUE(listener.messages.empty());
    ASSERT_EQ(newest.messages.size(), 1U);
    EXPECT_EQ(newest.messages[0].message, TestMessage);
    EXPECT_EQ(newest.messages[0].wParam, 5U);
    EXPECT_EQ(newest.messages[0].lParam, 6);
    EXPECT_EQ(newest.messages[0].extra, 2U);
    EXPECT_EQ(newest.messages[0].result, 0);
}

TEST_F(Messages, without_a_handler_get_the_system_s_default) {
    TestWindow object;
    SendMessageW(object.Handle(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"New title"));
    EXPECT_EQ(TextOf(object.Handle()), L"New title");
    EXPECT_EQ(SendMessageW(object.Handle(), OtherMessage, 5, 6), 0);
}

TEST_F(Messages, for_a_window_that_has_no_object_get_the_system_s_default) {
    TestWindow object;
    object.OnMessage(TestMessage, &listener, &Listener::TakeMessage);
    listener.answer = 77;
    Application::Windows()->Remove(object.Handle());
    EXPECT_EQ(SendMessageW(object.Handle(), TestMessage, 5, 6), 0);
    EXPECT_TRUE(listener.messages.empty());
    Application::Windows()->Insert(object.Handle(), &object);
    EXPECT_EQ(SendMessageW(object.Handle(), TestMessage, 5, 6), 77);
}

TEST_F(Messages, for_a_handle_that_is_no_window_any_more_reach_no_object) {
    TestWindow object;
    object.OnMessage(TestMessage, &listener, &Listener::TakeMessage);
    listener.answer = 77;
    const HWND window = object.Handle();
    DestroyWindow(window);
    EXPECT_EQ(FrameworkWindowProcedure(window, TestMessage, 5, 6), 0);
    EXPECT_TRUE(listener.messages.empty());
}

// For a wrapped control both the saved procedure and the object are gone.
TEST_F(Messages, of_a_window_that_outlives_its_subclassing_object_get_the_system_s_default) {
    const ForeignWindow foreign;
    {
        WindowObject wrapper(nullptr, foreign.window);
        wrapper.Subclass();
        EXPECT_EQ(SendMessageW(foreign.window, TestMessage, 30, 4), 34);
    }
    EXPECT_TRUE(IsWindow(foreign.window));
    EXPECT_EQ(SendMessageW(foreign.window, TestMessage, 30, 4), 0);
}

class Subclassing : public WindowObjects {};

TEST_F(Subclassing, passes_messages_through_the_object_and_on_to_the_saved_procedure) {
    const ForeignWindow foreign;
    WindowObject wrapper(nullptr, foreign.window);
    wrapper.OnMessage(OtherMessage, &listener, &Listener::TakeMessage);
    listener.answer = 9;
    EXPECT_EQ(SendMessageW(foreign.window, OtherMessage, 0, 0), 0) << "not before it is subclassed";
    wrapper.Subclass();
    EXPECT_EQ(SendMessageW(foreign.window, OtherMessage, 0, 0), 9);
    EXPECT_EQ(SendMessageW(foreign.window, TestMessage, 30, 4), 34);
}

TEST_F(Subclassing, twice_is_the_same_as_once) {
    const ForeignWindow foreign;
    WindowObject wrapper(nullptr, foreign.window);
    wrapper.Subclass();
    wrapper.Subclass();
    // A procedure that had saved itself would never come back.
    EXPECT_EQ(SendMessageW(foreign.window, TestMessage, 30, 4), 34);
    EXPECT_EQ(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(foreign.window, GWLP_WNDPROC)),
              &FrameworkWindowProcedure);
}

TEST_F(Subclassing, lets_a_handler_ask_the_control_itself) {
    TestWindow parent;
    PropertySet properties = ChildProperties(5);
    Control edit(&parent, L"Edit", properties);
    edit.Subclass();
    SetWindowTextW(edit.Handle(), L"words");
    edit.OnMessage(WM_GETTEXTLENGTH, &listener, &Listener::TakeMessage);
    listener.answer = 2;
    EXPECT_EQ(SendMessageW(edit.Handle(), WM_GETTEXTLENGTH, 0, 0), 2);
    MessageRecord record{WM_GETTEXTLENGTH, 0, 0, 0, 0};
    EXPECT_EQ(edit.DefaultProcessing(record), 5);
}

class Events : public WindowObjects {};

TEST_F(Events, reach_the_newest_handler_with_everything_and_store_its_answer) {
    TestWindow object;
    Listener newest;
    object.OnEvent(event::KeyDown, 300, &listener, &Listener::TakeEvent, 1);
    object.OnEvent(event::KeyDown, 300, &newest, &Listener::TakeEvent, 2);
    newest.answer = 55;
    MessageRecord record{WM_NOTIFY, 7, 8, 0, 0};
    EXPECT_TRUE(object.RaiseEvent(event::KeyDown, 300, -4, record));
    EXPECT_EQ(record.result, 55);
    EXPECT_TRUE(listener.events.empty());
    ASSERT_EQ(newest.events.size(), 1U);
    EXPECT_EQ(newest.events[0].extra, 2U);
    EXPECT_EQ(newest.events[0].argument, -4);
    EXPECT_EQ(newest.events[0].record.message, static_cast<UINT>(WM_NOTIFY));
    EXPECT_EQ(newest.events[0].record.wParam, 7U);
    EXPECT_EQ(newest.events[0].record.lParam, 8);
}

TEST_F(Events, of_another_code_or_source_change_nothing) {
    TestWindow object;
    object.OnEvent(event::KeyDown, 300, &listener, &Listener::TakeEvent);
    listener.answer = 55;
    MessageRecord record{WM_NOTIFY, 0, 0, 0, 3};
    EXPECT_FALSE(object.RaiseEvent(event::KeyDown, 301, 0, record));
    EXPECT_FALSE(object.RaiseEvent(event::ItemChanged, 300, 0, record));
    EXPECT_EQ(record.result, 3);
    EXPECT_TRUE(listener.events.empty());
}

}  // namespace
