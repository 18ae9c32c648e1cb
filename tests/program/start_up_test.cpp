// Start-up as seen from outside: the world, the language, the arguments, the one instance, the end.

#include "resources/resource_ids.h"
#include "tests/program/program_test.h"

class StartUp : public ProgramTest {};

TEST_F(StartUp, the_world_is_the_one_that_was_announced) {
    const bool japanese = PRIMARYLANGID(GetSystemDefaultLangID()) == LANG_JAPANESE;
    EXPECT_EQ(japanese, World().japaneseSystem);
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), World().screenWidth);
    EXPECT_EQ(GetSystemMetrics(SM_CYSCREEN), World().screenHeight);
}

TEST_F(StartUp, the_language_is_the_systems_own_or_the_other_one_where_the_registry_says_so) {
    EXPECT_EQ(Program().Tabs().at(0).caption, Shown(L"Name", L"名前と場所"));
    EXPECT_EQ(Program().Columns().at(0).heading, Shown(L"Name", L"名前"));
    EXPECT_EQ(Program().Menu().at(0).text, Shown(L"File", L"ﾌｧｲﾙ"));
}

TEST_F(StartUp, change_language_of_0_leaves_the_systems_language_in_force) {
    CloseProgram();
    const DWORD keep = 0;
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\QuorinSoft", L"Change language", REG_DWORD, &keep,
                    sizeof(keep));
    StartAgain();
    const wchar_t* systemsOwn = World().japaneseSystem ? L"名前と場所" : L"Name";
    EXPECT_EQ(Program().Tabs().at(0).caption, systemsOwn);
    Program().Kill();
}

TEST_F(StartUp, the_program_never_writes_change_language) {
    CloseProgram();
    DWORD value = 0;
    DWORD size = sizeof(value);
    const LSTATUS found = RegGetValueW(HKEY_CURRENT_USER, L"Software\\QuorinSoft", L"Change language",
                                       RRF_RT_REG_DWORD, nullptr, &value, &size);
    if (World().languageOverride) {
        EXPECT_EQ(found, ERROR_SUCCESS);
        EXPECT_EQ(value, 1u);
    } else {
        EXPECT_EQ(found, ERROR_FILE_NOT_FOUND);
    }
}

TEST_F(StartUp, the_main_window_has_the_products_name_as_class_and_title) {
    wchar_t title[64] = L"";
    GetWindowTextW(Program().Window(), title, 64);
    EXPECT_STREQ(title, L"QuorinSearch");
    EXPECT_NE(nullptr, FindWindowW(L"QuorinSearch", L"QuorinSearch"));
}

TEST_F(StartUp, arguments_change_nothing) {
    StartFresh(L"\"\\names\" *.txt /s -x \"a quoted word");
    EXPECT_EQ(Program().Control(NamePage, COMBO_NAME).text, L"*.log");
    EXPECT_EQ(Program().Control(NamePage, COMBO_LOCATION).text, L"");
    EXPECT_EQ(Program().Control(NamePage, EDIT_CONTENT).text, L"");
    EXPECT_EQ(Program().List().count, 0);
}

TEST_F(StartUp, more_than_128_arguments_change_nothing) {
    std::wstring words;
    for (int i = 0; i < 300; ++i)
        words += L"word" + std::to_wstring(i) + L"\t ";
    StartFresh(words);
    EXPECT_EQ(Program().Control(NamePage, COMBO_NAME).text, L"*.log");
    Program().Fill(Named(L"abc", L"\\names"));
    Program().Find();
    EXPECT_EQ(Program().List().count, 2);
}

TEST_F(StartUp, a_second_copy_ends_with_exit_code_1) {
    RunningProgram second;
    ProgramStart start;
    start.path = ProgramPath();
    start.workingFolder = Drive().Root();
    second.Start(start);
    EXPECT_EQ(second.ExitCode(StepDeadline).value_or(999), 1u);
    EXPECT_TRUE(Program().IsRunning());
}

TEST_F(StartUp, a_second_copy_brings_the_first_one_forward) {
    // Something else in front of it.
    const HWND other = CreateWindowExW(0, L"Static", L"in front", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                       nullptr, nullptr, nullptr, nullptr);
    SetForegroundWindow(other);
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return GetForegroundWindow() == other; }));

    RunningProgram second;
    ProgramStart start;
    start.path = ProgramPath();
    second.Start(start);
    EXPECT_EQ(second.ExitCode(StepDeadline).value_or(999), 1u);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return GetForegroundWindow() == Program().Window(); }));
    DestroyWindow(other);
}

TEST_F(StartUp, a_second_copy_does_not_disturb_the_search_of_the_first) {
    Program().Fill(Named(L"", L"\\names"));
    ASSERT_TRUE(Program().FindAndHold(2));
    RunningProgram second;
    ProgramStart start;
    start.path = ProgramPath();
    second.Start(start);
    // SetForegroundWindow of the second copy waits for the first one's thread, which is being held.
    Program().Release();
    EXPECT_EQ(second.ExitCode(StepDeadline).value_or(999), 1u);
    Program().WaitForEndOfSearch();
    EXPECT_EQ(Program().List().count, 8);
}

TEST_F(StartUp, the_start_up_show_state_is_used_for_the_first_showing) {
    Program().Kill();
    PrepareRegistry();
    RunningProgram minimised;
    ProgramStart start;
    start.path = ProgramPath();
    start.showCommand = SW_SHOWMINNOACTIVE;
    minimised.Start(start);
    HWND window = nullptr;
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] {
        window = minimised.MainWindow();
        return window != nullptr && IsIconic(window);
    }));
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(minimised.ExitCode(StepDeadline).value_or(999), 0u);
}

TEST_F(StartUp, closing_ends_with_exit_code_0) {
    EXPECT_EQ(Program().Close(), 0u);
}

TEST_F(StartUp, the_exit_code_is_that_of_the_quit_message) {
    PostThreadMessageW(GetWindowThreadProcessId(Program().Window(), nullptr), WM_QUIT, 42, 0);
    EXPECT_EQ(Program().WaitForEnd(), 42u);
}
