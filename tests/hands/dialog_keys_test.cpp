// The keys that leave or answer a dialog, pressed in each of them: they do one expected thing or nothing, and
// the main window has the keyboard afterwards.

#include <functional>

#include "tests/hands/hands_test.h"

namespace {

struct DialogKey {
    const char* name;
    WORD key;
    std::vector<WORD> modifiers;
};

const DialogKey Esc = {"Esc", VK_ESCAPE, {}};
const DialogKey Enter = {"Enter", VK_RETURN, {}};
const DialogKey Space = {"Space", VK_SPACE, {}};
const DialogKey AltF4 = {"Alt+F4", VK_F4, {VK_MENU}};
const DialogKey CtrlBreak = {"Ctrl+Break", VK_CANCEL, {VK_CONTROL}};
const DialogKey F1 = {"F1", VK_F1, {}};

// Long enough for a key that would close a dialog.
constexpr DWORD TimeToClose = 400;

// Of a key that is held down.
constexpr int Repeats = 10;

}  // namespace

class DialogKeys : public HandsTest {
  protected:
    void SetUp() override {
        HandsTest::SetUp();
        AddFile(L"a.qsa");
        AddFile(L"b.qsb");
    }

    static void Press(const DialogKey& key) {
        for (const WORD modifier : key.modifiers)
            HoldKey(modifier);
        PressKey(key.key);
        for (const WORD modifier : key.modifiers)
            ReleaseKey(modifier);
    }

    static bool IsOpen(const ProgramDialog& dialog) { return IsWindowVisible(dialog.Window()) != FALSE; }

    void ExpectClosedBy(const DialogKey& key, const ProgramDialog& dialog) {
        SCOPED_TRACE(key.name);
        Press(key);
        ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return !IsOpen(dialog); }));
    }
    void ExpectMainWindowInUse() {
        EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return GetForegroundWindow() == Program().Window(); }));
        EXPECT_TRUE(IsWindowEnabled(Program().Window()));
        EXPECT_TRUE(NoDialogOpen());
        EXPECT_TRUE(!IsMenuOpen());
    }
    // Nothing else opens either.
    void ExpectLeftOpenBy(const DialogKey& key, const ProgramDialog& dialog) {
        SCOPED_TRACE(key.name);
        Press(key);
        EXPECT_FALSE(HoldsWithin(TimeToClose, [&] { return !IsOpen(dialog); }));
        EXPECT_EQ(GetForegroundWindow(), dialog.Window());
    }

    // The key has been down since before the dialog opened.
    static void ExpectLeftOpenByRepeats(WORD key, const ProgramDialog& dialog) {
        for (int repeat = 0; repeat < Repeats; ++repeat)
            HoldKey(key);
        ReleaseKey(key);
        EXPECT_FALSE(HoldsWithin(TimeToClose, [&] { return !IsOpen(dialog); }));
    }
};

TEST_F(DialogKeys, close_the_about_box_and_never_uninstall) {
    CloseProgram();
    StartAgain();
    Program().BringForward();
    for (const DialogKey& key : {Esc, Enter, AltF4, CtrlBreak}) {
        PressKey(VK_F1);
        const ProgramDialog about = DialogInFront();
        ExpectLeftOpenBy(Space, about);
        ExpectLeftOpenBy(F1, about);
        ExpectClosedBy(key, about);
        ExpectMainWindowInUse();
    }
    EXPECT_TRUE(Program().IsRunning());
}

TEST_F(DialogKeys, leave_the_folder_browser_without_a_folder_but_for_enter) {
    for (const DialogKey& key : {Esc, CtrlBreak, AltF4}) {
        Program().FocusControl(NamePage, BUTTON_BROWSE);
        PressKey(VK_SPACE);
        const ProgramDialog browser = DialogInFront();
        PressKey(VK_DOWN);
        ExpectLeftOpenBy(F1, browser);
        ExpectClosedBy(key, browser);
        ExpectMainWindowInUse();
        EXPECT_EQ(Program().Control(NamePage, COMBO_LOCATION).text, L"") << key.name;
        EXPECT_TRUE(Program().HasFocus(NamePage, BUTTON_BROWSE)) << key.name;
    }
    PressKey(VK_SPACE);
    const ProgramDialog browser = DialogInFront();
    PressKey(VK_HOME);
    PressKey(VK_DOWN);
    WaitUntil("the folder", [&] { return Program().Tree().at(1).Selected(); });
    const std::wstring chosen = L"\\" + Program().Tree().at(1).text;
    ExpectClosedBy(Enter, browser);
    EXPECT_TRUE(HoldsWithin(StepDeadline,
                            [&] { return Program().Control(NamePage, COMBO_LOCATION).text == chosen; }));
}

TEST_F(DialogKeys, answer_the_delete_question_with_no_but_for_enter_and_space) {
    for (const DialogKey& key : {Esc, AltF4, CtrlBreak}) {
        Find(L"*.qs?");
        SelectRow(L"a.qsa");
        OpenForRow(COMMAND_DELETE);
        const ProgramDialog question = DialogInFront();
        ExpectLeftOpenBy(F1, question);
        ExpectClosedBy(key, question);
        ExpectMainWindowInUse();
        EXPECT_TRUE(Stands(L"a.qsa")) << key.name;
    }
    struct Row {
        const DialogKey& key;
        const wchar_t* file;
    };
    for (const Row& row : {Row{Enter, L"a.qsa"}, Row{Space, L"b.qsb"}}) {
        SelectRow(row.file);
        OpenForRow(COMMAND_DELETE);
        ExpectClosedBy(row.key, DialogInFront());
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return !Stands(row.file); })) << row.key.name;
        ExpectMainWindowInUse();
    }
}

TEST_F(DialogKeys, give_the_properties_sheet_up_but_for_enter) {
    const auto isReadOnly = [&] {
        return (GetFileAttributesW(Real(L"a.qsa").c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
    };
    Find(L"a.qsa");
    for (const DialogKey& key : {Esc, AltF4, CtrlBreak, Enter}) {
        PressKey(VK_RETURN, {VK_MENU});
        const ProgramDialog sheet = DialogInFront();
        ClickAt([&] {
            RECT box = {};
            GetWindowRect(sheet.Control(CHECK_READ_ONLY), &box);
            return CentreOf(box);
        }());
        WaitUntil("the tick", [&] { return sheet.IsChecked(CHECK_READ_ONLY); });
        PressKey(VK_SPACE);
        WaitUntil("the tick to go", [&] { return !sheet.IsChecked(CHECK_READ_ONLY); });
        PressKey(VK_SPACE);
        WaitUntil("the tick again", [&] { return sheet.IsChecked(CHECK_READ_ONLY); });
        ExpectLeftOpenBy(F1, sheet);
        EXPECT_FALSE(isReadOnly()) << key.name;
        ExpectClosedBy(key, sheet);
        ExpectMainWindowInUse();
    }
    EXPECT_TRUE(HoldsWithin(StepDeadline, isReadOnly));
}

TEST_F(DialogKeys, close_an_error_box) {
    for (const DialogKey& key : {Esc, Enter, Space, AltF4}) {
        Find(L"*.qs?");
        SelectRow(L"a.qsa");
        OpenForRow(COMMAND_RENAME);
        ASSERT_TRUE(NameIsEdited());
        TypeText(L"b.qsb");
        PressKey(VK_RETURN);
        // The reason first, then that the rename failed.
        for (int box = 0; box < 2; ++box) {
            const ProgramDialog error = DialogInFront();
            ASSERT_EQ(error.Caption(), Shown(L"Error", L"ｴﾗｰ"));
            if (box == 0) ExpectLeftOpenBy(F1, error);
            ExpectClosedBy(key, error);
        }
        ExpectMainWindowInUse();
        EXPECT_TRUE(Stands(L"a.qsa")) << key.name;
    }
}

TEST_F(DialogKeys, abort_a_search_or_leave_it_alone) {
    for (const DialogKey& key : {Esc, Space, AltF4}) {
        Program().Fill(Where(Folder()));
        ASSERT_TRUE(Program().FindAndHoldAwake(1)) << key.name;
        const ProgramDialog finding = DialogInFront();
        ExpectLeftOpenBy(F1, finding);
        ExpectLeftOpenBy(CtrlBreak, finding);
        ExpectClosedBy(key, finding);
        Program().Release();
        Program().WaitForEndOfSearch();
        ExpectMainWindowInUse();
    }
}

TEST_F(DialogKeys, held_enter_on_the_menu_item_leaves_the_question_open) {
    Find(L"*.qs?");
    SelectRow(L"a.qsa");
    OpenMenuByKeys(FileMenu);
    MarkMenuItemByKeys(COMMAND_DELETE);
    HoldKey(VK_RETURN);
    const ProgramDialog question = DialogInFront();
    ExpectLeftOpenByRepeats(VK_RETURN, question);
    EXPECT_TRUE(Stands(L"a.qsa"));
    // Pressed anew it answers.
    ExpectClosedBy(Enter, question);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return !Stands(L"a.qsa"); }));
}

TEST_F(DialogKeys, held_space_leaves_a_question_open_that_has_opened_meanwhile) {
    Find(L"*.qs?");
    SelectRow(L"a.qsa");
    Program().FocusControl(NamePage, BUTTON_BROWSE);
    HoldKey(VK_SPACE);
    WaitUntil("the button to be held",
              [] { return (SendMessageW(FocusWindow(), BM_GETSTATE, 0, 0) & BST_PUSHED) != 0; });
    PostMessageW(Program().Window(), WM_COMMAND, COMMAND_DELETE, 0);
    const ProgramDialog question = DialogInFront();
    ExpectLeftOpenByRepeats(VK_SPACE, question);
    EXPECT_TRUE(Stands(L"a.qsa"));
    ExpectClosedBy(Esc, question);
}

TEST_F(DialogKeys, held_alt_f4_closes_one_dialog_and_not_the_window_behind_it) {
    struct Opening {
        const char* name;
        std::function<void()> act;
    };
    const Opening openings[] = {{"about box", [] { PressKey(VK_F1); }},
                                {"folder browser", [&] { ClickAt(PlaceOf(NamePage, BUTTON_BROWSE)); }}};
    for (const Opening& opening : openings) {
        SCOPED_TRACE(opening.name);
        opening.act();
        const ProgramDialog dialog = DialogInFront();
        HoldKey(VK_MENU);
        HoldKey(VK_F4);
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return !IsOpen(dialog); }));
        WaitUntil("the main window", [] { return GetForegroundWindow() == Program().Window(); });
        for (int repeat = 0; repeat < Repeats; ++repeat)
            HoldKey(VK_F4);
        ReleaseKey(VK_F4);
        ReleaseKey(VK_MENU);
        EXPECT_FALSE(HoldsWithin(TimeToClose, [] { return !IsWindow(Program().Window()); }));
        ASSERT_TRUE(Program().IsRunning());
        CloseMenus();
        ExpectMainWindowInUse();
    }
}

TEST_F(DialogKeys, leave_the_page_and_its_fields_where_they_are) {
    for (const int id : {EDIT_CONTENT, BUTTON_BROWSE}) {
        for (const DialogKey& key : {Esc, CtrlBreak}) {
            Program().FocusControl(NamePage, id);
            Press(key);
            EXPECT_FALSE(HoldsWithin(TimeToClose, [&] {
                return !Program().Control(NamePage, EDIT_CONTENT).visible;
            })) << key.name;
            EXPECT_TRUE(Program().HasFocus(NamePage, id)) << key.name;
        }
    }
}
