#include <memory>

#include "framework/combo_box.h"
#include "framework/dialog.h"
#include "tests/framework/dialog_ids.h"
#include "tests/framework/test_dialog.h"

namespace {

class DialogEvents : public FrameworkTest {
  protected:
    DialogEvents() { dialog_.CreateModeless(); }

    TestDialog dialog_{L"Plain_E"};
    Listener listener_;
};

class DialogCommands : public DialogEvents {};

TEST_F(DialogCommands, without_a_control_are_raised_by_their_id) {
    dialog_.OnCommand(IDOK, &listener_, &Listener::TakeEvent);
    dialog_.OnCommand(40100, &listener_, &Listener::TakeEvent);
    SendCommand(dialog_.Handle(), IDOK, 0, nullptr);
    EXPECT_EQ(listener_.events.size(), 1U);
    SendCommand(dialog_.Handle(), 40100, 0, nullptr);
    EXPECT_EQ(listener_.events.size(), 2U);
}

TEST_F(DialogCommands, cancel_without_a_control_ends_with_result_2_at_once) {
    TestDialog modal(L"Plain_E");
    modal.OnCommand(IDCANCEL, &listener_, &Listener::TakeEvent);
    EXPECT_EQ(modal.RunWith([&] { SendCommand(modal.Handle(), IDCANCEL, 0, nullptr); }), 2);
    EXPECT_TRUE(listener_.events.empty());
}

TEST_F(DialogCommands, the_escape_key_ends_with_result_2) {
    TestDialog modal(L"Plain_E");
    EXPECT_EQ(modal.RunWith([&] {
        MSG key{GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
        IsDialogMessageW(modal.Handle(), &key);
    }),
              2);
}

TEST_F(DialogCommands, cancel_of_a_control_is_raised_and_ends_nothing) {
    TestDialog modal(L"Plain_E");
    modal.OnCommand(IDCANCEL, &listener_, &Listener::TakeEvent);
    EXPECT_EQ(
        modal.RunWith([&] { SendCommand(modal.Handle(), IDCANCEL, BN_CLICKED, modal.Item(PLAIN_BUTTON)); }),
        TestDialog::LeftOpen);
    EXPECT_EQ(listener_.events.size(), 1U);
}

TEST_F(DialogCommands, of_a_real_click_are_raised_by_the_control_s_id) {
    dialog_.OnCommand(PLAIN_BUTTON, &listener_, &Listener::TakeEvent, 4);
    SendMessageW(dialog_.Item(PLAIN_BUTTON), BM_CLICK, 0, 0);
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].extra, 4U);
}

TEST_F(DialogCommands, of_a_control_are_translated_by_its_class_and_raised_by_its_id) {
    struct Row {
        int control;
        int native;
        EventCode code;
    };
    const Row rows[] = {
        {PLAIN_BUTTON, BN_KILLFOCUS, 86},  {PLAIN_BUTTON, BN_SETFOCUS, 130},
        {PLAIN_FIRST_EDIT, EN_CHANGE, 13}, {PLAIN_FIRST_EDIT, EN_MAXTEXT, 89},
        {PLAIN_LIST, LBN_DBLCLK, 32},      {PLAIN_LIST, LBN_SELCHANGE, 121},
    };
    for (const Row& row : rows) {
        listener_.events.clear();
        dialog_.OnEvent(row.code, static_cast<EventSource>(row.control), &listener_, &Listener::TakeEvent);
        SendCommand(dialog_.Handle(), row.control, row.native, dialog_.Item(row.control));
        EXPECT_EQ(listener_.events.size(), 1U) << row.control << " " << row.native;
    }
}

// Even when the control has an object: the dialog asks the class.
TEST_F(DialogCommands, of_a_control_with_an_object_are_translated_by_its_class_too) {
    const Control wrapped(&dialog_, dialog_.Item(PLAIN_BUTTON), L"Edit");
    dialog_.OnEvent(event::ButtonDoubleClicked, PLAIN_BUTTON, &listener_, &Listener::TakeEvent);
    SendCommand(dialog_.Handle(), PLAIN_BUTTON, BN_DBLCLK, wrapped.Handle());
    EXPECT_EQ(listener_.events.size(), 1U);
}

// The system spells the class with capitals.
TEST_F(DialogCommands, of_a_combo_box_are_not_translated) {
    Listener translated;
    dialog_.OnEvent(event::SelectionChanged, PLAIN_COMBO, &translated, &Listener::TakeEvent);
    dialog_.OnCommand(PLAIN_COMBO, &listener_, &Listener::TakeEvent);
    wchar_t name[32] = L"";
    GetClassNameW(dialog_.Item(PLAIN_COMBO), name, 32);
    ASSERT_EQ(std::wstring(name), L"ComboBox");
    SendCommand(dialog_.Handle(), PLAIN_COMBO, CBN_SELCHANGE, dialog_.Item(PLAIN_COMBO));
    EXPECT_TRUE(translated.events.empty());
    EXPECT_EQ(listener_.events.size(), 1U);
}

TEST_F(DialogCommands, of_an_unknown_class_translate_to_0) {
    EXPECT_EQ(TestDialog::TranslateByClassName(dialog_.Handle(), 5), 0U) << "the class Dialog";
    EXPECT_EQ(TestDialog::TranslateByClassName(nullptr, 5), 0U);
    EXPECT_EQ(TestDialog::TranslateByClassName(dialog_.Item(PLAIN_BUTTON), 5), 33U);
}

// A command that was posted may come when its control is gone, or from elsewhere.
TEST_F(DialogCommands, of_a_window_that_is_no_control_of_the_dialog_raise_nothing) {
    TestDialog other(L"Plain_E");
    other.CreateModeless();
    dialog_.OnCommand(PLAIN_BUTTON, &listener_, &Listener::TakeEvent);
    const HWND gone = dialog_.Item(PLAIN_LIST);
    DestroyWindow(gone);
    for (const HWND foreign : {other.Item(PLAIN_BUTTON), other.Handle(), gone})
        SendCommand(dialog_.Handle(), PLAIN_BUTTON, BN_CLICKED, foreign);
    EXPECT_TRUE(listener_.events.empty());
}

TEST_F(DialogCommands, of_a_list_box_without_memory_tell_so) {
    dialog_.OnEvent(event::OutOfMemory, PLAIN_LIST, &listener_, &Listener::TakeEvent);
    SendCommand(dialog_.Handle(), PLAIN_LIST, -2, dialog_.Item(PLAIN_LIST));
    EXPECT_EQ(listener_.events.size(), 1U);
}

TEST_F(DialogCommands, leave_no_trace_of_the_translation_in_the_map) {
    const HWND button = dialog_.Item(PLAIN_BUTTON);
    EXPECT_EQ(TestDialog::TranslateByClassName(button, 5), 33U);
    EXPECT_EQ(Application::Windows()->Find(button), nullptr);
    const Control wrapped(&dialog_, button, L"Button");
    EXPECT_EQ(TestDialog::TranslateByClassName(button, 5), 33U);
    EXPECT_EQ(Application::Windows()->Find(button), &wrapped);
}

class DialogNotifications : public DialogEvents {};

TEST_F(DialogNotifications, of_a_control_without_an_object_are_raised_by_its_id) {
    dialog_.OnEvent(event::DateTimeChanged, PLAIN_PICKER, &listener_, &Listener::TakeEvent);
    NMHDR header{dialog_.Item(PLAIN_PICKER), PLAIN_PICKER, static_cast<UINT>(-759)};
    SendMessageW(dialog_.Handle(), WM_NOTIFY, PLAIN_PICKER, reinterpret_cast<LPARAM>(&header));
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].argument, reinterpret_cast<std::intptr_t>(&header));
}

TEST_F(DialogNotifications, common_to_all_controls_are_translated_by_the_dialog) {
    dialog_.OnEvent(event::DoubleClick, PLAIN_PICKER, &listener_, &Listener::TakeEvent);
    SendNotification(dialog_.Handle(), dialog_.Item(PLAIN_PICKER), PLAIN_PICKER, NM_DBLCLK);
    EXPECT_EQ(listener_.events.size(), 1U);
}

TEST_F(DialogNotifications, of_a_control_with_an_object_are_translated_by_that_object) {
    const Control wrapped(&dialog_, dialog_.Item(PLAIN_PICKER), L"SysTabControl32");
    dialog_.OnEvent(event::SelectionChanged, PLAIN_PICKER, &listener_, &Listener::TakeEvent);
    SendNotification(dialog_.Handle(), wrapped.Handle(), PLAIN_PICKER, static_cast<UINT>(-551));
    EXPECT_EQ(listener_.events.size(), 1U);
}

// What the tooltip of a bar's button does, with the button's id.
TEST_F(DialogNotifications, of_a_window_that_is_no_control_of_the_dialog_raise_nothing) {
    TestDialog other(L"Plain_E");
    other.CreateModeless();
    const HWND tip = ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP, 0, 0, 10, 10, dialog_.Handle(),
                                       nullptr, Context().instance, nullptr);
    ASSERT_NE(tip, nullptr);
    const WindowObject wrappedTip(&dialog_, tip, Ownership::Owned);
    dialog_.OnCommand(PLAIN_PICKER, &listener_, &Listener::TakeEvent);
    dialog_.OnEvent(event::DoubleClick, PLAIN_PICKER, &listener_, &Listener::TakeEvent);
    dialog_.OnEvent(event::DateTimeChanged, PLAIN_PICKER, &listener_, &Listener::TakeEvent);
    for (const HWND foreign : {tip, other.Item(PLAIN_PICKER), dialog_.Handle(), static_cast<HWND>(nullptr)}) {
        for (const UINT code : {UINT{NM_CUSTOMDRAW}, UINT{NM_DBLCLK}, static_cast<UINT>(-759), 0U})
            SendNotification(dialog_.Handle(), foreign, PLAIN_PICKER, code);
    }
    EXPECT_TRUE(listener_.events.empty());
}

// A list's heading or an edit inside a control notifies the control, which may pass it on.
TEST_F(DialogNotifications, of_a_window_inside_a_control_raise_nothing) {
    const HWND inner =
        ::CreateWindowExW(0, L"Button", L"", WS_CHILD, 0, 0, 10, 10, dialog_.Item(PLAIN_LIST),
                          reinterpret_cast<HMENU>(UINT_PTR{PLAIN_BUTTON}), Context().instance, nullptr);
    ASSERT_NE(inner, nullptr);
    dialog_.OnEvent(event::DoubleClick, PLAIN_BUTTON, &listener_, &Listener::TakeEvent);
    dialog_.OnCommand(PLAIN_BUTTON, &listener_, &Listener::TakeEvent);
    SendNotification(dialog_.Handle(), inner, PLAIN_BUTTON, NM_DBLCLK);
    SendCommand(dialog_.Handle(), PLAIN_BUTTON, BN_CLICKED, inner);
    EXPECT_TRUE(listener_.events.empty());
}

TEST_F(DialogNotifications, that_no_table_knows_are_no_clicks) {
    dialog_.OnCommand(PLAIN_BUTTON, &listener_, &Listener::TakeEvent);
    const HWND button = dialog_.Item(PLAIN_BUTTON);
    for (const UINT code : {UINT{NM_CUSTOMDRAW}, UINT{NM_RELEASEDCAPTURE}, static_cast<UINT>(-1249)})
        SendNotification(dialog_.Handle(), button, PLAIN_BUTTON, code);
    EXPECT_TRUE(listener_.events.empty());
}

TEST_F(DialogNotifications, and_drawings_without_their_structure_are_ignored) {
    dialog_.OnEvent(event::DrawItem, 0, &listener_, &Listener::TakeEvent);
    MessageRecord notification{WM_NOTIFY, PLAIN_BUTTON, 0, 0, 0};
    MessageRecord drawing{WM_DRAWITEM, PLAIN_BUTTON, 0, 0, 0};
    EXPECT_EQ(dialog_.Dispatch(notification), 0);
    EXPECT_EQ(dialog_.Dispatch(drawing), 1);
    EXPECT_TRUE(listener_.events.empty());
}

class DialogDrawing : public DialogEvents {
  protected:
    DialogDrawing() : button_(dialog_.Item(PLAIN_BUTTON)) {
        SetWindowLongW(button_, GWL_STYLE, GetWindowLongW(button_, GWL_STYLE) | BS_OWNERDRAW);
    }
    void Draw() const { RedrawWindow(button_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

    HWND button_;
};

TEST_F(DialogDrawing, of_a_wrapped_control_reaches_the_handler_that_was_registered_on_it) {
    Control wrapped(&dialog_, button_, L"Button");
    wrapped.OnNotification(event::DrawItem, &listener_, &Listener::TakeEvent, 6);
    Draw();
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].extra, 6U);
    EXPECT_EQ(listener_.events[0].record.message, static_cast<UINT>(WM_DRAWITEM));
}

TEST_F(DialogDrawing, of_a_wrapped_control_is_raised_by_its_handle_first) {
    const Control wrapped(&dialog_, button_, L"Button");
    Listener byId;
    dialog_.OnEvent(event::DrawItem, reinterpret_cast<EventSource>(button_), &listener_,
                    &Listener::TakeEvent);
    dialog_.OnEvent(event::DrawItem, PLAIN_BUTTON, &byId, &Listener::TakeEvent);
    Draw();
    EXPECT_EQ(listener_.events.size(), 1U);
    EXPECT_TRUE(byId.events.empty());
}

TEST_F(DialogDrawing, of_a_control_without_an_object_is_raised_by_its_id) {
    Listener byHandle;
    dialog_.OnEvent(event::DrawItem, PLAIN_BUTTON, &listener_, &Listener::TakeEvent);
    dialog_.OnEvent(event::DrawItem, reinterpret_cast<EventSource>(button_), &byHandle, &Listener::TakeEvent);
    Draw();
    EXPECT_EQ(listener_.events.size(), 1U);
    EXPECT_TRUE(byHandle.events.empty());
}

class DialogControls : public DialogEvents {};

TEST_F(DialogControls, are_wrapped_without_being_owned) {
    const HWND button = dialog_.Item(PLAIN_BUTTON);
    {
        const Control wrapped(&dialog_, button, L"Button");
        EXPECT_FALSE(wrapped.OwnsHandle());
    }
    EXPECT_TRUE(IsWindow(button));
}

TEST_F(DialogControls, notify_by_their_id) {
    Control wrapped(&dialog_, dialog_.Item(PLAIN_BUTTON), L"Button");
    wrapped.OnNotification(event::Command, &listener_, &Listener::TakeEvent, 3);
    SendMessageW(wrapped.Handle(), BM_CLICK, 0, 0);
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].extra, 3U);
    MessageRecord record;
    EXPECT_FALSE(
        dialog_.RaiseEvent(event::Command, reinterpret_cast<EventSource>(wrapped.Handle()), 0, record));
}

TEST_F(DialogControls, raise_enter_in_a_field_instead_of_the_default_command) {
    TextField field(&dialog_, dialog_.Item(PLAIN_FIRST_EDIT));
    EXPECT_FALSE(field.OwnsHandle());
    Listener command;
    dialog_.OnCommand(IDOK, &command, &Listener::TakeEvent);
    field.OnNotification(event::EnterKey, &listener_, &Listener::TakeEvent);
    SetFocus(field.Handle());
    TypeKey(field.Handle(), VK_RETURN, dialog_.Handle());
    EXPECT_EQ(listener_.events.size(), 1U);
    EXPECT_TRUE(command.events.empty());
}

TEST_F(DialogControls, pass_tab_on_to_the_next_control_unless_a_field_asks_for_it) {
    TextField field(&dialog_, dialog_.Item(PLAIN_FIRST_EDIT));
    ComboBoxControl combo(&dialog_, dialog_.Item(PLAIN_COMBO));
    field.OnNotification(event::TabKey, &listener_, &Listener::TakeEvent);
    SetFocus(field.Handle());
    TypeKey(field.Handle(), VK_TAB, dialog_.Handle());
    EXPECT_EQ(GetFocus(), combo.Edit().Handle());
    EXPECT_TRUE(listener_.events.empty());

    field.TurnOnTabNotification();
    SetFocus(field.Handle());
    TypeKey(field.Handle(), VK_TAB, dialog_.Handle());
    EXPECT_EQ(GetFocus(), field.Handle()) << "where it goes is the handler's affair";
    EXPECT_EQ(listener_.events.size(), 1U);
}

TEST_F(DialogControls, raise_a_combo_box_s_keys_under_the_dialog_s_keyboard_rules) {
    ComboBoxControl combo(&dialog_, dialog_.Item(PLAIN_COMBO));
    combo.TurnOnTabNotification();
    Listener tabs;
    combo.OnNotification(event::EnterKey, &listener_, &Listener::TakeEvent);
    combo.OnNotification(event::TabKey, &tabs, &Listener::TakeEvent);
    SetFocus(combo.Edit().Handle());
    TypeKey(combo.Edit().Handle(), VK_RETURN, dialog_.Handle());
    TypeKey(combo.Edit().Handle(), VK_TAB, dialog_.Handle());
    EXPECT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(tabs.events.size(), 1U);
    EXPECT_EQ(GetFocus(), combo.Edit().Handle());
}

TEST_F(DialogControls, of_a_wrapped_combo_box_outlive_the_wrapper) {
    const HWND box = dialog_.Item(PLAIN_COMBO);
    const HWND edit = GetWindow(box, GW_CHILD);
    ASSERT_NE(edit, nullptr);
    {
        ComboBoxControl wrapper(&dialog_, box);
        EXPECT_EQ(wrapper.Edit().Handle(), edit);
        EXPECT_FALSE(wrapper.OwnsHandle());
        EXPECT_FALSE(wrapper.Edit().OwnsHandle());
    }
    EXPECT_TRUE(IsWindow(box));
    EXPECT_TRUE(IsWindow(edit));
}

}  // namespace
