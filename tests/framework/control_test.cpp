#include "framework/control.h"

#include <memory>

#include "framework/combo_box.h"
#include "framework/list_view.h"
#include "tests/framework/framework_test.h"

namespace {

class Controls : public FrameworkTest {
  protected:
    TestWindow window_;
    Listener listener_;
};

TEST_F(Controls, are_visible_children_of_their_class_by_default) {
    PropertySet properties = ChildProperties(77);
    properties.Set(property::Style, WS_TABSTOP);
    const Control control(&window_, L"Edit", properties);
    ASSERT_NE(control.Handle(), nullptr);
    const LONG style = GetWindowLongW(control.Handle(), GWL_STYLE);
    EXPECT_EQ(style & (WS_CHILD | WS_VISIBLE | WS_TABSTOP), WS_CHILD | WS_VISIBLE | WS_TABSTOP);
    EXPECT_EQ(properties.Get(property::Style), 0x50010000U);
    wchar_t name[32] = L"";
    GetClassNameW(control.Handle(), name, 32);
    EXPECT_EQ(std::wstring(name), L"Edit");
    EXPECT_EQ(GetParent(control.Handle()), window_.Handle());
    EXPECT_EQ(GetDlgCtrlID(control.Handle()), 77);
    EXPECT_TRUE(control.OwnsHandle());
    EXPECT_EQ(TextOf(control.Handle()), L"");
}

TEST_F(Controls, translate_by_the_table_of_their_class) {
    PropertySet edits = ChildProperties(1);
    PropertySet lists = ChildProperties(2);
    const Control edit(&window_, L"Edit", edits);
    const ListView list(&window_, lists);
    EXPECT_EQ(edit.NativeCodes().size(), 8U);
    EXPECT_EQ(list.NativeCodes().size(), 18U);
}

TEST_F(Controls, wrapped_in_a_window_that_is_no_dialog_are_owned) {
    PropertySet properties = ChildProperties(1);
    const auto made = std::make_unique<Control>(&window_, L"Button", properties);
    HWND const existing = made->Handle();
    {
        const Control wrapper(&window_, existing, L"Button");
        EXPECT_TRUE(wrapper.OwnsHandle());
    }
    EXPECT_FALSE(IsWindow(existing));
}

// Only the class "Dialog" itself is one of dialogs.
TEST_F(Controls, wrapped_in_a_window_whose_class_begins_like_a_dialog_s_are_owned) {
    for (const wchar_t* name : {L"DialogFrame", L"Dialo", L"dialog"}) {
        PropertySet properties = PopupProperties();
        properties.SetText(property::ClassName, name);
        TestWindow parent(properties);
        PropertySet place = ChildProperties(1);
        const Control made(&parent, L"Button", place);
        EXPECT_FALSE(IsDialogWindow(parent.Handle()));
        const Control wrapper(&parent, made.Handle(), L"Button");
        EXPECT_TRUE(wrapper.OwnsHandle());
    }
}

TEST_F(Controls, can_be_wrapped_without_owning_them) {
    PropertySet properties = ChildProperties(1);
    const Control made(&window_, L"Button", properties);
    {
        const Control wrapper(&window_, made.Handle(), L"Button", Ownership::Wrapped);
        EXPECT_FALSE(wrapper.OwnsHandle());
    }
    EXPECT_TRUE(IsWindow(made.Handle()));
}

TEST_F(Controls, in_a_window_that_is_no_dialog_notify_by_their_handle) {
    PropertySet properties = ChildProperties(33);
    Control control(&window_, L"Button", properties);
    control.OnNotification(event::FocusGained, &listener_, &Listener::TakeEvent, 5);
    MessageRecord record;
    EXPECT_FALSE(window_.RaiseEvent(event::FocusGained, 33, 0, record));
    EXPECT_TRUE(
        window_.RaiseEvent(event::FocusGained, reinterpret_cast<EventSource>(control.Handle()), 0, record));
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].extra, 5U);
    EXPECT_FALSE(
        control.RaiseEvent(event::FocusGained, reinterpret_cast<EventSource>(control.Handle()), 0, record))
        << "the parent's table has it, not the control's";
}

TEST_F(Controls, raise_their_own_events_on_themselves) {
    PropertySet properties = ChildProperties(33);
    const Control made(&window_, L"Edit", properties);
    TextField field(&window_, made.Handle(), Ownership::Wrapped);
    field.OnNotification(event::EnterKey, &listener_, &Listener::TakeEvent);
    const auto source = reinterpret_cast<EventSource>(field.Handle());
    MessageRecord record;
    EXPECT_FALSE(window_.RaiseEvent(event::EnterKey, source, 0, record));
    EXPECT_TRUE(field.RaiseEvent(event::EnterKey, source, 0, record));
    field.OnNotification(event::TextChanged, &listener_, &Listener::TakeEvent);
    EXPECT_TRUE(window_.RaiseEvent(event::TextChanged, source, 0, record)) << "not one of its own";
}

class TabControls : public Controls {
  protected:
    TabControls() {
        PropertySet properties;
        properties.Set(property::Width, 200);
        properties.Set(property::Height, 126);
        tab_ = std::make_unique<TabControl>(&window_, properties);
    }

    std::unique_ptr<TabControl> tab_;
};

TEST_F(TabControls, append_items_with_their_texts) {
    EXPECT_EQ(tab_->Selected(), -1);
    EXPECT_EQ(tab_->AppendItem(L"Name"), 0);
    EXPECT_EQ(tab_->AppendItem(L"日付"), 1);
    EXPECT_EQ(tab_->AppendItem(L"Etc"), 2);
    EXPECT_EQ(SendMessageW(tab_->Handle(), TCM_GETITEMCOUNT, 0, 0), 3);
    wchar_t text[16] = L"";
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 16;
    ASSERT_TRUE(SendMessageW(tab_->Handle(), TCM_GETITEMW, 1, reinterpret_cast<LPARAM>(&item)));
    EXPECT_EQ(std::wstring(item.pszText), L"日付");
    EXPECT_EQ(tab_->Selected(), 0);
}

TEST_F(TabControls, select_an_item_by_its_index) {
    for (const wchar_t* text : {L"Name", L"Date", L"Etc"})
        tab_->AppendItem(text);
    tab_->Select(2);
    EXPECT_EQ(tab_->Selected(), 2);
    tab_->Select(1);
    EXPECT_EQ(tab_->Selected(), 1);
}

TEST_F(TabControls, leave_their_pages_the_area_below_the_items) {
    tab_->AppendItem(L"Name");
    const RECT area = tab_->DisplayArea();
    RECT item{};
    SendMessageW(tab_->Handle(), TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_GE(area.top, item.bottom);
    EXPECT_GE(area.left, 0);
    EXPECT_LE(area.right, 200);
    EXPECT_LE(area.bottom, 126);
    EXPECT_GT(area.right - area.left, 180);
    EXPECT_GT(area.bottom - area.top, 80);
}

TEST_F(TabControls, tell_of_a_selection_made_by_key) {
    for (const wchar_t* text : {L"Name", L"Date"})
        tab_->AppendItem(text);
    Listener changing;
    Listener keys;
    tab_->OnNotification(event::SelectionChanged, &listener_, &Listener::TakeEvent);
    tab_->OnNotification(event::SelectionChanging, &changing, &Listener::TakeEvent);
    tab_->OnNotification(event::KeyDown, &keys, &Listener::TakeEvent);
    SetFocus(tab_->Handle());
    TypeKey(tab_->Handle(), VK_RIGHT);
    EXPECT_EQ(tab_->Selected(), 1);
    EXPECT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(changing.events.size(), 1U);
    EXPECT_EQ(keys.events.size(), 1U);
}

TEST_F(TabControls, keep_a_selection_that_a_handler_refuses) {
    for (const wchar_t* text : {L"Name", L"Date"})
        tab_->AppendItem(text);
    tab_->OnNotification(event::SelectionChanging, &listener_, &Listener::TakeEvent);
    listener_.answer = TRUE;
    RECT item{};
    SendMessageW(tab_->Handle(), TCM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&item));
    const LPARAM place = MAKELPARAM((item.left + item.right) / 2, (item.top + item.bottom) / 2);
    SendMessageW(tab_->Handle(), WM_LBUTTONDOWN, MK_LBUTTON, place);
    SendMessageW(tab_->Handle(), WM_LBUTTONUP, 0, place);
    EXPECT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(tab_->Selected(), 0);
    listener_.answer = FALSE;
    SendMessageW(tab_->Handle(), WM_LBUTTONDOWN, MK_LBUTTON, place);
    SendMessageW(tab_->Handle(), WM_LBUTTONUP, 0, place);
    EXPECT_EQ(tab_->Selected(), 1);
}

}  // namespace
