#include "framework/dialog.h"

#include <memory>
#include <vector>

#include "tests/framework/dialog_ids.h"
#include "tests/framework/test_dialog.h"

namespace {

class ModalDialogs : public FrameworkTest {
  protected:
    Listener listener_;
};

TEST_F(ModalDialogs, return_the_result_that_ends_them) {
    TestDialog dialog(L"Plain_E");
    EXPECT_EQ(dialog.RunWith([&] { dialog.End(17); }), 17);
}

TEST_F(ModalDialogs, have_a_window_in_the_map_only_while_they_run) {
    TestDialog dialog(L"Plain_E");
    HWND seen = nullptr;
    EXPECT_EQ(dialog.Handle(), nullptr);
    dialog.RunWith([&] {
        seen = dialog.Handle();
        EXPECT_TRUE(IsWindow(seen));
        EXPECT_TRUE(IsWindowVisible(seen));
        EXPECT_EQ(Application::Windows()->Find(seen), &dialog);
        EXPECT_EQ(TextOf(seen), L"Plain");
    });
    ASSERT_NE(seen, nullptr);
    EXPECT_FALSE(IsWindow(seen));
    EXPECT_EQ(dialog.Handle(), nullptr);
    EXPECT_EQ(Application::Windows()->Find(seen), nullptr);
}

TEST_F(ModalDialogs, keep_their_object_when_they_are_told_once_more_that_they_were_created) {
    TestDialog dialog(L"Plain_E");
    EXPECT_EQ(dialog.RunWith([&] {
        const HWND window = dialog.Handle();
        SendMessageW(window, WM_INITDIALOG, 0, 0);
        EXPECT_EQ(dialog.Handle(), window);
        EXPECT_EQ(Application::Windows()->Find(window), &dialog);
        dialog.End(17);
    }),
              17);
}

TEST_F(ModalDialogs, can_be_run_again) {
    TestDialog dialog(L"Plain_E");
    dialog.OnInitialise(&listener_, &Listener::TakeEvent);
    EXPECT_EQ(dialog.RunWith([&] { dialog.End(1); }), 1);
    EXPECT_EQ(dialog.RunWith([&] { dialog.End(2); }), 2);
    EXPECT_EQ(dialog.RunWith([&] { dialog.End(3); }), 3);
    EXPECT_EQ(listener_.events.size(), 3U);
}

TEST_F(ModalDialogs, are_not_run_twice_at_once) {
    TestDialog dialog(L"Plain_E");
    INT_PTR inner = 0;
    HWND after = nullptr;
    EXPECT_EQ(dialog.RunWith([&] {
        const HWND before = dialog.Handle();
        inner = dialog.RunModal();
        after = dialog.Handle();
        EXPECT_EQ(after, before);
        dialog.End(5);
    }),
              5);
    EXPECT_EQ(inner, -1);
}

TEST_F(ModalDialogs, can_be_run_one_inside_another) {
    TestDialog outer(L"Plain_E");
    INT_PTR innerResult = 0;
    EXPECT_EQ(outer.RunWith([&] {
        TestDialog inner(L"Titled_E", &outer);
        innerResult = inner.RunWith([&] {
            EXPECT_EQ(GetWindow(inner.Handle(), GW_OWNER), outer.Handle());
            EXPECT_FALSE(IsWindowEnabled(outer.Handle()));
            inner.End(31);
        });
        EXPECT_TRUE(IsWindowEnabled(outer.Handle()));
        outer.End(32);
    }),
              32);
    EXPECT_EQ(innerResult, 31);
}

TEST_F(ModalDialogs, without_their_template_answer_minus_1_and_get_no_window) {
    TestDialog missing(L"NoSuchTemplate_E");
    EXPECT_EQ(missing.RunModal(), -1);
    EXPECT_EQ(missing.Handle(), nullptr);
}

TEST_F(ModalDialogs, that_could_not_be_created_leave_the_next_one_alone) {
    TestDialog missing(L"NoSuchTemplate_E");
    TestDialog broken(L"Broken_E");
    EXPECT_EQ(missing.RunModal(), -1);
    EXPECT_EQ(broken.RunModal(), -1);
    EXPECT_EQ(broken.Handle(), nullptr);
    TestDialog next(L"Plain_E");
    EXPECT_EQ(next.RunWith([&] {
        EXPECT_EQ(missing.Handle(), nullptr);
        EXPECT_EQ(broken.Handle(), nullptr);
        next.End(6);
    }),
              6);
}

TEST_F(ModalDialogs, give_the_focus_to_their_first_control) {
    TestDialog dialog(L"Plain_E");
    HWND focus = nullptr;
    HWND first = nullptr;
    dialog.RunWith([&] {
        focus = GetFocus();
        first = dialog.Item(PLAIN_FIRST_EDIT);
    });
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(focus, first);
}

TEST_F(ModalDialogs, give_the_focus_back_to_where_it_was_when_they_are_activated_again) {
    TestDialog dialog(L"Plain_E");
    dialog.RunWith([&] {
        const HWND button = dialog.Item(PLAIN_BUTTON);
        SetFocus(button);
        const TestWindow other;
        SetActiveWindow(other.Handle());
        ASSERT_NE(GetFocus(), button);
        SetActiveWindow(dialog.Handle());
        EXPECT_EQ(GetFocus(), button);
    });
}

TEST_F(ModalDialogs, handle_activation_themselves) {
    TestDialog dialog(L"Plain_E");
    dialog.RunWith([&] {
        MessageRecord record{WM_ACTIVATE, WA_ACTIVE, 0, 0, 0};
        EXPECT_EQ(dialog.Dispatch(record), 1);
    });
}

TEST_F(ModalDialogs, answer_0_for_what_nobody_handles) {
    TestDialog dialog(L"Plain_E");
    MessageRecord record{WM_USER + 7, 1, 2, 0, 0};
    EXPECT_EQ(dialog.Dispatch(record), 0);
    EXPECT_EQ(dialog.DefaultProcessing(record), 0);
}

class DialogInitialisation : public ModalDialogs {};

TEST_F(DialogInitialisation, hands_the_argument_and_the_extra_word_over) {
    int data = 5;
    PropertySet properties = TemplateProperties(L"Plain_E");
    properties.Set(property::InitArgument, reinterpret_cast<PropertyValue>(&data));
    TestDialog dialog(properties);
    dialog.OnInitialise(&listener_, &Listener::TakeEvent, 66);
    dialog.RunWith([] {});
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].argument, reinterpret_cast<std::intptr_t>(&data));
    EXPECT_EQ(listener_.events[0].extra, 66U);
    EXPECT_EQ(listener_.events[0].record.message, static_cast<UINT>(WM_INITDIALOG));
}

TEST_F(DialogInitialisation, hands_0_over_without_an_argument) {
    TestDialog dialog(L"Plain_E");
    dialog.OnInitialise(&listener_, &Listener::TakeEvent);
    dialog.RunWith([] {});
    ASSERT_EQ(listener_.events.size(), 1U);
    EXPECT_EQ(listener_.events[0].argument, 0);
}

// Notes what already stands when the handler is called.
class EarlyLooker : public Listener {
  public:
    explicit EarlyLooker(TestDialog& watched) : dialog(watched) {}

    LRESULT Look(EventArguments&) {
        foundInMap = dialog.Handle() != nullptr && Application::Windows()->Find(dialog.Handle()) == &dialog;
        hadBar = dialog.MenuBar() != nullptr;
        hadControls = dialog.Item(PLAIN_BUTTON) != nullptr;
        return 0;
    }

    TestDialog& dialog;
    bool foundInMap = false;
    bool hadBar = true;
    bool hadControls = false;
};

TEST_F(DialogInitialisation, comes_with_window_and_controls_and_before_the_menu_bar) {
    TestDialog dialog(L"Plain_E");
    EarlyLooker looker(dialog);
    dialog.OnInitialise(&looker, &EarlyLooker::Look);
    dialog.RunWith([] {});
    EXPECT_TRUE(looker.foundInMap);
    EXPECT_TRUE(looker.hadControls);
    EXPECT_FALSE(looker.hadBar);
}

class ModelessDialogs : public ModalDialogs {};

TEST_F(ModelessDialogs, are_created_once) {
    TestDialog dialog(L"Plain_E");
    dialog.OnInitialise(&listener_, &Listener::TakeEvent);
    dialog.CreateModeless();
    const HWND window = dialog.Handle();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(Application::Windows()->Find(window), &dialog);
    dialog.CreateModeless();
    EXPECT_EQ(dialog.Handle(), window);
    EXPECT_EQ(listener_.events.size(), 1U);
}

TEST_F(ModelessDialogs, are_shown_in_front) {
    const TestWindow other;
    TestDialog dialog(L"Plain_E");
    dialog.ShowModeless();
    EXPECT_TRUE(IsWindowVisible(dialog.Handle()));
    EXPECT_EQ(GetForegroundWindow(), dialog.Handle());
    ShowWindow(dialog.Handle(), SW_HIDE);
    const HWND window = dialog.Handle();
    dialog.ShowModeless();
    EXPECT_EQ(dialog.Handle(), window);
    EXPECT_TRUE(IsWindowVisible(window));
}

TEST_F(ModelessDialogs, that_are_shown_already_come_to_the_front) {
    const TestWindow other;
    TestDialog dialog(L"Plain_E");
    dialog.ShowModeless();
    SetForegroundWindow(other.Handle());
    ASSERT_EQ(GetForegroundWindow(), other.Handle());
    ASSERT_TRUE(IsWindowVisible(dialog.Handle()));
    dialog.ShowModeless();
    EXPECT_EQ(GetForegroundWindow(), dialog.Handle());
}

TEST_F(ModelessDialogs, have_the_small_icon_of_their_owner) {
    TestWindow owner;
    const HICON icon = LoadIconW(nullptr, IDI_WARNING);
    SendMessageW(owner.Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon));
    TestDialog dialog(L"Plain_E", &owner);
    dialog.CreateModeless();
    EXPECT_EQ(reinterpret_cast<HICON>(SendMessageW(dialog.Handle(), WM_GETICON, ICON_SMALL, 0)), icon);
}

TEST_F(ModelessDialogs, without_their_template_get_no_window) {
    TestDialog missing(L"NoSuchTemplate_E");
    missing.ShowModeless();
    EXPECT_EQ(missing.Handle(), nullptr);
    TestDialog broken(L"Broken_E");
    broken.CreateModeless();
    EXPECT_EQ(broken.Handle(), nullptr);
    TestDialog next(L"Plain_E");
    next.CreateModeless();
    EXPECT_NE(next.Handle(), nullptr);
    EXPECT_EQ(missing.Handle(), nullptr);
    EXPECT_EQ(broken.Handle(), nullptr);
}

TEST_F(ModelessDialogs, may_stand_as_pages_inside_another_window) {
    TestWindow window;
    TestDialog page(L"Page_E", &window);
    page.CreateModeless();
    ASSERT_NE(page.Handle(), nullptr);
    EXPECT_EQ(GetParent(page.Handle()), window.Handle());
    EXPECT_FALSE(IsWindowVisible(page.Handle()));
}

TEST_F(ModelessDialogs, take_their_window_along_when_they_go) {
    HWND window = nullptr;
    {
        TestDialog dialog(L"Plain_E");
        dialog.CreateModeless();
        window = dialog.Handle();
        ASSERT_TRUE(IsWindow(window));
    }
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(Application::Windows()->Find(window), nullptr);
}

TEST_F(ModelessDialogs, and_modal_ones_are_created_inside_each_other) {
    TestDialog modal(L"Plain_E");
    TestDialog modeless(L"Titled_E");
    EXPECT_EQ(modal.RunWith([&] {
        modeless.CreateModeless();
        EXPECT_NE(modeless.Handle(), nullptr);
        EXPECT_NE(modeless.Handle(), modal.Handle());
        modal.End(8);
    }),
              8);
    EXPECT_TRUE(IsWindow(modeless.Handle()));
}

}  // namespace
