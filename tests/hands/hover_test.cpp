// A pointer that merely rests somewhere does nothing: every dialog is opened as a person opens it, the
// pointer rests over each of its buttons long enough for a tooltip, and the dialog is still open and has the
// focus. Then the buttons are clicked, and do their work.

#include <functional>

#include "tests/hands/hands_test.h"

namespace {

// A tooltip comes after half a second.
constexpr DWORD RestTime = 2000;

struct Place {
    const char* name;
    std::function<POINT(const ProgramDialog&)> find;
};

}  // namespace

class Hovering : public HandsTest {
  protected:
    void SetUp() override {
        HandsTest::SetUp();
        AddFile(L"a.qsa");
        AddFile(L"b.qsb");
    }

    void TearDown() override {
        ParkPointer();
        HandsTest::TearDown();
    }

    // A button of the dialog's own bar.
    static Place OnBar(const char* name, int command) {
        return {name, [command](const ProgramDialog& dialog) {
                    return PlaceOfDialogButton(dialog.Window(), command);
                }};
    }
    // A control of the dialog, or of the page that it shows.
    static Place On(const char* name, int id) {
        return {name, [id](const ProgramDialog& dialog) { return MiddleOf(dialog.Control(id)); }};
    }

    void ExpectNothingWhereThePointerRests(const ProgramDialog& dialog, const std::vector<Place>& places) {
        const HWND focus = FocusWindow();
        for (const Place& place : places) {
            RestPointerAt(place.find(dialog), RestTime);
            Program().WaitForQueue();
            ASSERT_TRUE(IsWindowVisible(dialog.Window())) << "ended by resting on " << place.name;
            EXPECT_EQ(GetForegroundWindow(), dialog.Window()) << place.name;
            EXPECT_EQ(FocusWindow(), focus) << place.name;
            EXPECT_TRUE(!IsMenuOpen()) << place.name;
        }
    }

    // A real click, and the end of the dialog by it.
    static void CloseBy(const ProgramDialog& dialog, const Place& place) {
        ClickAt(place.find(dialog));
        WaitUntil("the dialog to close", [&] { return !IsWindowVisible(dialog.Window()); });
    }

    // Off everything that shows a tooltip.
    static void ParkPointer() { MovePointerTo({World().screenWidth - 1, World().screenHeight - 1}); }
};

TEST_F(Hovering, over_the_buttons_of_the_about_box_does_nothing_and_a_click_on_each_of_its_bar_closes_it) {
    const Place tick = OnBar("the tick", IDOK);
    const Place cross = OnBar("the cross", IDCANCEL);
    PressKey(VK_F1);
    const ProgramDialog about = DialogInFront();
    ExpectNothingWhereThePointerRests(about, {tick, cross, On("Uninstall", BUTTON_UNINSTALL)});
    if (HasFatalFailure()) return;
    CloseBy(about, tick);
    PressKey(VK_F1);
    CloseBy(DialogInFront(), cross);
    EXPECT_TRUE(Program().IsRunning());
}

TEST_F(Hovering, over_the_buttons_of_the_folder_browser_does_nothing_and_its_tick_takes_the_folder) {
    const Place tick = OnBar("the tick", IDOK);
    const Place cross = OnBar("the cross", IDCANCEL);
    ClickAt(PlaceOf(NamePage, BUTTON_BROWSE));
    const ProgramDialog browser = DialogInFront();
    Program().SelectTreeItem(1);
    const std::wstring chosen = L"\\" + Program().Tree().at(1).text;
    ExpectNothingWhereThePointerRests(browser, {tick, cross, On("the tree", TREE_FOLDERS)});
    if (HasFatalFailure()) return;
    EXPECT_EQ(Program().Control(NamePage, COMBO_LOCATION).text, L"");
    CloseBy(browser, tick);
    EXPECT_TRUE(HoldsWithin(StepDeadline,
                            [&] { return Program().Control(NamePage, COMBO_LOCATION).text == chosen; }));
    ClickAt(PlaceOf(NamePage, BUTTON_BROWSE));
    CloseBy(DialogInFront(), cross);
    EXPECT_EQ(Program().Control(NamePage, COMBO_LOCATION).text, chosen);
}

TEST_F(Hovering, over_the_buttons_of_the_delete_question_does_nothing_and_each_click_answers_it) {
    const Place yes = On("Yes", IDYES);
    const Place no = On("No", IDNO);
    const Place cross = OnBar("the cross", IDCANCEL);
    Find(L"*.qs?");
    SelectRow(L"a.qsa");
    OpenForRow(COMMAND_DELETE);
    const ProgramDialog question = DialogInFront();
    ExpectNothingWhereThePointerRests(question, {yes, no, cross, OnBar("the tick", IDOK)});
    if (HasFatalFailure()) return;
    EXPECT_TRUE(Stands(L"a.qsa"));
    CloseBy(question, no);
    for (const Place& way : {cross, yes}) {
        Program().WaitForQueue();
        EXPECT_TRUE(Stands(L"a.qsa")) << "before " << way.name;
        OpenForRow(COMMAND_DELETE);
        CloseBy(DialogInFront(), way);
    }
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return !Stands(L"a.qsa"); }));
    EXPECT_TRUE(Stands(L"b.qsb"));
}

TEST_F(Hovering, over_the_properties_sheet_does_nothing_and_its_boxes_and_buttons_work) {
    Find(L"a.qsa");
    ClickBarButton(COMMAND_PROPERTIES);
    const ProgramDialog sheet = DialogInFront();
    const Place readOnly = On("Read-only", CHECK_READ_ONLY);
    const Place ok = On("OK", IDOK);
    const Place cancel = On("Cancel", IDCANCEL);
    const bool before = sheet.IsChecked(CHECK_READ_ONLY);
    ExpectNothingWhereThePointerRests(sheet, {readOnly, ok, cancel});
    if (HasFatalFailure()) return;
    EXPECT_EQ(sheet.IsChecked(CHECK_READ_ONLY), before);
    ClickAt(readOnly.find(sheet));
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return sheet.IsChecked(CHECK_READ_ONLY) != before; }));
    CloseBy(sheet, cancel);
    const auto isReadOnly = [&] {
        return (GetFileAttributesW(Real(L"a.qsa").c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
    };
    EXPECT_FALSE(isReadOnly());
    ClickBarButton(COMMAND_PROPERTIES);
    const ProgramDialog again = DialogInFront();
    ClickAt(readOnly.find(again));
    CloseBy(again, ok);
    EXPECT_TRUE(HoldsWithin(StepDeadline, isReadOnly));
}

TEST_F(Hovering, over_the_shortcut_page_does_nothing) {
    AddShortcut(L"s.lnk", Path(L"a.qsa"));
    Find(L"s.lnk");
    ClickBarButton(COMMAND_PROPERTIES);
    const ProgramDialog sheet = DialogInFront();
    PressKey(VK_TAB, {VK_SHIFT});
    PressKey(VK_RIGHT);
    WaitUntil("the shortcut page", [&] { return sheet.HasText(Path(L"a.qsa")); });
    const Place cancel = On("Cancel", IDCANCEL);
    ExpectNothingWhereThePointerRests(sheet, {On("OK", IDOK), cancel, On("the target", EDIT_TARGET)});
    if (HasFatalFailure()) return;
    EXPECT_EQ(sheet.Text(EDIT_TARGET), Path(L"a.qsa"));
    CloseBy(sheet, cancel);
}

TEST_F(Hovering, over_the_button_of_an_error_box_does_nothing_and_a_click_closes_it) {
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
        ExpectNothingWhereThePointerRests(error, {On("OK", IDOK)});
        if (HasFatalFailure()) return;
        CloseBy(error, On("OK", IDOK));
    }
    EXPECT_TRUE(Stands(L"a.qsa"));
}

TEST_F(Hovering, over_the_buttons_of_the_running_search_does_nothing_and_a_click_on_either_aborts_it) {
    const Place abort = On("Abort", IDCANCEL);
    const Place cross = OnBar("the cross", IDCANCEL);
    for (const Place& way : {abort, cross}) {
        Program().Fill(Where(Folder()));
        ASSERT_TRUE(Program().FindAndHoldAwake(1)) << way.name;
        const ProgramDialog finding = DialogInFront();
        ExpectNothingWhereThePointerRests(finding, {way});
        if (HasFatalFailure()) return;
        ASSERT_TRUE(Program().Searching()) << way.name;
        CloseBy(finding, way);
        Program().Release();
        Program().WaitForEndOfSearch();
        EXPECT_LE(Program().List().count, 2) << way.name;
    }
}

TEST_F(Hovering, over_tabs_headings_and_bar_of_the_main_window_does_nothing) {
    Find(L"*.qs?");
    const Names rows = Program().RowNames();
    const HWND focus = FocusWindow();
    std::vector<std::pair<std::string, POINT>> places;
    for (const TabState& tab : Program().Tabs())
        places.emplace_back("a tab", CentreOf(tab.rectangle));
    for (const ColumnState& column : Program().Columns()) {
        const POINT middle = CentreOf(column.rectangle);
        if (middle.x < World().screenWidth) places.emplace_back("a heading", middle);
    }
    for (const ButtonState& button : Program().Bar())
        places.emplace_back("bar button " + std::to_string(button.command), CentreOf(button.rectangle));
    ASSERT_GE(places.size(), 10u);
    for (const auto& [name, place] : places) {
        RestPointerAt(place, RestTime);
        Program().WaitForQueue();
        EXPECT_TRUE(!IsMenuOpen()) << name;
        EXPECT_TRUE(NoDialogOpen()) << name;
        EXPECT_EQ(Program().CurrentPage(), NamePage) << name;
        EXPECT_EQ(Program().RowNames(), rows) << name;
        EXPECT_EQ(FocusWindow(), focus) << name;
    }
}

// Last, for it ends the program. There is nothing to remove before the settings have been saved once.
TEST_F(Hovering, over_uninstall_does_nothing_and_a_click_ends_the_program) {
    CloseProgram();
    StartAgain();
    Program().BringForward();
    PressKey(VK_F1);
    const ProgramDialog about = DialogInFront();
    const Place uninstall = On("Uninstall", BUTTON_UNINSTALL);
    ExpectNothingWhereThePointerRests(about, {uninstall});
    if (HasFatalFailure()) return;
    ClickAt(uninstall.find(about));
    EXPECT_EQ(Program().WaitForEnd(), 0u);
}
