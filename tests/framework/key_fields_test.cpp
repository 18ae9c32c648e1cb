#include <memory>

#include "framework/combo_box.h"
#include "tests/framework/framework_test.h"

namespace {

class KeyFields : public FrameworkTest {
  protected:
    HWND MakeControl(const wchar_t* className, DWORD style) {
        return ::CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 150, 100,
                                 window_.Handle(), reinterpret_cast<HMENU>(UINT_PTR{10401}),
                                 Context().instance, nullptr);
    }

    TestWindow window_;
    Listener enters_;
    Listener tabs_;
};

class TextFields : public KeyFields {
  protected:
    TextFields() : field_(&window_, MakeControl(L"Edit", ES_AUTOHSCROLL)) {
        field_.OnNotification(event::EnterKey, &enters_, &Listener::TakeEvent, 1);
        field_.OnNotification(event::TabKey, &tabs_, &Listener::TakeEvent, 2);
        SetFocus(field_.Handle());
    }

    TextField field_;
};

TEST_F(TextFields, raise_enter_once_per_stroke_and_take_no_character_of_it) {
    TypeKey(field_.Handle(), L'A');
    TypeKey(field_.Handle(), VK_RETURN);
    ASSERT_EQ(enters_.events.size(), 1U);
    EXPECT_EQ(enters_.events[0].extra, 1U);
    EXPECT_EQ(enters_.events[0].argument, 0);
    EXPECT_EQ(TextOf(field_.Handle()), L"a");
    EXPECT_TRUE(tabs_.events.empty());
}

TEST_F(TextFields, leave_tab_to_the_system_unless_asked) {
    TypeKey(field_.Handle(), VK_TAB);
    EXPECT_TRUE(tabs_.events.empty());
    field_.TurnOnTabNotification();
    TypeKey(field_.Handle(), VK_TAB);
    ASSERT_EQ(tabs_.events.size(), 1U);
    EXPECT_EQ(tabs_.events[0].extra, 2U);
    EXPECT_EQ(tabs_.events[0].argument, 0);
    EXPECT_EQ(TextOf(field_.Handle()).find(L'\t', 0), std::wstring::npos);
}

TEST_F(TextFields, tell_tab_with_shift_by_the_argument_1) {
    field_.TurnOnTabNotification();
    {
        const ShiftHeld shift;
        TypeKey(field_.Handle(), VK_TAB);
    }
    TypeKey(field_.Handle(), VK_TAB);
    ASSERT_EQ(tabs_.events.size(), 2U);
    EXPECT_EQ(tabs_.events[0].argument, 1);
    EXPECT_EQ(tabs_.events[1].argument, 0);
}

TEST_F(TextFields, leave_a_key_to_the_input_method_that_composes) {
    field_.TurnOnTabNotification();
    SendMessageW(field_.Handle(), WM_KEYDOWN, VK_PROCESSKEY, 1);
    EXPECT_TRUE(enters_.events.empty());
    EXPECT_TRUE(tabs_.events.empty());
}

// Some input methods leave Enter and Tab as they are while they compose.
TEST_F(TextFields, leave_enter_and_tab_alone_as_long_as_an_input_method_composes) {
    field_.TurnOnTabNotification();
    SendMessageW(field_.Handle(), WM_IME_STARTCOMPOSITION, 0, 0);
    TypeKey(field_.Handle(), VK_RETURN);
    TypeKey(field_.Handle(), VK_TAB);
    EXPECT_TRUE(enters_.events.empty());
    EXPECT_TRUE(tabs_.events.empty());
    SendMessageW(field_.Handle(), WM_IME_ENDCOMPOSITION, 0, 0);
    TypeKey(field_.Handle(), VK_RETURN);
    TypeKey(field_.Handle(), VK_TAB);
    EXPECT_EQ(enters_.events.size(), 1U);
    EXPECT_EQ(tabs_.events.size(), 1U);
}

WNDPROC editProcedure = nullptr;
std::wstring seenCharacters;

LRESULT CALLBACK NoteCharacters(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CHAR) seenCharacters += static_cast<wchar_t>(wParam);
    return CallWindowProcW(editProcedure, window, message, wParam, lParam);
}

TEST_F(TextFields, keep_the_characters_of_their_keys_from_the_edit) {
    seenCharacters.clear();
    const HWND edit = MakeControl(L"Edit", ES_AUTOHSCROLL);
    editProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&NoteCharacters)));
    TextField watched(&window_, edit);
    for (const WPARAM key : {WPARAM{L'A'}, WPARAM{VK_RETURN}, WPARAM{VK_TAB}})
        TypeKey(edit, key);
    EXPECT_EQ(seenCharacters, L"a\t");
    watched.TurnOnTabNotification();
    for (const WPARAM key : {WPARAM{L'B'}, WPARAM{VK_RETURN}, WPARAM{VK_TAB}})
        TypeKey(edit, key);
    EXPECT_EQ(seenCharacters, L"a\tb");
}

TEST_F(TextFields, take_other_characters_as_any_edit_does) {
    for (const wchar_t unit : {L'x', L'日', L'*', L' '})
        SendMessageW(field_.Handle(), WM_CHAR, unit, 1);
    EXPECT_EQ(TextOf(field_.Handle()), L"x日* ");
    SendMessageW(field_.Handle(), WM_CHAR, VK_BACK, 1);
    EXPECT_EQ(TextOf(field_.Handle()), L"x日*");
}

TEST_F(TextFields, want_only_their_own_keys_from_a_dialog) {
    const auto wants = [this](UINT message, WPARAM key) {
        MSG asked{field_.Handle(), message, key, 0, 0, {}};
        const LRESULT code =
            SendMessageW(field_.Handle(), WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&asked));
        return (code & DLGC_WANTMESSAGE) != 0;
    };
    EXPECT_TRUE(wants(WM_KEYDOWN, VK_RETURN));
    EXPECT_FALSE(wants(WM_KEYDOWN, VK_TAB));
    EXPECT_FALSE(wants(WM_KEYDOWN, VK_ESCAPE));
    field_.TurnOnTabNotification();
    EXPECT_TRUE(wants(WM_KEYDOWN, VK_TAB));
    EXPECT_TRUE(wants(WM_CHAR, VK_RETURN));
    EXPECT_FALSE(wants(WM_SYSKEYDOWN, VK_RETURN));
    EXPECT_NE(SendMessageW(field_.Handle(), WM_GETDLGCODE, 0, 0) & DLGC_WANTCHARS, 0) << "asked in general";
}

class ComboBoxes : public KeyFields {
  protected:
    ComboBoxes() : combo_(&window_, MakeControl(L"ComboBox", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL)) {
        for (const wchar_t* entry : {L"first", L"second", L"third"}) {
            SendMessageW(combo_.Handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
        }
        combo_.OnNotification(event::EnterKey, &enters_, &Listener::TakeEvent, 1);
        combo_.OnNotification(event::TabKey, &tabs_, &Listener::TakeEvent, 2);
        SetFocus(combo_.Handle());
    }

    [[nodiscard]] bool ListIsOpen() const {
        return SendMessageW(combo_.Handle(), CB_GETDROPPEDSTATE, 0, 0) != 0;
    }
    void OpenList() { SendMessageW(combo_.Handle(), CB_SHOWDROPDOWN, TRUE, 0); }

    ComboBoxControl combo_;
};

TEST_F(ComboBoxes, raise_their_edit_s_enter_on_themselves) {
    TypeKey(combo_.Edit().Handle(), VK_RETURN);
    ASSERT_EQ(enters_.events.size(), 1U);
    EXPECT_EQ(enters_.events[0].extra, 1U);
    EXPECT_FALSE(ListIsOpen());
}

TEST_F(ComboBoxes, raise_tab_and_shift_tab_when_asked) {
    TypeKey(combo_.Edit().Handle(), VK_TAB);
    EXPECT_TRUE(tabs_.events.empty());
    combo_.TurnOnTabNotification();
    TypeKey(combo_.Edit().Handle(), VK_TAB);
    {
        const ShiftHeld shift;
        TypeKey(combo_.Edit().Handle(), VK_TAB);
    }
    ASSERT_EQ(tabs_.events.size(), 2U);
    EXPECT_EQ(tabs_.events[0].extra, 2U);
    EXPECT_EQ(tabs_.events[0].argument, 0);
    EXPECT_EQ(tabs_.events[1].argument, 1);
}

TEST_F(ComboBoxes, take_the_entry_of_the_open_list_with_the_first_enter_and_raise_the_second) {
    OpenList();
    TypeKey(combo_.Edit().Handle(), VK_DOWN);
    TypeKey(combo_.Edit().Handle(), VK_DOWN);
    ASSERT_TRUE(ListIsOpen());
    TypeKey(combo_.Edit().Handle(), VK_RETURN);
    EXPECT_FALSE(ListIsOpen());
    EXPECT_TRUE(enters_.events.empty());
    EXPECT_EQ(TextOf(combo_.Handle()), L"second");
    TypeKey(combo_.Edit().Handle(), VK_RETURN);
    EXPECT_EQ(enters_.events.size(), 1U);
}

TEST_F(ComboBoxes, tell_the_parent_that_the_selection_ended_well_after_enter) {
    window_.OnEvent(event::SelectionEndedOk, reinterpret_cast<EventSource>(combo_.Handle()), &tabs_,
                    &Listener::TakeEvent);
    OpenList();
    TypeKey(combo_.Edit().Handle(), VK_DOWN);
    TypeKey(combo_.Edit().Handle(), VK_RETURN);
    EXPECT_EQ(tabs_.events.size(), 1U);
}

TEST_F(ComboBoxes, close_the_open_list_on_tab_and_raise_it_at_once) {
    combo_.TurnOnTabNotification();
    OpenList();
    TypeKey(combo_.Edit().Handle(), VK_TAB);
    EXPECT_FALSE(ListIsOpen());
    EXPECT_EQ(tabs_.events.size(), 1U);
}

TEST_F(ComboBoxes, close_the_open_list_on_escape_without_an_event) {
    OpenList();
    TypeKey(combo_.Edit().Handle(), VK_ESCAPE);
    EXPECT_FALSE(ListIsOpen());
    EXPECT_TRUE(enters_.events.empty());
}

TEST_F(ComboBoxes, without_an_edit_are_harmless) {
    const ComboBoxControl list(&window_, MakeControl(L"ComboBox", CBS_DROPDOWNLIST));
    EXPECT_NE(list.Handle(), nullptr);
    ComboBoxControl none(&window_, nullptr);
    EXPECT_EQ(none.Handle(), nullptr);
    EXPECT_EQ(none.Edit().Handle(), nullptr);
}

}  // namespace
