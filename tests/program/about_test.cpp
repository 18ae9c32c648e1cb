// The About box in the running program, and what it uninstalls.

#include <windows.h>

#include <cwchar>
#include <memory>

#include "resources/resource_ids.h"
#include "tests/program/program_dialogs.h"
#include "tests/program/program_test.h"
#include "tests/program/registry_reading.h"
#include "tests/support/user_input.h"

namespace {

struct MemoryLine {
    int freeKilobytes = -1;
    int totalKilobytes = -1;
    int percentage = -1;
};

// What follows the label and its colon; untouched where the text is not of that form.
MemoryLine ParseMemory(const std::wstring& text, const std::wstring& label) {
    MemoryLine line;
    int length = 0;
    if (text.rfind(label + L": ", 0) != 0) return line;
    MemoryLine read;
    const wchar_t* figures = text.c_str() + label.size() + 2;
    const int fields = std::swscanf(figures, L"%d/%dKB (%d%%)%n", &read.freeKilobytes, &read.totalKilobytes,
                                    &read.percentage, &length);
    return fields == 3 && figures[length] == L'\0' ? read : line;
}

void ExpectConsistent(const MemoryLine& line) {
    EXPECT_GT(line.totalKilobytes, 0);
    EXPECT_GE(line.freeKilobytes, 0);
    EXPECT_LE(line.freeKilobytes, line.totalKilobytes);
    EXPECT_EQ(line.percentage, static_cast<int>(line.freeKilobytes * 100LL / line.totalKilobytes));
}

}  // namespace

class About : public ProgramTest {
  protected:
    void SetUp() override {
        if (!Program().IsRunning()) StartFresh();
        Program().BringForward();
    }
    void TearDown() override {
        if (!Program().IsRunning() || Program().Dialogs().empty()) return;
        Program().Kill();
    }

    ProgramDialog OpenByCommand() {
        PostMessageW(Program().Window(), WM_COMMAND, COMMAND_ABOUT, 0);
        return InFront(WaitForDialog(Program().Window()));
    }
    ProgramDialog OpenByKey() {
        PressKey(VK_F1);
        return InFront(WaitForDialog(Program().Window()));
    }
    static ProgramDialog InFront(const ProgramDialog& dialog) {
        WaitUntil("the dialog in front", [&] { return GetForegroundWindow() == dialog.Window(); });
        return dialog;
    }
    void WaitForClose(const ProgramDialog& dialog) {
        WaitUntil("the dialog to close", [&] { return !IsWindow(dialog.Window()); });
        Program().WaitForQueue();
    }
};

TEST_F(About, shows_product_version_notice_and_contacts) {
    const ProgramDialog about = OpenByCommand();
    EXPECT_EQ(about.Caption(), Shown(L"About", L"ﾊﾞｰｼﾞｮﾝ情報"));
    EXPECT_EQ(about.Text(STATIC_TITLE), Shown(L"About", L"ﾊﾞｰｼﾞｮﾝ情報"));
    EXPECT_EQ(about.Text(STATIC_PRODUCT_NAME), L"QuorinSearch");
    EXPECT_EQ(about.Text(STATIC_VERSION), L"Version " QUORIN_VERSION);
    EXPECT_NE(std::wstring::npos, about.Text(STATIC_LEGAL_NOTICE).find(L"QuorinSoft"));
    EXPECT_FALSE(about.Text(STATIC_CONTACT_1).empty());
    EXPECT_FALSE(about.Text(STATIC_CONTACT_2).empty());
    EXPECT_TRUE(about.HasText(Shown(L"Rest of memories", L"ﾒﾓﾘ残量")));
    EXPECT_EQ(about.Text(BUTTON_UNINSTALL), Shown(L"&Uninstall", L"ｱﾝｲﾝｽﾄ(&U)"));
    EXPECT_TRUE(IsWindowVisible(about.Control(BUTTON_UNINSTALL)));
    PostMessageW(about.Window(), WM_COMMAND, IDOK, 0);
    WaitForClose(about);
}

TEST_F(About, shows_the_machines_memory_and_no_cards_where_there_are_none) {
    MEMORYSTATUSEX memory = {};
    memory.dwLength = sizeof memory;
    ASSERT_TRUE(GlobalMemoryStatusEx(&memory));
    ULARGE_INTEGER total = {};
    ASSERT_TRUE(GetDiskFreeSpaceExW(L"C:\\", nullptr, &total, nullptr));

    const ProgramDialog about = OpenByCommand();
    const MemoryLine ofPrograms =
        ParseMemory(about.Text(STATIC_PROGRAM_MEMORY), Shown(L"Program", L"ﾌﾟﾛｸﾞﾗﾑ"));
    ExpectConsistent(ofPrograms);
    EXPECT_EQ(ofPrograms.totalKilobytes, static_cast<int>(memory.ullTotalPhys / 1024));
    const MemoryLine ofData = ParseMemory(about.Text(STATIC_DATA_STORE), Shown(L"Data", L"ﾃﾞｰﾀ"));
    ExpectConsistent(ofData);
    EXPECT_EQ(ofData.totalKilobytes, static_cast<int>(total.QuadPart / 1024));
    EXPECT_EQ(about.Text(STATIC_STORAGE_CARD), L"");
    EXPECT_EQ(about.Text(STATIC_SECOND_STORAGE_CARD), L"");
    PostMessageW(about.Window(), WM_COMMAND, IDCANCEL, 0);
    WaitForClose(about);
}

TEST_F(About, lists_no_more_than_the_first_two_of_the_cards_that_are_in) {
    std::vector<std::unique_ptr<DeviceDrive>> cards;
    for (std::size_t count = 1; count <= 3; ++count) {
        cards.push_back(std::make_unique<DeviceDrive>(Tree().Root(), DRIVE_REMOVABLE));
        if (GetDriveTypeW(cards.back()->Root().c_str()) != DRIVE_REMOVABLE)
            GTEST_SKIP() << "this system makes no removable drives";
        const ProgramDialog about = OpenByCommand();
        for (std::size_t card = 0; card < 2; ++card) {
            SCOPED_TRACE(testing::Message() << count << " cards, line " << card);
            const std::wstring text = about.Text(STATIC_STORAGE_CARD + static_cast<int>(card));
            if (card < count) {
                ExpectConsistent(ParseMemory(text, cards[card]->Root()));
            } else {
                EXPECT_EQ(text, L"");
            }
        }
        PostMessageW(about.Window(), WM_COMMAND, IDCANCEL, 0);
        WaitForClose(about);
    }
}

TEST_F(About, lies_on_the_screen_with_all_its_controls) {
    const ProgramDialog about = OpenByCommand();
    const RECT screen = {0, 0, World().screenWidth, World().screenHeight};
    for (const int id : {STATIC_PRODUCT_NAME, STATIC_VERSION, STATIC_LEGAL_NOTICE, STATIC_CONTACT_1,
                         STATIC_CONTACT_2, STATIC_PROGRAM_MEMORY, STATIC_DATA_STORE, STATIC_STORAGE_CARD,
                         STATIC_SECOND_STORAGE_CARD, BUTTON_UNINSTALL}) {
        RECT place = {};
        GetWindowRect(about.Control(id), &place);
        RECT visible = {};
        IntersectRect(&visible, &place, &screen);
        EXPECT_TRUE(EqualRect(&visible, &place)) << id;
        // The bar with its two buttons.
        EXPECT_LE(place.bottom, about.Place().bottom - 26) << id;
    }
    PostMessageW(about.Window(), WM_COMMAND, IDCANCEL, 0);
    WaitForClose(about);
}

TEST_F(About, opens_by_f1_from_each_place_of_the_window) {
    const auto opensHere = [&] {
        const ProgramDialog about = OpenByKey();
        PressKey(VK_ESCAPE);
        WaitForClose(about);
    };
    Program().FocusControl(NamePage, COMBO_NAME);
    opensHere();
    Program().FocusControl(NamePage, EDIT_CONTENT);
    opensHere();
    EXPECT_TRUE(Program().HasFocus(NamePage, EDIT_CONTENT)) << "the focus did not come back";
    Program().FocusControl(NamePage, CHECK_SUBFOLDERS);
    PressKey(VK_TAB);
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().ListHasFocus(); }));
    opensHere();
}

// Enter and the blank, pressed by somebody who has only looked, remove nothing, also when the button had the
// focus the time before.
TEST_F(About, has_its_focus_off_the_button_each_time_it_opens) {
    for (int time = 0; time < 3; ++time) {
        const ProgramDialog about = OpenByKey();
        EXPECT_EQ(Program().FocusPath().rfind(L"#32770:0", 0), 0u)
            << testing::PrintToString(Program().FocusPath());
        PressKey(VK_TAB);
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] {
            return Program().FocusPath().rfind(L"button:" + std::to_wstring(BUTTON_UNINSTALL), 0) == 0;
        }));
        PressKey(VK_ESCAPE);
        WaitForClose(about);
    }
    EXPECT_TRUE(Program().IsRunning());
}

class Uninstall : public About {
  protected:
    void SetUp() override {
        StartFresh();
        CloseProgram();
        ASSERT_TRUE(KeyExists(NameKey));
        StartAgain();
        Program().BringForward();
    }
};

TEST_F(Uninstall, removes_both_keys_without_a_question_and_ends_the_program) {
    OpenByCommand().Click(BUTTON_UNINSTALL);
    EXPECT_EQ(Program().WaitForEnd(), 0u);
    EXPECT_FALSE(KeyExists(ProductKey));
    EXPECT_FALSE(KeyExists(MakerKey));
}

TEST_F(Uninstall, leaves_a_next_start_as_on_the_first_day) {
    Program().SetText(NamePage, COMBO_NAME, L"remembered");
    Program().SetCheck(NamePage, CHECK_SUBFOLDERS, true);
    CloseProgram();
    StoreText(NameKey, L"0", L"remembered");
    StartAgain();
    ASSERT_EQ(Program().Combo(NamePage, COMBO_NAME).entries.back(), L"remembered");
    OpenByCommand().Click(BUTTON_UNINSTALL);
    EXPECT_EQ(Program().WaitForEnd(), 0u);
    PrepareRegistry();
    StartAgain();
    EXPECT_EQ(Program().Combo(NamePage, COMBO_NAME).entries, (Names{L"*.log", L"*.txt"}));
    EXPECT_EQ(Program().Control(NamePage, CHECK_SUBFOLDERS).checked, BST_UNCHECKED);
}

TEST_F(Uninstall, is_done_by_keys_alone) {
    OpenByKey();
    PressKey('U', {VK_MENU});
    EXPECT_EQ(Program().WaitForEnd(), 0u);
    EXPECT_FALSE(KeyExists(MakerKey));
}

TEST_F(Uninstall, that_fails_says_so_and_the_program_goes_on_and_saves) {
    ASSERT_EQ(RegDeleteTreeW(HKEY_CURRENT_USER, ProductKey), ERROR_SUCCESS);
    const ProgramDialog about = OpenByCommand();
    about.Click(BUTTON_UNINSTALL);
    WaitUntil("the About box to go", [&] { return !IsWindowVisible(about.Window()); });
    const ProgramDialog error = InFront(WaitForDialog(Program().Window()));
    EXPECT_EQ(error.Caption(), Shown(L"Error", L"ｴﾗｰ"));
    EXPECT_TRUE(error.HasText(Shown(L"Uninstall fail!", L"ｱﾝｲﾝｽﾄｰﾙに失敗しました!")));
    EXPECT_EQ(GetWindow(error.Window(), GW_OWNER), Program().Window());
    PressKey(VK_RETURN);
    WaitForClose(error);
    EXPECT_TRUE(Program().Dialogs().empty());
    EXPECT_EQ(NamesFoundBy(Named(L"abc", L"\\names")).size(), 2u);
    CloseProgram();
    EXPECT_TRUE(KeyExists(NameKey));
}
