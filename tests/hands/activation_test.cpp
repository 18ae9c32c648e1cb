// A second start and other activations from outside, and where the focus is when a dialog has ended.

#include "tests/hands/hands_test.h"

class Activation : public HandsTest {
  protected:
    ~Activation() override {
        if (other_ != nullptr) DestroyWindow(other_);
    }

    // The real program, started again.
    static void StartSecond() {
        RunningProgram second;
        ProgramStart start;
        start.path = ProgramPath();
        start.workingFolder = Drive().Root();
        second.Start(start);
        EXPECT_EQ(second.ExitCode(StepDeadline).value_or(999), 1u);
    }
    // Another program's window takes the input.
    void BringOtherForward() {
        other_ = CreateWindowExW(0, L"Static", L"in front", WS_POPUP | WS_VISIBLE, 0, 0, 40, 40, nullptr,
                                 nullptr, nullptr, nullptr);
        SetForegroundWindow(other_);
        WaitUntil("the other window in front", [this] { return GetForegroundWindow() == other_; });
    }
    [[nodiscard]] static bool HasInput(HWND window) {
        return HoldsWithin(StepDeadline, [window] {
            const HWND focus = FocusWindow();
            return GetForegroundWindow() == window && focus != nullptr &&
                   (focus == window || IsChild(window, focus));
        });
    }
    // A search leaves its first row selected and the focus in the list.
    void FocusRow(const std::wstring& name) {
        AddFile(name);
        Find(name);
    }

    // The dialogs that a person can open over the main window.
    void OpenAbout() { PressKey(VK_F1); }
    void OpenBrowse() { ClickAt(HandsTest::PlaceOf(NamePage, BUTTON_BROWSE)); }
    void OpenProperties() {
        FocusRow(L"p.txt");
        PressKey(VK_RETURN, {VK_MENU});
    }
    void OpenDeleteQuestion() {
        FocusRow(L"d.txt");
        OpenMenuByPointer(FileMenu);
        ClickMenuItem(COMMAND_DELETE);
    }
    void OpenErrorBox() {
        OpenDeleteQuestion();
        const HWND question = Dialog().Window();
        DeleteFileW(Real(L"d.txt").c_str());
        ClickAt(PlaceOfControl(question, IDYES));
        WaitUntil("the question to close", [question] { return !IsWindow(question); });
    }
    static POINT PlaceOfControl(HWND dialog, int id) {
        RECT place{};
        GetWindowRect(GetDlgItem(dialog, id), &place);
        return CentreOf(place);
    }
    static bool NoneOpen() { return !OpenDialogOf(Program().Window()).has_value(); }
    void CloseByEscape() {
        const HWND dialog = Dialog().Window();
        PressKey(VK_ESCAPE);
        WaitUntil("the dialog to close", [dialog] { return !IsWindow(dialog); });
    }

  private:
    HWND other_ = nullptr;
};

// A dialog, and how it is opened.
struct DialogCase {
    const char* name;
    int number;
};

void PrintTo(const DialogCase& row, std::ostream* out) {
    *out << row.name;
}

class ActivationDialogs : public Activation, public testing::WithParamInterface<DialogCase> {
  protected:
    HWND Open() {
        using Opener = void (ActivationDialogs::*)();
        constexpr Opener openers[] = {
            &ActivationDialogs::OpenAbout, &ActivationDialogs::OpenBrowse, &ActivationDialogs::OpenProperties,
            &ActivationDialogs::OpenDeleteQuestion, &ActivationDialogs::OpenErrorBox};
        (this->*openers[GetParam().number])();
        const HWND dialog = Dialog().Window();
        EXPECT_TRUE(HasInput(dialog));
        return dialog;
    }
};

TEST_P(ActivationDialogs, get_the_input_at_a_second_start_after_the_window_was_minimised) {
    const HWND dialog = Open();
    ShowWindow(Program().Window(), SW_MINIMIZE);
    BringOtherForward();
    StartSecond();
    EXPECT_TRUE(HasInput(dialog));
    EXPECT_FALSE(IsIconic(Program().Window()));
    EXPECT_TRUE(IsWindowVisible(dialog));
    CloseByEscape();
    EXPECT_TRUE(HasInput(Program().Window()));
}

TEST_P(ActivationDialogs, get_the_input_at_a_second_start_and_when_the_window_behind_them_is_activated) {
    const HWND dialog = Open();
    SetForegroundWindow(Program().Window());
    EXPECT_TRUE(HasInput(dialog));
    BringOtherForward();
    StartSecond();
    EXPECT_TRUE(HasInput(dialog));
    EXPECT_FALSE(IsWindowEnabled(Program().Window()));
    CloseByEscape();
    EXPECT_TRUE(HasInput(Program().Window()));
}

INSTANTIATE_TEST_SUITE_P(All, ActivationDialogs,
                         testing::Values(DialogCase{"about", 0}, DialogCase{"browser", 1},
                                         DialogCase{"properties", 2}, DialogCase{"delete_question", 3},
                                         DialogCase{"error_box", 4}),
                         testing::PrintToStringParamName());

TEST_F(Activation, a_second_start_gives_the_focus_back_to_the_control_that_had_it) {
    Program().FocusControl(NamePage, EDIT_CONTENT);
    BringOtherForward();
    StartSecond();
    EXPECT_TRUE(HasInput(Program().Window()));
    EXPECT_TRUE(Program().HasFocus(NamePage, EDIT_CONTENT));
}

TEST_F(Activation, a_second_start_restores_a_minimised_window_with_its_focus) {
    Program().FocusControl(NamePage, EDIT_CONTENT);
    ShowWindow(Program().Window(), SW_MINIMIZE);
    ASSERT_TRUE(IsIconic(Program().Window()));
    StartSecond();
    EXPECT_TRUE(HasInput(Program().Window()));
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return !IsIconic(Program().Window()); }));
    EXPECT_TRUE(Program().HasFocus(NamePage, EDIT_CONTENT));
}

TEST_F(Activation, a_second_start_during_a_search_gives_the_input_to_its_dialog) {
    Program().Fill(Where(L"\\names"));
    ASSERT_TRUE(Program().FindAndHold(2));
    BringOtherForward();
    StartSecond();
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] {
        return GetForegroundWindow() != nullptr && IsWindowEnabled(GetForegroundWindow()) &&
               GetForegroundWindow() != Program().Window();
    }));
    Program().Release();
    Program().WaitForEndOfSearch();
    EXPECT_TRUE(HasInput(Program().Window()));
    EXPECT_TRUE(Program().ListHasFocus());
}

TEST_F(Activation, a_second_start_with_a_menu_open_leaves_the_program_usable) {
    Program().FocusControl(NamePage, EDIT_CONTENT);
    OpenMenuByPointer(ViewMenu);
    StartSecond();
    CloseMenus();
    EXPECT_TRUE(HasInput(Program().Window()));
    EXPECT_TRUE(Program().HasFocus(NamePage, EDIT_CONTENT));
}

TEST_F(Activation, a_second_start_with_a_name_being_edited_leaves_the_editing_with_the_focus) {
    FocusRow(L"e.txt");
    OpenMenuByPointer(FileMenu);
    ClickMenuItem(COMMAND_RENAME);
    const auto isEditing = [] { return Program().FocusPath().starts_with(L"edit:"); };
    ASSERT_TRUE(HoldsWithin(StepDeadline, isEditing));
    StartSecond();
    Program().WaitForQueue();
    EXPECT_TRUE(isEditing());
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return Program().ListHasFocus(); }));
    EXPECT_TRUE(Stands(L"e.txt"));
}

// The focus after a dialog is where it was before it.
class FocusAfterDialogs : public Activation {};

TEST_F(FocusAfterDialogs, is_the_field_from_which_about_was_called) {
    for (const int field : {COMBO_NAME, EDIT_CONTENT, COMBO_LOCATION, CHECK_SUBFOLDERS}) {
        Program().FocusControl(NamePage, field);
        const std::wstring before = Program().FocusPath();
        OpenAbout();
        CloseByEscape();
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().FocusPath() == before; })) << field;
    }
    Program().FocusTab();
    OpenAbout();
    ClickAt(PlaceOfDialogButton(Dialog().Window(), IDOK));
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return NoneOpen() && Program().TabHasFocus(); }));
}

TEST_F(FocusAfterDialogs, is_the_browse_button_after_the_browser) {
    Program().FocusControl(NamePage, BUTTON_BROWSE);
    PressKey(VK_SPACE);
    CloseByEscape();
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return Program().HasFocus(NamePage, BUTTON_BROWSE); }));
    OpenBrowse();
    ClickAt(PlaceOfDialogButton(Dialog().Window(), IDCANCEL));
    EXPECT_TRUE(
        HoldsWithin(StepDeadline, [] { return NoneOpen() && Program().HasFocus(NamePage, BUTTON_BROWSE); }));
}

TEST_F(FocusAfterDialogs, is_the_list_after_the_properties) {
    OpenProperties();
    CloseByEscape();
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return Program().ListHasFocus(); }));
}

TEST_F(FocusAfterDialogs, is_the_list_after_each_answer_to_the_delete_question) {
    for (const int answer : {IDNO, IDYES}) {
        OpenDeleteQuestion();
        ClickAt(PlaceOfControl(Dialog().Window(), answer));
        EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return NoneOpen() && Program().ListHasFocus(); }))
            << answer;
    }
    EXPECT_FALSE(Stands(L"d.txt"));
}

TEST_F(FocusAfterDialogs, is_the_list_after_an_error_box) {
    OpenErrorBox();
    const HWND box = Dialog().Window();
    PressKey(VK_RETURN);
    WaitUntil("the box to close", [box] { return !IsWindow(box); });
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return Program().ListHasFocus(); }));
}

TEST_F(FocusAfterDialogs, is_the_list_after_a_search_that_found_nothing_from_a_field_on_another_page) {
    Program().Fill(Named(L"nothing.at.all", Folder()));
    Program().ShowPage(SizePage);
    Program().FocusControl(SizePage, EDIT_KILOBYTES);
    ClickBarButton(COMMAND_FIND);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return Program().ListHasFocus(); }));
    EXPECT_EQ(Program().List().count, 0);
}
