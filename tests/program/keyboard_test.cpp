// The keyboard's way through the program, with real keys.

#include <algorithm>
#include <functional>

#include "resources/resource_ids.h"
#include "tests/program/program_test.h"
#include "tests/support/user_input.h"

class Keyboard : public ProgramTest {
  protected:
    void SetUp() override {
        ProgramTest::SetUp();
        Program().BringForward();
    }

    // True when the key starts a search, whose end is waited for.
    bool StartsSearch(WORD key) {
        const int before = Program().SearchesBegun();
        PressKey(key);
        if (!HoldsWithin(StepDeadline, [&] { return Program().SearchesBegun() > before; })) return false;
        Program().WaitForEndOfSearch();
        return true;
    }

    bool FocusComesTo(int page, int id) {
        return HoldsWithin(StepDeadline, [&] { return Program().HasFocus(page, id); });
    }

    // The program's thread stands still meanwhile, as on a machine that is busy with something else.
    static void WhileItStandsStill(const std::function<void()>& act) {
        const HANDLE thread =
            OpenThread(THREAD_SUSPEND_RESUME, FALSE, GetWindowThreadProcessId(Program().Window(), nullptr));
        ASSERT_NE(thread, nullptr);
        SuspendThread(thread);
        act();
        ResumeThread(thread);
        CloseHandle(thread);
    }

    std::string Focus() { return testing::PrintToString(Program().FocusPath()); }
};

TEST_F(Keyboard, enter_in_the_name_adds_to_its_history_and_starts_the_search) {
    Program().Fill(Named(L"xabcx", L"\\names"));
    Program().FocusControl(NamePage, COMBO_NAME);
    ASSERT_TRUE(StartsSearch(VK_RETURN));
    EXPECT_EQ(Program().RowNames(), (Names{L"xabcx.txt"}));
    EXPECT_EQ(Program().Combo(NamePage, COMBO_NAME).entries.at(0), L"xabcx");
    EXPECT_EQ(Program().Combo(NamePage, COMBO_NAME).selected, 0);
    EXPECT_TRUE(Program().Combo(NamePage, COMBO_LOCATION).entries.empty());
}

TEST_F(Keyboard, enter_in_the_location_adds_to_its_history_and_starts_the_search) {
    StartFresh();
    Program().Fill(Named(L"abc", L"\\names"));
    Program().FocusControl(NamePage, COMBO_LOCATION);
    ASSERT_TRUE(StartsSearch(VK_RETURN));
    EXPECT_EQ(Program().List().count, 2);
    EXPECT_EQ(Program().Combo(NamePage, COMBO_LOCATION).entries, (Names{L"\\names"}));
    EXPECT_EQ(Program().Combo(NamePage, COMBO_NAME).entries, (Names{L"*.log", L"*.txt"}));
}

TEST_F(Keyboard, enter_in_the_content_starts_the_search_without_any_history) {
    StartFresh();
    Program().Fill(Containing(L"aBc", L"\\contents"));
    Program().FocusControl(NamePage, EDIT_CONTENT);
    ASSERT_TRUE(StartsSearch(VK_RETURN));
    EXPECT_EQ(Program().RowNames(), (Names{L"mixed.txt"}));
    EXPECT_EQ(Program().Combo(NamePage, COMBO_NAME).entries, (Names{L"*.log", L"*.txt"}));
    EXPECT_TRUE(Program().Combo(NamePage, COMBO_LOCATION).entries.empty());
    EXPECT_EQ(Program().Control(NamePage, EDIT_CONTENT).text, L"aBc");
}

TEST_F(Keyboard, the_find_command_adds_nothing_to_the_histories) {
    StartFresh();
    NamesFoundBy(Named(L"abc", L"\\names"));
    EXPECT_EQ(Program().Combo(NamePage, COMBO_NAME).entries, (Names{L"*.log", L"*.txt"}));
    EXPECT_TRUE(Program().Combo(NamePage, COMBO_LOCATION).entries.empty());
}

TEST_F(Keyboard, a_name_typed_by_hand_is_searched_for) {
    Program().Fill(Where(L"\\names"));
    Program().FocusControl(NamePage, COMBO_NAME);
    TypeText(L"日報");
    ASSERT_TRUE(
        HoldsWithin(StepDeadline, [&] { return Program().Control(NamePage, COMBO_NAME).text == L"日報"; }));
    ASSERT_TRUE(StartsSearch(VK_RETURN));
    EXPECT_EQ(Program().RowNames(), (Names{L"日報.txt"}));
}

TEST_F(Keyboard, entering_a_beginning_of_an_older_entry_takes_its_place) {
    StartFresh();
    for (const wchar_t* name : {L"abcdef", L"ABC"}) {
        Program().SetText(NamePage, COMBO_NAME, name);
        Program().SetText(NamePage, COMBO_LOCATION, L"\\empty");
        Program().FocusControl(NamePage, COMBO_NAME);
        ASSERT_TRUE(StartsSearch(VK_RETURN));
    }
    EXPECT_EQ(Program().Combo(NamePage, COMBO_NAME).entries, (Names{L"ABC", L"*.log", L"*.txt"}));
}

TEST_F(Keyboard, tab_in_the_name_goes_to_the_content) {
    Program().FocusControl(NamePage, COMBO_NAME);
    PressKey(VK_TAB);
    EXPECT_TRUE(FocusComesTo(NamePage, EDIT_CONTENT)) << Focus();
    EXPECT_EQ(Program().Control(NamePage, EDIT_CONTENT).text, L"");
}

TEST_F(Keyboard, shift_tab_in_the_name_goes_to_the_tabs) {
    Program().FocusControl(NamePage, COMBO_NAME);
    PressKey(VK_TAB, {VK_SHIFT});
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().TabHasFocus(); })) << Focus();
}

TEST_F(Keyboard, tab_in_the_location_goes_to_browse) {
    if (!Program().Control(NamePage, BUTTON_BROWSE).enabled) {
        GTEST_SKIP() << "the Browse button is disabled and cannot have the focus";
    }
    Program().FocusControl(NamePage, COMBO_LOCATION);
    PressKey(VK_TAB);
    EXPECT_TRUE(FocusComesTo(NamePage, BUTTON_BROWSE)) << Focus();
}

TEST_F(Keyboard, shift_tab_in_the_location_goes_to_the_content) {
    Program().FocusControl(NamePage, COMBO_LOCATION);
    PressKey(VK_TAB, {VK_SHIFT});
    EXPECT_TRUE(FocusComesTo(NamePage, EDIT_CONTENT)) << Focus();
}

TEST_F(Keyboard, tab_on_the_tabs_goes_into_the_page_that_is_shown) {
    struct Case {
        int page;
        int firstControl;
    };
    for (const Case& expected :
         {Case{NamePage, COMBO_NAME}, Case{DatePage, RADIO_ALL_FILES}, Case{SizePage, COMBO_FILE_TYPE}}) {
        Program().ShowPage(expected.page);
        Program().FocusTab();
        PressKey(VK_TAB);
        EXPECT_TRUE(FocusComesTo(expected.page, expected.firstControl))
            << "page " << expected.page << ", the focus is at " << Focus();
    }
}

TEST_F(Keyboard, arrows_on_the_tabs_change_the_page) {
    Program().FocusTab();
    PressKey(VK_RIGHT);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().CurrentPage() == DatePage; }));
    EXPECT_TRUE(
        HoldsWithin(StepDeadline, [&] { return Program().Control(DatePage, RADIO_ALL_FILES).visible; }));
    PressKey(VK_LEFT);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().CurrentPage() == NamePage; }));
}

TEST_F(Keyboard, every_control_of_a_page_can_be_reached_with_tab_and_the_list_as_well) {
    Program().FocusTab();
    std::vector<std::wstring> stops;
    for (int press = 0; press < 12; ++press) {
        const std::wstring before = Program().FocusPath();
        PressKey(VK_TAB);
        ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().FocusPath() != before; }))
            << "Tab does not leave " << testing::PrintToString(before);
        stops.push_back(Program().FocusPath());
        if (Program().TabHasFocus()) break;
    }
    const auto reached = [&](const std::wstring& part) {
        return std::any_of(stops.begin(), stops.end(), [&](const std::wstring& stop) {
            return (L" " + stop).find(part) != std::wstring::npos;
        });
    };
    EXPECT_TRUE(reached(L"combobox:10401 "));
    EXPECT_TRUE(reached(L"edit:10701 "));
    EXPECT_TRUE(reached(L"combobox:10402 "));
    EXPECT_TRUE(reached(L"button:10301 "));
    EXPECT_TRUE(reached(L" syslistview32:"));
    EXPECT_TRUE(Program().TabHasFocus()) << "the way round does not close";
}

// The letters are the same in both languages.
TEST_F(Keyboard, the_labels_letters_lead_to_their_fields_on_the_name_page) {
    struct Case {
        WORD letter;
        int control;
    };
    for (const Case& expected : {Case{'C', EDIT_CONTENT}, Case{'L', COMBO_LOCATION}, Case{'N', COMBO_NAME}}) {
        Program().FocusControl(NamePage, CHECK_SUBFOLDERS);
        PressKey(expected.letter, {VK_MENU});
        EXPECT_TRUE(FocusComesTo(NamePage, expected.control))
            << "Alt+" << static_cast<char>(expected.letter) << ", the focus is at " << Focus();
    }
    for (const int id : {COMBO_NAME, EDIT_CONTENT, COMBO_LOCATION}) {
        EXPECT_EQ(Program().Control(NamePage, id).text, L"") << id;
    }
}

TEST_F(Keyboard, alt_s_switches_the_sub_folders_on_and_off) {
    Program().FocusControl(NamePage, EDIT_CONTENT);
    for (const int expected : {BST_CHECKED, BST_UNCHECKED}) {
        PressKey('S', {VK_MENU});
        EXPECT_TRUE(HoldsWithin(
            5000, [&] { return Program().Control(NamePage, CHECK_SUBFOLDERS).checked == expected; }));
    }
}

TEST_F(Keyboard, the_radio_buttons_letters_choose_them) {
    struct Case {
        WORD letter;
        int radio;
        bool pickers;
        bool days;
    };
    Program().ShowPage(DatePage);
    Program().FocusControl(DatePage, RADIO_ALL_FILES);
    for (const Case& expected : {Case{'B', RADIO_BETWEEN, true, false}, Case{'D', RADIO_PAST, false, true},
                                 Case{'A', RADIO_ALL_FILES, false, false}}) {
        PressKey(expected.letter, {VK_MENU});
        ASSERT_TRUE(HoldsWithin(StepDeadline,
                                [&] { return Program().Control(DatePage, expected.radio).checked != 0; }))
            << "Alt+" << static_cast<char>(expected.letter);
        EXPECT_EQ(Program().Control(DatePage, PICKER_FROM).enabled, expected.pickers);
        EXPECT_EQ(Program().Control(DatePage, EDIT_DAYS).enabled, expected.days);
    }
}

TEST_F(Keyboard, the_labels_letters_lead_to_their_fields_on_the_size_page) {
    Program().ShowPage(SizePage);
    Program().FocusControl(SizePage, EDIT_KILOBYTES);
    PressKey('T', {VK_MENU});
    EXPECT_TRUE(FocusComesTo(SizePage, COMBO_FILE_TYPE)) << Focus();
    PressKey('S', {VK_MENU});
    EXPECT_TRUE(FocusComesTo(SizePage, COMBO_FILE_SIZE)) << Focus();
}

TEST_F(Keyboard, ctrl_q_ends_the_program_from_the_list_as_well) {
    NamesFoundBy(Where(L"\\names"));
    ASSERT_TRUE(Program().ListHasFocus());
    PressKey('Q', {VK_CONTROL});
    EXPECT_EQ(Program().WaitForEnd(), 0u);
}

TEST_F(Keyboard, the_abort_button_answers_the_keyboard) {
    for (const WORD key : {WORD{VK_ESCAPE}, WORD{VK_SPACE}}) {
        Program().Fill(Where(L"\\", true));
        ASSERT_TRUE(Program().FindAndHold(3));
        PressKey(key);
        // The key is on its way to the queue before the search goes on.
        Sleep(100);
        Program().Release();
        Program().WaitForEndOfSearch();
        EXPECT_LE(Program().List().count, 8) << "key " << key << " did not abort";
    }
}

TEST_F(Keyboard, keys_that_a_busy_program_takes_late_are_waited_for) {
    Program().FocusControl(NamePage, EDIT_CONTENT);
    WhileItStandsStill([] { TypeText(L"typed"); });
    Program().WaitForInput();
    EXPECT_EQ(Program().Control(NamePage, EDIT_CONTENT).text, L"typed");
}
