// The editing of a name in place, with the list's own edit, whose end reaches the command as the main window
// passes it.

#include "tests/results/rename_test.h"
#include "tests/support/key_presses.h"
#include "tests/support/message_pump.h"

class RenameInPlace : public RenameTest {
  protected:
    class Listener : public WindowObject {
      public:
        explicit Listener(ResultCommands& resultCommands)
            : WindowObject(nullptr, nullptr), commands_(resultCommands) {}
        LRESULT OnEnd(EventArguments& arguments) {
            ++ends;
            commands_.EndRename(*reinterpret_cast<const NMLVDISPINFOW*>(arguments.argument));
            return FALSE;
        }
        LRESULT OnOther(EventArguments&) {
            ++others;
            return 0;
        }

        int ends = 0;
        int others = 0;  // keys and clicks on headings that reached the list

      private:
        ResultCommands& commands_;
    };

    RenameInPlace() {
        List().OnNotification(event::EndLabelEdit, &listener_, &Listener::OnEnd);
        List().OnNotification(event::KeyDown, &listener_, &Listener::OnOther);
        List().OnNotification(event::ColumnClick, &listener_, &Listener::OnOther);
        List().SelectRow(0);
    }
    [[nodiscard]] HWND Edit() {
        return reinterpret_cast<HWND>(SendMessageW(List().Handle(), LVM_GETEDITCONTROL, 0, 0));
    }
    // Starts the editing of the first row and puts a text into its edit.
    void Begin(const wchar_t* newName) {
        Commands().BeginRename();
        ASSERT_NE(Edit(), nullptr);
        wchar_t offered[MAX_PATH] = L"";
        GetWindowTextW(Edit(), offered, MAX_PATH);
        EXPECT_STREQ(offered, L"a.txt");
        SetWindowTextW(Edit(), newName);
    }
    void BeginAndEnd(const wchar_t* newName, int lastKey) {
        Begin(newName);
        PressKeyOn(Edit(), lastKey);
        EXPECT_EQ(Edit(), nullptr);
    }
    void ExpectRenamedTo(const wchar_t* name) {
        EXPECT_EQ(Files(), (Names{name}));
        EXPECT_EQ(ContentOf(name), "of a");
        EXPECT_EQ(RowNames(), (Names{name}));
    }

    Listener listener_{Commands()};
};

TEST_F(RenameInPlace, ends_with_enter) {
    const AnsweredBoxes boxes{IDOK};
    BeginAndEnd(L"b.txt", VK_RETURN);
    EXPECT_TRUE(boxes.Seen().empty());
    ExpectRenamedTo(L"b.txt");
    EXPECT_EQ(listener_.ends, 1);
    EXPECT_EQ(listener_.others, 0) << "Enter reached the list";
}

TEST_F(RenameInPlace, is_given_up_with_escape) {
    const AnsweredBoxes boxes{IDOK};
    BeginAndEnd(L"b.txt", VK_ESCAPE);
    EXPECT_TRUE(boxes.Seen().empty());
    ExpectRenamedTo(L"a.txt");
    EXPECT_EQ(listener_.others, 0) << "Esc reached the list";
}

TEST_F(RenameInPlace, is_given_up_with_escape_whatever_stands_in_the_edit) {
    const AnsweredBoxes boxes{IDOK};
    ASSERT_TRUE(DeleteFileW(tree_.Path(L"a.txt").c_str()));
    for (const wchar_t* text : {L"", L"a.txt"})
        BeginAndEnd(text, VK_ESCAPE);
    EXPECT_TRUE(boxes.Seen().empty());
    EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
}

TEST_F(RenameInPlace, that_fails_shows_two_boxes_and_the_old_name) {
    tree_.AddFile(L"b.txt", "of b");
    const AnsweredBoxes boxes{IDOK};
    BeginAndEnd(L"b.txt", VK_RETURN);
    ExpectRefusal(boxes, L"Error Move file 183");
    EXPECT_EQ(ContentOf(L"a.txt"), "of a");
    EXPECT_EQ(ContentOf(L"b.txt"), "of b");
    EXPECT_EQ(listener_.ends, 1);
}

TEST_F(RenameInPlace, to_nothing_is_tried_and_refused) {
    const AnsweredBoxes boxes{IDOK};
    BeginAndEnd(L"", VK_RETURN);
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"Can't rename the file"));
    ExpectRenamedTo(L"a.txt");
}

TEST_F(RenameInPlace, to_the_same_name_is_tried_as_well) {
    {
        const AnsweredBoxes boxes{IDOK};
        BeginAndEnd(L"a.txt", VK_RETURN);
        EXPECT_TRUE(boxes.Seen().empty());
        ExpectRenamedTo(L"a.txt");
    }
    ASSERT_TRUE(DeleteFileW(tree_.Path(L"a.txt").c_str()));
    const AnsweredBoxes boxes{IDOK};
    BeginAndEnd(L"a.txt", VK_RETURN);
    ExpectRefusal(boxes, L"Error Move file 2");
}

TEST_F(RenameInPlace, takes_the_text_of_an_edit_that_is_left) {
    const AnsweredBoxes boxes{IDOK};
    Begin(L"b.txt");
    SetFocus(List().Handle());
    PumpQueue();
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_TRUE(boxes.Seen().empty());
    ExpectRenamedTo(L"b.txt");
}

TEST_F(RenameInPlace, that_fails_when_the_edit_is_left_shows_two_boxes_as_well) {
    tree_.AddFile(L"b.txt", "of b");
    const AnsweredBoxes boxes{IDOK};
    Begin(L"b.txt");
    SetFocus(List().Handle());
    PumpQueue();
    EXPECT_EQ(Edit(), nullptr);
    ExpectRefusal(boxes, L"Error Move file 183");
    EXPECT_EQ(listener_.ends, 1);
    EXPECT_EQ(ContentOf(L"a.txt"), "of a");
    EXPECT_EQ(ContentOf(L"b.txt"), "of b");
}

TEST_F(RenameInPlace, begins_wherever_the_focus_was) {
    SetFocus(OwnerHandle());
    BeginAndEnd(L"b.txt", VK_RETURN);
    ExpectRenamedTo(L"b.txt");
    EXPECT_EQ(GetFocus(), List().Handle());
}

TEST_F(RenameInPlace, leaves_enter_and_escape_to_an_input_method_that_composes) {
    const AnsweredBoxes boxes{IDOK};
    Begin(L"b");
    SendMessageW(Edit(), WM_IME_STARTCOMPOSITION, 0, 0);
    for (const int key : {VK_RETURN, VK_ESCAPE, VK_PROCESSKEY}) {
        PressKeyOn(Edit(), key);
        ASSERT_NE(Edit(), nullptr) << "key " << key << " ended the editing";
    }
    EXPECT_EQ(listener_.ends, 0);
    SendMessageW(Edit(), WM_IME_ENDCOMPOSITION, 0, 0);
    SetWindowTextW(Edit(), L"日報.txt");
    PressKeyOn(Edit(), VK_RETURN);
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_TRUE(boxes.Seen().empty());
    ExpectRenamedTo(L"日報.txt");
    EXPECT_EQ(listener_.others, 0) << "a key reached the list";
}

TEST_F(RenameInPlace, keeps_the_keys_of_the_list_to_itself) {
    Begin(L"b.txt");
    PressKeyOn(Edit(), '1', {VK_CONTROL});
    PressKeyOn(Edit(), VK_DELETE);
    const HeldKeys alt{VK_MENU};
    SendMessageW(Edit(), WM_SYSKEYDOWN, VK_RETURN, 0x20000001);
    SendMessageW(Edit(), WM_SYSKEYUP, VK_RETURN, static_cast<LPARAM>(0xE0000001));
    EXPECT_NE(Edit(), nullptr);
    EXPECT_EQ(listener_.others, 0);
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
    EXPECT_TRUE(Shell().started.empty());
}

TEST_F(RenameInPlace, leaves_nothing_of_its_edit_behind) {
    for (const int key : {VK_ESCAPE, VK_RETURN}) {
        Begin(L"b.txt");
        const HWND edit = Edit();
        EXPECT_NE(Application::Windows()->Find(edit), nullptr);
        PressKeyOn(edit, key);
        EXPECT_FALSE(IsWindow(edit));
        EXPECT_EQ(Application::Windows()->Find(edit), nullptr);
    }
}

TEST_F(RenameInPlace, means_the_file_whose_editing_began_wherever_its_row_is_by_then) {
    const AnsweredBoxes boxes{IDOK};
    AddFileRow(L"z.txt", "of z");
    Begin(L"b.txt");
    const PFNLVCOMPARE backwards = [](LPARAM first, LPARAM second, LPARAM) {
        return first < second ? 1 : first > second ? -1 : 0;
    };
    SendMessageW(List().Handle(), LVM_SORTITEMS, 0, reinterpret_cast<LPARAM>(backwards));
    ASSERT_EQ(RowNames(), (Names{L"z.txt", L"a.txt"}));
    SetFocus(List().Handle());
    PumpQueue();
    EXPECT_EQ(RowNames(), (Names{L"z.txt", L"b.txt"}));
    EXPECT_EQ(ContentOf(L"b.txt"), "of a");
    EXPECT_EQ(ContentOf(L"z.txt"), "of z");
}

TEST_F(RenameInPlace, is_given_up_when_its_row_is_gone) {
    const AnsweredBoxes boxes{IDOK};
    AddFileRow(L"z.txt", "of z");
    Begin(L"b.txt");
    NMLVDISPINFOW edited = {};
    std::wstring text = L"b.txt";
    edited.item.mask = LVIF_TEXT;
    edited.item.pszText = text.data();
    List().DeleteRow(0);
    Commands().EndRename(edited);
    EXPECT_EQ(Files(), (Names{L"a.txt", L"z.txt"}));
    EXPECT_EQ(RowNames(), (Names{L"z.txt"}));
}

TEST_F(RenameInPlace, is_taken_at_once_when_something_else_is_to_be_done) {
    const AnsweredBoxes boxes{IDOK};
    Begin(L"b.txt");
    List().EndEditing();
    EXPECT_EQ(Edit(), nullptr);
    ExpectRenamedTo(L"b.txt");
    List().EndEditing();
    EXPECT_EQ(listener_.ends, 1);
}

TEST_F(RenameInPlace, does_not_begin_behind_a_dialog_or_during_a_search) {
    EnableWindow(OwnerHandle(), FALSE);
    Commands().BeginRename();
    EXPECT_EQ(Edit(), nullptr);
    EnableWindow(OwnerHandle(), TRUE);
    List().BeginFilling();
    Commands().BeginRename();
    EXPECT_EQ(Edit(), nullptr);
    List().EndFilling();
    Commands().BeginRename();
    EXPECT_NE(Edit(), nullptr);
    SendMessageW(List().Handle(), LVM_CANCELEDITLABEL, 0, 0);
}

TEST_F(RenameInPlace, can_be_done_again_and_again) {
    for (int i = 0; i < 20; ++i) {
        BeginAndEnd(L"b.txt", VK_RETURN);
        ExpectRenamedTo(L"b.txt");
        Commands().BeginRename();
        ASSERT_NE(Edit(), nullptr);
        SetWindowTextW(Edit(), L"a.txt");
        PressKeyOn(Edit(), VK_RETURN);
        ExpectRenamedTo(L"a.txt");
    }
}
