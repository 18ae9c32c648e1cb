// Windows and objects that end before one another, and in the middle of their own messages.

#include <memory>

#include "framework/combo_box.h"
#include "tests/framework/dialog_ids.h"
#include "tests/framework/foreign_window.h"
#include "tests/framework/test_dialog.h"

namespace {

constexpr UINT OtherMessage = WM_APP + 2;

class Lifetimes : public FrameworkTest {
  protected:
    Listener listener_;
};

class LostWindows : public Lifetimes {};

TEST_F(LostWindows, leave_no_handle_in_their_objects_nor_in_those_of_their_children) {
    TestWindow parent;
    PropertySet properties = ChildProperties(5);
    const Control child(&parent, L"Button", properties);
    const HWND window = parent.Handle();
    const HWND button = child.Handle();
    DestroyWindow(window);
    EXPECT_EQ(parent.Handle(), nullptr);
    EXPECT_EQ(child.Handle(), nullptr);
    EXPECT_EQ(Application::Windows()->Find(window), nullptr);
    EXPECT_EQ(Application::Windows()->Find(button), nullptr);
}

TEST_F(LostWindows, leave_no_handle_in_any_of_several_objects) {
    TestWindow object;
    const HWND window = object.Handle();
    const WindowObject second(nullptr, window);
    DestroyWindow(window);
    EXPECT_EQ(object.Handle(), nullptr);
    EXPECT_EQ(second.Handle(), nullptr);
    EXPECT_EQ(Application::Windows()->Find(window), nullptr);
}

TEST_F(LostWindows, of_a_control_that_was_subclassed_are_subclassed_anew_in_another_one) {
    TestWindow parent;
    PropertySet properties = ChildProperties(5);
    Control edit(&parent, L"Edit", properties);
    edit.Subclass();
    DestroyWindow(edit.Handle());
    EXPECT_EQ(edit.Handle(), nullptr);
    EXPECT_FALSE(edit.OwnsHandle());
    edit.Subclass();
    MessageRecord record{WM_GETTEXTLENGTH, 0, 0, 0, 0};
    EXPECT_EQ(edit.DefaultProcessing(record), 0);
}

TEST_F(LostWindows, of_modeless_dialogs_can_be_made_again) {
    TestDialog dialog(L"Plain_E");
    dialog.CreateModeless();
    const HWND window = dialog.Handle();
    const Control wrapped(&dialog, dialog.Item(PLAIN_BUTTON), L"Button");
    DestroyWindow(window);
    EXPECT_EQ(dialog.Handle(), nullptr);
    EXPECT_EQ(dialog.MenuBar(), nullptr);
    EXPECT_EQ(wrapped.Handle(), nullptr);
    dialog.CreateModeless();
    ASSERT_NE(dialog.Handle(), nullptr);
    EXPECT_NE(dialog.MenuBar(), nullptr);
}

TEST_F(LostWindows, of_modal_dialogs_end_the_run_and_leave_the_owner_usable) {
    const TestWindow owner;
    TestDialog dialog(L"Plain_E", const_cast<TestWindow*>(&owner));
    std::unique_ptr<Control> wrapped;
    const INT_PTR result = dialog.RunWith([&] {
        wrapped = std::make_unique<Control>(&dialog, dialog.Item(PLAIN_BUTTON), L"Button");
        DestroyWindow(dialog.Handle());
    });
    EXPECT_NE(result, Dialog::ResultOk);
    EXPECT_NE(result, TestDialog::LeftOpen);
    EXPECT_EQ(dialog.Handle(), nullptr);
    EXPECT_EQ(wrapped->Handle(), nullptr);
    EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
    EXPECT_EQ(dialog.RunWith([&] { dialog.End(3); }), 3);
}

TEST_F(LostWindows, of_modal_dialogs_that_another_object_wraps_leave_no_handle_in_either) {
    TestDialog dialog(L"Plain_E");
    std::unique_ptr<WindowObject> wrapper;
    EXPECT_EQ(dialog.RunWith([&] {
        wrapper = std::make_unique<WindowObject>(nullptr, dialog.Handle());
        dialog.End(5);
    }),
              5);
    EXPECT_EQ(wrapper->Handle(), nullptr);
    EXPECT_EQ(dialog.Handle(), nullptr);
    EXPECT_EQ(dialog.MenuBar(), nullptr);
    EXPECT_EQ(dialog.RunWith([&] { dialog.End(6); }), 6);
}

TEST_F(LostWindows, of_modal_dialogs_whose_object_goes_leave_the_owner_usable) {
    TestWindow owner;
    class Killer : public Listener {
      public:
        LRESULT Kill(EventArguments&) {
            PostMessageW(dialog->Handle(), OtherMessage, 0, 0);
            return 0;
        }
        LRESULT KillNow(MessageRecord&) {
            dialog.reset();
            return 1;
        }
        std::unique_ptr<TestDialog> dialog;
    };
    Killer killer;
    killer.dialog = std::make_unique<TestDialog>(L"Plain_E", &owner);
    killer.dialog->OnInitialise(&killer, &Killer::Kill);
    killer.dialog->OnMessage(OtherMessage, &killer, &Killer::KillNow);
    EXPECT_NE(killer.dialog->RunModal(), Dialog::ResultOk);
    EXPECT_EQ(killer.dialog, nullptr);
    EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
}

class LostObjects : public Lifetimes {};

TEST_F(LostObjects, are_called_no_more_and_an_older_handler_counts_again) {
    TestWindow object;
    object.OnMessage(OtherMessage, &listener_, &Listener::TakeMessage);
    object.OnCommand(300, &listener_, &Listener::TakeEvent);
    {
        Listener shorter;
        shorter.answer = 8;
        object.OnMessage(OtherMessage, &shorter, &Listener::TakeMessage);
        object.OnMessage(SumMessage, &shorter, &Listener::TakeMessage);
        object.OnCommand(300, &shorter, &Listener::TakeEvent);
        object.OnCommand(301, &shorter, &Listener::TakeEvent);
        EXPECT_EQ(SendMessageW(object.Handle(), OtherMessage, 0, 0), 8);
    }
    EXPECT_EQ(SendMessageW(object.Handle(), OtherMessage, 0, 0), 0);
    EXPECT_EQ(SendMessageW(object.Handle(), SumMessage, 1, 2), 0);
    SendCommand(object.Handle(), 300, 0, nullptr);
    SendCommand(object.Handle(), 301, 0, nullptr);
    EXPECT_EQ(listener_.messages.size(), 1U);
    EXPECT_EQ(listener_.events.size(), 1U);
}

TEST_F(LostObjects, are_not_asked_to_initialise_a_dialog) {
    TestDialog dialog(L"Plain_E");
    auto initialiser = std::make_unique<Listener>();
    dialog.OnInitialise(initialiser.get(), &Listener::TakeEvent);
    initialiser.reset();
    dialog.CreateModeless();
    EXPECT_NE(dialog.Handle(), nullptr);
    EXPECT_NE(dialog.MenuBar(), nullptr);
}

TEST_F(LostObjects, are_nobody_s_parent) {
    auto parent = std::make_unique<TestWindow>();
    const ForeignWindow foreign;
    WindowObject child(parent.get(), foreign.window);
    parent.reset();
    EXPECT_EQ(child.Parent(), nullptr);
    EXPECT_EQ(child.ParentHandle(), nullptr);
    child.OnNotification(event::KeyDown, &listener_, &Listener::TakeEvent);
    EXPECT_EQ(child.Handle(), foreign.window);
}

// Deletes an object from within one of its messages or events.
class Deleter : public Listener {
  public:
    LRESULT Delete(MessageRecord&) {
        object.reset();
        return 21;
    }
    LRESULT DeleteOnEvent(EventArguments&) {
        object.reset();
        return 22;
    }

    std::unique_ptr<WindowObject> object;
};

TEST_F(LostObjects, may_go_in_the_middle_of_a_message_of_their_own) {
    const ForeignWindow foreign;
    Deleter deleter;
    deleter.object = std::make_unique<WindowObject>(nullptr, foreign.window);
    deleter.object->Subclass();
    deleter.object->OnMessage(OtherMessage, &deleter, &Deleter::Delete);
    EXPECT_EQ(SendMessageW(foreign.window, OtherMessage, 0, 0), 21);
    EXPECT_EQ(deleter.object, nullptr);
    EXPECT_EQ(SendMessageW(foreign.window, OtherMessage, 0, 0), 0);
    EXPECT_TRUE(IsWindow(foreign.window));
}

TEST_F(LostObjects, may_go_with_their_window_in_the_middle_of_a_click_on_it) {
    Deleter deleter;
    auto window = std::make_unique<TestWindow>();
    const HWND handle = window->Handle();
    PropertySet properties = ChildProperties(5);
    const Control button(window.get(), L"Button", properties);
    window->OnEvent(event::Command, reinterpret_cast<EventSource>(button.Handle()), &deleter,
                    &Deleter::DeleteOnEvent);
    deleter.object = std::move(window);
    EXPECT_EQ(SendCommand(handle, 5, BN_CLICKED, button.Handle()), 22);
    EXPECT_FALSE(IsWindow(handle));
    EXPECT_EQ(button.Handle(), nullptr);
}

// One whose memory is overwritten when it goes: whoever still asks it falls over.
class SpoiledComboBox : public ComboBoxControl {
  public:
    using ComboBoxControl::ComboBoxControl;
    static void operator delete(void* memory) {
        auto* bytes = static_cast<volatile unsigned char*>(memory);
        for (std::size_t i = 0; i < sizeof(SpoiledComboBox); ++i)
            bytes[i] = 0xDD;
        ::operator delete(memory);
    }
};

// The parent hears of the key, or of the list that closes because of it, and takes the combo box's object
// away.
TEST_F(LostObjects, may_go_in_the_middle_of_a_key_in_a_combo_box) {
    struct Row {
        WPARAM key;
        bool listOpen;
        EventCode heard;
    };
    const Row rows[] = {{VK_RETURN, false, event::EnterKey},
                        {VK_TAB, false, event::TabKey},
                        {VK_RETURN, true, event::Command},
                        {VK_TAB, true, event::Command},
                        {VK_TAB, true, event::TabKey}};
    for (const Row& row : rows) {
        TestDialog dialog(L"Plain_E");
        dialog.CreateModeless();
        Deleter deleter;
        auto combo = std::make_unique<SpoiledComboBox>(&dialog, dialog.Item(PLAIN_COMBO));
        const HWND box = combo->Handle();
        const HWND edit = combo->Edit().Handle();
        combo->TurnOnTabNotification();
        SendMessageW(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"entry"));
        SetFocus(edit);
        if (row.listOpen) SendMessageW(box, CB_SHOWDROPDOWN, TRUE, 0);
        // A combo box's own class is not translated: whatever it tells comes as a command of its id.
        if (row.heard == event::Command) {
            dialog.OnCommand(PLAIN_COMBO, &deleter, &Deleter::DeleteOnEvent);
        } else {
            combo->OnNotification(row.heard, &deleter, &Deleter::DeleteOnEvent);
        }
        deleter.object = std::move(combo);
        TypeKey(edit, row.key);
        EXPECT_EQ(deleter.object, nullptr) << row.key << " " << row.listOpen;
        EXPECT_EQ(Application::Windows()->Find(box), nullptr);
        EXPECT_EQ(Application::Windows()->Find(edit), nullptr);
        EXPECT_TRUE(IsWindow(box));
    }
}

class MissingControls : public Lifetimes {};

// No handle and no id reads as 0, and so do a menu's item that is drawn and a command without a number.
TEST_F(MissingControls, get_nothing_that_is_meant_for_others) {
    TestWindow window;
    TestDialog dialog(L"Plain_E");
    dialog.CreateModeless();
    for (WindowObject* parent : {static_cast<WindowObject*>(&window), static_cast<WindowObject*>(&dialog)}) {
        Control missing(parent, nullptr, L"Button");
        missing.OnNotification(event::DrawItem, &listener_, &Listener::TakeEvent);
        missing.OnNotification(event::Command, &listener_, &Listener::TakeEvent);
        DRAWITEMSTRUCT menuItem{};
        menuItem.CtlType = ODT_MENU;
        SendMessageW(parent->Handle(), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&menuItem));
        SendCommand(parent->Handle(), 0, 0, nullptr);
    }
    EXPECT_TRUE(listener_.events.empty());
}

class DialogEnds : public Lifetimes {};

TEST_F(DialogEnds, count_once_and_the_first_one_decides) {
    TestDialog dialog(L"Plain_E");
    EXPECT_EQ(dialog.RunWith([&] {
        dialog.End(7);
        dialog.End(8);
        SendCommand(dialog.Handle(), IDCANCEL, 0, nullptr);
    }),
              7);
    dialog.End(9);
    EXPECT_EQ(dialog.RunWith([&] { dialog.End(10); }), 10) << "nothing is left of the end before";
}

// A page that stands inside a window stays there, whatever key is taken for Cancel.
TEST_F(DialogEnds, do_nothing_to_dialogs_that_are_not_run) {
    TestDialog dialog(L"Plain_E");
    dialog.CreateModeless();
    const HWND bar = dialog.MenuBar();
    SendCommand(dialog.Handle(), IDCANCEL, 0, nullptr);
    dialog.End(1);
    EXPECT_TRUE(IsWindowVisible(dialog.Handle()));
    EXPECT_EQ(dialog.MenuBar(), bar);
    EXPECT_TRUE(IsWindow(bar));
}

TEST_F(DialogEnds, in_the_initialisation_are_ends_as_well) {
    TestDialog dialog(L"Plain_E");
    class Ender : public Listener {
      public:
        explicit Ender(TestDialog& watched) : dialog(watched) {}
        LRESULT End(EventArguments&) {
            dialog.End(12);
            return 0;
        }
        TestDialog& dialog;
    };
    Ender ender(dialog);
    dialog.OnInitialise(&ender, &Ender::End);
    EXPECT_EQ(dialog.RunWith([] {}), 12);
    EXPECT_EQ(dialog.MenuBar(), nullptr);
}

}  // namespace
