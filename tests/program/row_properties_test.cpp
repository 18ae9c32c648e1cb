// The properties sheet of the selected row: every way to it, what it shows, and attributes read back from the
// file system.

#include "resources/resource_ids.h"
#include "tests/program/results_test.h"
#include "tests/support/user_input.h"

class RowProperties : public ResultsTest {
  protected:
    void SetUp() override {
        ResultsTest::SetUp();
        AddFile(L"a.qsa", std::string(1000, 'x'));
        Tree().SetAttributes(Path(L"a.qsa").substr(1), FILE_ATTRIBUTE_ARCHIVE);
        Find(L"*.qs?");
        SelectRow(L"a.qsa");
    }
    // Whether the sheet shows the page that has this control.
    [[nodiscard]] static bool ShowsPageWith(const ProgramDialog& sheet, int id) {
        HWND page = nullptr;
        while ((page = FindWindowExW(sheet.Window(), page, L"#32770", nullptr)) != nullptr)
            if (GetDlgItem(page, id) != nullptr && IsWindowVisible(page)) return true;
        return false;
    }
    // Whether the key with Alt takes the focus to the control. A busy system loses a key now and then while a
    // page is being turned, so it is pressed again as a user would.
    [[nodiscard]] static bool ReachesByKey(WORD key, const ProgramDialog& sheet, int id) {
        constexpr int MostPresses = 5;
        for (int press = 0; press < MostPresses; ++press) {
            PressKey(key, {VK_MENU});
            if (HoldsWithin(1000, [&] { return sheet.Focus() == sheet.Control(id); })) return true;
        }
        return false;
    }
    [[nodiscard]] bool Has(DWORD attribute) const {
        return (GetFileAttributesW(Real(L"a.qsa").c_str()) & attribute) != 0;
    }
};

TEST_F(RowProperties, fit_the_screen_and_show_the_file) {
    const ProgramDialog sheet = Opened(COMMAND_PROPERTIES);
    const RECT place = sheet.Place();
    EXPECT_GE(place.left, 0);
    EXPECT_GE(place.top, 0);
    EXPECT_LE(place.right, World().screenWidth);
    EXPECT_LE(place.bottom, World().screenHeight);
    EXPECT_EQ(sheet.PageCount(), 1);
    EXPECT_EQ(sheet.Caption(), L"");
    EXPECT_EQ(sheet.Text(STATIC_TYPE), L"Alpha kind");
    EXPECT_EQ(sheet.Text(STATIC_LOCATION), Folder());
    EXPECT_EQ(sheet.Text(CHECK_READ_ONLY), Shown(L"&Read-only", L"読みとり専用(&R)"));
    sheet.Press(IDCANCEL);
}

TEST_F(RowProperties, change_an_attribute_and_take_it_back) {
    for (const bool readOnly : {true, false}) {
        const ProgramDialog sheet = Opened(COMMAND_PROPERTIES);
        EXPECT_EQ(sheet.IsChecked(CHECK_READ_ONLY), !readOnly);
        sheet.Click(CHECK_READ_ONLY);
        sheet.Press(IDOK);
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Has(FILE_ATTRIBUTE_READONLY) == readOnly; }));
    }
    EXPECT_EQ(ContentOf(L"a.qsa"), std::string(1000, 'x'));
}

TEST_F(RowProperties, change_nothing_when_cancelled) {
    const ProgramDialog sheet = Opened(COMMAND_PROPERTIES);
    sheet.Click(CHECK_READ_ONLY);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return sheet.IsChecked(CHECK_READ_ONLY); }));
    sheet.Press(IDCANCEL);
    EXPECT_FALSE(Has(FILE_ATTRIBUTE_READONLY));
}

TEST_F(RowProperties, by_the_keyboard_alone) {
    PressKey(VK_RETURN, {VK_MENU});
    const ProgramDialog sheet = Dialog();
    PressKey('R', {VK_MENU});
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return sheet.IsChecked(CHECK_READ_ONLY); }));
    PressKey(VK_RETURN);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return !IsWindow(sheet.Window()); }));
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Has(FILE_ATTRIBUTE_READONLY); }));
}

TEST_F(RowProperties, by_the_mouse_alone) {
    ClickAt(CentreOf(Program().Bar().at(4).rectangle));
    const ProgramDialog sheet = Dialog();
    RECT box = {};
    GetWindowRect(sheet.Control(CHECK_READ_ONLY), &box);
    ClickAt(CentreOf(box));
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return sheet.IsChecked(CHECK_READ_ONLY); }));
    RECT ok = {};
    GetWindowRect(sheet.Control(IDOK), &ok);
    ClickAt(CentreOf(ok));
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Has(FILE_ATTRIBUTE_READONLY); }));
}

TEST_F(RowProperties, of_a_shortcut_have_a_second_page_that_points_it_elsewhere) {
    AddProgram(L"recorder.exe");
    AddShortcut(L"s.lnk", Path(L"a.qsa"));
    Find(L"s.lnk");
    SelectRow(L"s.lnk");
    const ProgramDialog sheet = Opened(COMMAND_PROPERTIES);
    EXPECT_EQ(sheet.PageCount(), 2);
    sheet.TurnTo(1);
    EXPECT_EQ(sheet.Text(EDIT_TARGET), Path(L"a.qsa"));
    EXPECT_EQ(sheet.Text(STATIC_TARGET_SIZE), L"1000 bytes");
    EXPECT_EQ(sheet.Text(STATIC_TARGET_TYPE), L"Alpha kind");
    const std::wstring target = L"\"" + Path(L"recorder.exe") + L"\" one";
    SendMessageW(sheet.Control(EDIT_TARGET), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(target.c_str()));
    sheet.Press(IDOK);
    Program().SendMenuCommand(COMMAND_OPEN);
    EXPECT_EQ(Started(1), (Names{L"one"}));
}

TEST_F(RowProperties, of_a_shortcut_have_a_second_page_that_the_keyboard_reaches_and_changes) {
    AddShortcut(L"s.lnk", Path(L"a.qsa"));
    Find(L"s.lnk");
    PressKey(VK_RETURN, {VK_MENU});
    const ProgramDialog sheet = Dialog();
    PressKey(VK_TAB, {VK_SHIFT});
    PressKey(VK_RIGHT);
    ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return ShowsPageWith(sheet, EDIT_TARGET); }));
    EXPECT_EQ(sheet.Text(EDIT_TARGET), Path(L"a.qsa"));
    ASSERT_TRUE(ReachesByKey('T', sheet, EDIT_TARGET));
    PressKey(VK_END);
    PressKey(VK_BACK);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return sheet.Text(EDIT_TARGET) == Path(L"a.qs"); }));
    PressKey(VK_RETURN);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return !IsWindow(sheet.Window()); }));
    const ProgramDialog again = Opened(COMMAND_PROPERTIES);
    again.TurnTo(1);
    const std::wstring target = again.Text(EDIT_TARGET);
    EXPECT_NE(std::wstring::npos, target.find(Path(L"a.qs"))) << testing::PrintToString(target);
    EXPECT_EQ(target.find(Path(L"a.qsa")), std::wstring::npos);
    again.Press(IDCANCEL);
}

TEST_F(RowProperties, of_a_folder_have_no_boxes) {
    Tree().AddFolder(Path(L"folder").substr(1));
    Find(L"folder");
    SelectRow(L"folder");
    const ProgramDialog sheet = Opened(COMMAND_PROPERTIES);
    EXPECT_FALSE(IsWindowVisible(sheet.Control(CHECK_READ_ONLY)));
    EXPECT_EQ(sheet.Text(STATIC_SIZE), L"");
    sheet.Press(IDOK);
    EXPECT_TRUE(NoDialogOpen());
}
