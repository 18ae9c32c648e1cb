// The settings after each orderly end of the program, read back from the registry.

#include "tests/hands/hands_test.h"
#include "tests/program/registry_reading.h"

using Values = std::map<std::wstring, StoredValue>;

class Ends : public HandsTest {
  protected:
    // As on the first day, and one search more in the history.
    void SetUp() override {
        HandsTest::SetUp();
        StartFresh();
        Program().SetText(NamePage, COMBO_LOCATION, L"\\empty");
        Program().SetText(NamePage, COMBO_NAME, L"typed");
        Program().FocusControl(NamePage, COMBO_NAME);
        const int before = Program().SearchesBegun();
        PressKey(VK_RETURN);
        WaitUntil("the search", [before] { return Program().SearchesBegun() > before; });
        Program().WaitForEndOfSearch();
        ASSERT_FALSE(KeyExists(ProductKey));
    }
    static bool AreSaved() {
        return ValuesOf(NameKey) == Values{{L"0", StoredText(L"*.txt")},
                                           {L"1", StoredText(L"*.log")},
                                           {L"2", StoredText(L"typed")}} &&
               ValuesOf(ProductKey) == Values{{L"Sub Folder", StoredDword(0)}};
    }
    static void ExpectSavedEnd() {
        EXPECT_EQ(Program().WaitForEnd(), 0u);
        EXPECT_TRUE(AreSaved());
    }
    // As the system does at a log-off.
    static LRESULT EndSession(bool reallyEnds = true) {
        return SendMessageW(Program().Window(), WM_ENDSESSION, reallyEnds, ENDSESSION_LOGOFF);
    }
};

TEST_F(Ends, by_a_click_on_the_close_box_saves_the_settings) {
    RECT place{};
    GetWindowRect(Program().Window(), &place);
    ClickAt({place.right - GetSystemMetrics(SM_CXFIXEDFRAME) - GetSystemMetrics(SM_CXSIZE) / 2,
             place.top + GetSystemMetrics(SM_CYFIXEDFRAME) + GetSystemMetrics(SM_CYSIZE) / 2});
    ExpectSavedEnd();
}

TEST_F(Ends, by_the_menus_exit_saves_the_settings) {
    OpenMenuByPointer(FileMenu);
    ClickMenuItem(COMMAND_EXIT);
    ExpectSavedEnd();
}

TEST_F(Ends, by_ctrl_q_saves_the_settings) {
    PressKey('Q', {VK_CONTROL});
    ExpectSavedEnd();
}

TEST_F(Ends, by_alt_f4_saves_the_settings) {
    PressKey(VK_F4, {VK_MENU});
    ExpectSavedEnd();
}

TEST_F(Ends, by_a_log_off_saves_the_settings_before_the_system_is_answered) {
    EXPECT_TRUE(SendMessageW(Program().Window(), WM_QUERYENDSESSION, 0, ENDSESSION_LOGOFF));
    EXPECT_FALSE(KeyExists(ProductKey)) << "a question is no end";
    EXPECT_EQ(EndSession(), 0);
    EXPECT_TRUE(AreSaved());
    ExpectSavedEnd();
}

TEST_F(Ends, by_a_log_off_writes_the_settings_once) {
    EndSession();
    ASSERT_TRUE(AreSaved());
    Store(ProductKey, L"Sub Folder", REG_SZ, L"mark", 5 * sizeof(wchar_t));
    EXPECT_EQ(Program().WaitForEnd(), 0u);
    EXPECT_EQ(ValuesOf(ProductKey)[L"Sub Folder"], StoredText(L"mark"));
}

TEST_F(Ends, is_none_when_the_log_off_is_called_off) {
    EXPECT_TRUE(SendMessageW(Program().Window(), WM_QUERYENDSESSION, 0, ENDSESSION_LOGOFF));
    EndSession(false);
    Program().WaitForQueue();
    EXPECT_TRUE(Program().IsRunning());
    EXPECT_FALSE(KeyExists(ProductKey));
    PressKey('Q', {VK_CONTROL});
    ExpectSavedEnd();
}

TEST_F(Ends, by_a_log_off_in_the_middle_of_a_search_saves_the_settings) {
    Program().Fill(Where(L"\\names"));
    ASSERT_TRUE(Program().FindAndHold(2));
    EndSession();
    EXPECT_TRUE(AreSaved());
    Program().Release();
    ExpectSavedEnd();
}

TEST_F(Ends, by_a_log_off_over_an_open_dialog_saves_the_settings) {
    PressKey(VK_F1);
    static_cast<void>(Dialog());
    EndSession();
    ExpectSavedEnd();
}

TEST_F(Ends, by_a_log_off_over_the_browser_saves_the_settings) {
    ClickAt(HandsTest::PlaceOf(NamePage, BUTTON_BROWSE));
    static_cast<void>(Dialog());
    EndSession();
    ExpectSavedEnd();
}

TEST_F(Ends, by_a_log_off_over_the_delete_question_deletes_nothing) {
    AddFile(L"d.txt");
    Find(L"d.txt");
    OpenMenuByPointer(FileMenu);
    ClickMenuItem(COMMAND_DELETE);
    static_cast<void>(Dialog());
    EndSession();
    ExpectSavedEnd();
    EXPECT_TRUE(Stands(L"d.txt"));
}

TEST_F(Ends, by_the_uninstall_writes_nothing_even_at_a_log_off) {
    CloseProgram();
    ASSERT_TRUE(AreSaved());
    StartAgain();
    PressKey(VK_F1);
    const HWND about = Dialog().Window();
    RECT place{};
    GetWindowRect(GetDlgItem(about, BUTTON_UNINSTALL), &place);
    ClickAt(CentreOf(place));
    WaitUntil("the About box to close", [about] { return !IsWindow(about); });
    SendNotifyMessageW(Program().Window(), WM_ENDSESSION, TRUE, ENDSESSION_LOGOFF);
    EXPECT_EQ(Program().WaitForEnd(), 0u);
    EXPECT_FALSE(KeyExists(ProductKey));
}

TEST_F(Ends, a_start_while_the_last_copy_is_being_taken_apart_opens_the_program_again) {
    CloseProgram();
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.lpszClassName = L"QuorinSearch";
    RegisterClassW(&windowClass);
    const HWND going = CreateWindowW(L"QuorinSearch", L"QuorinSearch", WS_POPUP | WS_DISABLED, 0, 0, 50, 50,
                                     nullptr, nullptr, nullptr, nullptr);
    RunningProgram again;
    ProgramStart start;
    start.path = ProgramPath();
    start.workingFolder = Drive().Root();
    again.Start(start);
    EXPECT_TRUE(HoldsWithin(
        StepDeadline, [&] { return again.MainWindow() != nullptr && IsWindowVisible(again.MainWindow()); }));
    PostMessageW(again.MainWindow(), WM_CLOSE, 0, 0);
    EXPECT_EQ(again.ExitCode(StepDeadline).value_or(999), 0u);
    DestroyWindow(going);
}
