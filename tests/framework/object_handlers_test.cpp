#include "framework/control.h"
#include "framework/window_object.h"
#include "tests/framework/foreign_window.h"
#include "tests/framework/framework_test.h"

namespace {

constexpr UINT OtherMessage = WM_APP + 2;

class ObjectHandlers : public FrameworkTest {
  protected:
    Listener listener_;
};

class Messages : public ObjectHandlers {};

TEST_F(Messages, reach_the_newest_handler_with_its_extra_word_and_bring_its_answer_back) {
    TestWindow object;
    Listener newest;
    object.OnMessage(SumMessage, &listener_, &Listener::TakeMessage, 1);
    object.OnMessage(SumMessage, &newest, &Listener::TakeMessage, 2);
    newest.answer = 77;
    EXPECT_EQ(SendMessageW(object.Handle(), SumMessage, 5, 6), 77);
    EXPECT_TRUE(listener_.messages.empty());
    ASSERT_EQ(newest.messages.size(), 1U);
    EXPECT_EQ(newest.messages[0].message, SumMessage);
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
    object.OnMessage(SumMessage, &listener_, &Listener::TakeMessage);
    listener_.answer = 77;
    Application::Windows()->Remove(object.Handle());
    EXPECT_EQ(SendMessageW(object.Handle(), SumMessage, 5, 6), 0);
    EXPECT_TRUE(listener_.messages.empty());
    Application::Windows()->Insert(object.Handle(), &object);
    EXPECT_EQ(SendMessageW(object.Handle(), SumMessage, 5, 6), 77);
}

TEST_F(Messages, for_a_handle_that_is_no_window_any_more_reach_no_object) {
    TestWindow object;
    object.OnMessage(SumMessage, &listener_, &Listener::TakeMessage);
    listener_.answer = 77;
    const HWND window = object.Handle();
    DestroyWindow(window);
    EXPECT_EQ(FrameworkWindowProcedure(window, SumMessage, 5, 6), 0);
    // Not even through an entry that somebody has left in the map.
    Application::Windows()->Insert(window, &object);
    EXPECT_EQ(FrameworkWindowProcedure(window, SumMessage, 5, 6), 0);
    Application::Windows()->Remove(window);
    EXPECT_TRUE(listener_.messages.empty());
}

// For a wrapped control both the saved procedure and the object are gone.
TEST_F(Messages, of_a_window_that_outlives_its_subclassing_object_get_the_system_s_default) {
    const ForeignWindow foreign;
    {
        WindowObject wrapper(nullptr, foreign.window);
        wrapper.Subclass();
        EXPECT_EQ(SendMessageW(foreign.window, SumMessage, 30, 4), 34);
    }
    EXPECT_TRUE(IsWindow(foreign.window));
    EXPECT_EQ(SendMessageW(foreign.window, SumMessage, 30, 4), 0);
}

class Subclassing : public ObjectHandlers {};

TEST_F(Subclassing, passes_messages_through_the_object_and_on_to_the_saved_procedure) {
    const ForeignWindow foreign;
    WindowObject wrapper(nullptr, foreign.window);
    wrapper.OnMessage(OtherMessage, &listener_, &Listener::TakeMessage);
    listener_.answer = 9;
    EXPECT_EQ(SendMessageW(foreign.window, OtherMessage, 0, 0), 0) << "not before it is subclassed";
    wrapper.Subclass();
    EXPECT_EQ(SendMessageW(foreign.window, OtherMessage, 0, 0), 9);
    EXPECT_EQ(SendMessageW(foreign.window, SumMessage, 30, 4), 34);
}

TEST_F(Subclassing, twice_is_the_same_as_once) {
    const ForeignWindow foreign;
    WindowObject wrapper(nullptr, foreign.window);
    wrapper.Subclass();
    wrapper.Subclass();
    // A procedure that had saved itself would never come back.
    EXPECT_EQ(SendMessageW(foreign.window, SumMessage, 30, 4), 34);
    EXPECT_EQ(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(foreign.window, GWLP_WNDPROC)),
              &FrameworkWindowProcedure);
}

TEST_F(Subclassing, lets_a_handler_ask_the_control_itself) {
    TestWindow parent;
    PropertySet properties = ChildProperties(5);
    Control edit(&parent, L"Edit", properties);
    edit.Subclass();
    SetWindowTextW(edit.Handle(), L"words");
    edit.OnMessage(WM_GETTEXTLENGTH, &listener_, &Listener::TakeMessage);
    listener_.answer = 2;
    EXPECT_EQ(SendMessageW(edit.Handle(), WM_GETTEXTLENGTH, 0, 0), 2);
    MessageRecord record{WM_GETTEXTLENGTH, 0, 0, 0, 0};
    EXPECT_EQ(edit.DefaultProcessing(record), 5);
}

class Events : public ObjectHandlers {};

TEST_F(Events, reach_the_newest_handler_with_everything_and_store_its_answer) {
    TestWindow object;
    Listener newest;
    object.OnEvent(event::KeyDown, 300, &listener_, &Listener::TakeEvent, 1);
    object.OnEvent(event::KeyDown, 300, &newest, &Listener::TakeEvent, 2);
    newest.answer = 55;
    MessageRecord record{WM_NOTIFY, 7, 8, 0, 0};
    EXPECT_TRUE(object.RaiseEvent(event::KeyDown, 300, -4, record));
    EXPECT_EQ(record.result, 55);
    EXPECT_TRUE(listener_.events.empty());
    ASSERT_EQ(newest.events.size(), 1U);
    EXPECT_EQ(newest.events[0].extra, 2U);
    EXPECT_EQ(newest.events[0].argument, -4);
    EXPECT_EQ(newest.events[0].record.message, static_cast<UINT>(WM_NOTIFY));
    EXPECT_EQ(newest.events[0].record.wParam, 7U);
    EXPECT_EQ(newest.events[0].record.lParam, 8);
}

TEST_F(Events, of_another_code_or_source_change_nothing) {
    TestWindow object;
    object.OnEvent(event::KeyDown, 300, &listener_, &Listener::TakeEvent);
    listener_.answer = 55;
    MessageRecord record{WM_NOTIFY, 0, 0, 0, 3};
    EXPECT_FALSE(object.RaiseEvent(event::KeyDown, 301, 0, record));
    EXPECT_FALSE(object.RaiseEvent(event::ItemChanged, 300, 0, record));
    EXPECT_EQ(record.result, 3);
    EXPECT_TRUE(listener_.events.empty());
}

}  // namespace
