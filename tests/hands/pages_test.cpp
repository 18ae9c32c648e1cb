// The controls of the three condition pages, reached by pointer and by keys.

#include <commctrl.h>

#include "tests/hands/hands_test.h"

class PagesInHands : public HandsTest {
  protected:
    void TurnTo(int page) {
        if (Program().CurrentPage() == page) return;
        ClickAt(CentreOf(Program().Tabs().at(static_cast<std::size_t>(page)).rectangle));
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().CurrentPage() == page; }))
            << "page " << page << ", not " << Program().CurrentPage();
        Program().WaitForQueue();
    }
    [[nodiscard]] RECT Rectangle(int page, int id) { return Program().Control(page, id).rectangle; }
    // The button of a combo box, at its right end.
    [[nodiscard]] POINT ArrowOf(int page, int id) {
        const RECT box = Rectangle(page, id);
        return {box.right - 8, (box.top + box.bottom) / 2};
    }
    enum class Half { Up, Down };
    [[nodiscard]] POINT HalfOf(int page, int id, Half half) {
        const RECT spin = Rectangle(page, id);
        const LONG quarter = (spin.bottom - spin.top) / 4;
        return {(spin.left + spin.right) / 2, half == Half::Up ? spin.top + quarter : spin.bottom - quarter};
    }
    [[nodiscard]] bool TextIs(int page, int id, const std::wstring& text) {
        return HoldsWithin(StepDeadline, [&] { return Program().Control(page, id).text == text; });
    }
    [[nodiscard]] bool IsChecked(int page, int id) { return Program().Control(page, id).checked != 0; }
    [[nodiscard]] bool ChecksWithin(int page, int id, bool checked = true) {
        return HoldsWithin(StepDeadline, [&] { return IsChecked(page, id) == checked; });
    }
    [[nodiscard]] bool HasFocus(int page, int id) {
        return HoldsWithin(StepDeadline, [&] { return Program().HasFocus(page, id); });
    }
    [[nodiscard]] int PickedDate(int picker) {
        const SYSTEMTIME date = Program().Picker(DatePage, picker).time;
        return date.wYear * 10000 + date.wMonth * 100 + date.wDay;
    }
    // An open list of a combo box: its window.
    [[nodiscard]] static HWND OpenList() {
        for (HWND list = FindWindowExW(nullptr, nullptr, L"ComboLBox", nullptr); list != nullptr;
             list = FindWindowExW(nullptr, list, L"ComboLBox", nullptr)) {
            if (IsWindowVisible(list)) return list;
        }
        return nullptr;
    }
    void ClickEntry(int index) {
        WaitUntil("the list to open", [] { return OpenList() != nullptr; });
        RECT area = {};
        GetWindowRect(OpenList(), &area);
        const auto height = static_cast<LONG>(SendMessageW(OpenList(), LB_GETITEMHEIGHT, 0, 0));
        ClickAt({(area.left + area.right) / 2, area.top + 1 + height * index + height / 2});
        EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return OpenList() == nullptr; }));
    }
    void ExpectBrowserOpens() {
        EXPECT_EQ(Dialog().Caption(), Shown(L"Select Folder", L"ﾌｫﾙﾀﾞ選択"));
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return NoDialogOpen(); }));
    }
};

TEST_F(PagesInHands, the_fields_of_the_name_page_are_typed_into) {
    for (const int field : {COMBO_NAME, EDIT_CONTENT, COMBO_LOCATION}) {
        RECT box = Rectangle(NamePage, field);
        ClickAt({box.left + 12, (box.top + box.bottom) / 2});
        EXPECT_TRUE(HasFocus(NamePage, field));
        TypeText(L"日x");
        EXPECT_TRUE(TextIs(NamePage, field, L"日x")) << "field " << field;
    }
    // Each label's letter selects the text of its field.
    const std::pair<WORD, int> letters[] = {{'N', COMBO_NAME}, {'C', EDIT_CONTENT}, {'L', COMBO_LOCATION}};
    for (const auto& [letter, field] : letters) {
        PressKey(letter, {VK_MENU});
        EXPECT_TRUE(HasFocus(NamePage, field)) << "field " << field;
        EXPECT_FALSE(IsMenuOpen());
    }
}

TEST_F(PagesInHands, an_entry_of_the_history_is_taken_by_pointer_and_by_keys) {
    StartFresh();
    Program().BringForward();
    ClickAt(ArrowOf(NamePage, COMBO_NAME));
    ClickEntry(1);
    EXPECT_TRUE(TextIs(NamePage, COMBO_NAME, L"*.txt"));
    PressKey(VK_DOWN, {VK_MENU});
    WaitUntil("the list to open", [] { return OpenList() != nullptr; });
    PressKey(VK_UP);
    PressKey(VK_RETURN);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return OpenList() == nullptr; }));
    EXPECT_TRUE(TextIs(NamePage, COMBO_NAME, L"*.log"));
    EXPECT_EQ(Program().SearchesBegun(), 0);
    // Given up with Esc: what the list is left at goes back.
    PressKey(VK_DOWN, {VK_MENU});
    WaitUntil("the list to open", [] { return OpenList() != nullptr; });
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return OpenList() == nullptr; }));
    EXPECT_TRUE(TextIs(NamePage, COMBO_NAME, L"*.log"));
    EXPECT_TRUE(HasFocus(NamePage, COMBO_NAME));
}

TEST_F(PagesInHands, a_click_elsewhere_closes_an_open_list_of_names) {
    StartFresh();
    Program().BringForward();
    ClickAt(ArrowOf(NamePage, COMBO_NAME));
    WaitUntil("the list to open", [] { return OpenList() != nullptr; });
    ClickAt(CentreOf(Program().Tabs().at(DatePage).rectangle));
    EXPECT_TRUE(HoldsWithin(StepDeadline, [] { return OpenList() == nullptr; }));
    EXPECT_TRUE(Program().IsRunning());
}

TEST_F(PagesInHands, browse_opens_by_pointer_space_enter_and_its_letter) {
    ClickAt(PlaceOf(NamePage, BUTTON_BROWSE));
    ExpectBrowserOpens();
    for (const int key : {VK_SPACE, VK_RETURN}) {
        Program().FocusControl(NamePage, BUTTON_BROWSE);
        PressKey(static_cast<WORD>(key));
        ExpectBrowserOpens();
        EXPECT_TRUE(HasFocus(NamePage, BUTTON_BROWSE));
    }
    PressKey('B', {VK_MENU});
    ExpectBrowserOpens();
}

TEST_F(PagesInHands, sub_folders_are_ticked_by_pointer_space_and_letter) {
    ClickAt(PlaceOf(NamePage, CHECK_SUBFOLDERS));
    EXPECT_TRUE(ChecksWithin(NamePage, CHECK_SUBFOLDERS, true));
    PressKey(VK_SPACE);
    EXPECT_TRUE(ChecksWithin(NamePage, CHECK_SUBFOLDERS, false));
    PressKey('S', {VK_MENU});
    EXPECT_TRUE(ChecksWithin(NamePage, CHECK_SUBFOLDERS, true));
}

TEST_F(PagesInHands, the_tabs_turn_by_pointer_and_by_arrow_keys) {
    for (const int page : {DatePage, SizePage, NamePage})
        TurnTo(page);
    Program().FocusTab();
    for (const int page : {DatePage, SizePage}) {
        PressKey(VK_RIGHT);
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().CurrentPage() == page; }));
        EXPECT_TRUE(Program().TabHasFocus());
    }
    PressKey(VK_LEFT);
    EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().CurrentPage() == DatePage; }));
    // A tab that was left by a key is still there for the pointer.
    for (const int page : {NamePage, SizePage, DatePage})
        TurnTo(page);
}

TEST_F(PagesInHands, the_radio_buttons_answer_pointer_arrows_and_letters) {
    TurnTo(DatePage);
    for (const int radio : {RADIO_BETWEEN, RADIO_PAST, RADIO_ALL_FILES}) {
        ClickAt(PlaceOf(DatePage, radio));
        EXPECT_TRUE(ChecksWithin(DatePage, radio)) << "radio " << radio;
    }
    for (const int radio : {RADIO_BETWEEN, RADIO_PAST}) {
        PressKey(VK_DOWN);
        EXPECT_TRUE(ChecksWithin(DatePage, radio)) << "radio " << radio;
    }
    const std::pair<WORD, int> letters[] = {{'A', RADIO_ALL_FILES}, {'B', RADIO_BETWEEN}, {'D', RADIO_PAST}};
    for (const auto& [letter, radio] : letters) {
        PressKey(letter, {VK_MENU});
        EXPECT_TRUE(ChecksWithin(DatePage, radio)) << "radio " << radio;
    }
    // The last one frees the days and nothing else.
    EXPECT_TRUE(Program().Control(DatePage, EDIT_DAYS).enabled);
    EXPECT_FALSE(Program().Control(DatePage, PICKER_FROM).enabled);
}

TEST_F(PagesInHands, the_days_are_set_by_spin_arrows_and_digits) {
    TurnTo(DatePage);
    ClickAt(PlaceOf(DatePage, RADIO_PAST));
    ASSERT_TRUE(TextIs(DatePage, EDIT_DAYS, L"1"));
    ClickAt(HalfOf(DatePage, SPIN_DAYS, Half::Up));
    EXPECT_TRUE(TextIs(DatePage, EDIT_DAYS, L"2"));
    ClickAt(HalfOf(DatePage, SPIN_DAYS, Half::Down));
    EXPECT_TRUE(TextIs(DatePage, EDIT_DAYS, L"1"));
    // Not below the first day.
    ClickAt(HalfOf(DatePage, SPIN_DAYS, Half::Down));
    EXPECT_TRUE(TextIs(DatePage, EDIT_DAYS, L"1"));
    Program().FocusControl(DatePage, EDIT_DAYS);
    PressKey(VK_UP);
    EXPECT_TRUE(TextIs(DatePage, EDIT_DAYS, L"2"));
    PressKey(VK_END);
    PressKey(VK_BACK);
    TypeText(L"14");
    EXPECT_TRUE(TextIs(DatePage, EDIT_DAYS, L"14"));
    EXPECT_EQ(Program().Spin(DatePage, SPIN_DAYS).position, 14);
}

TEST_F(PagesInHands, a_date_is_changed_by_arrow_keys) {
    TurnTo(DatePage);
    ClickAt(PlaceOf(DatePage, RADIO_BETWEEN));
    for (const int picker : {PICKER_FROM, PICKER_TO}) {
        Program().SetDate(DatePage, picker, 20020115);
        const RECT box = Rectangle(DatePage, picker);
        // The year is the first field.
        ClickAt({box.left + 8, (box.top + box.bottom) / 2});
        EXPECT_TRUE(HasFocus(DatePage, picker));
        PressKey(VK_UP);
        EXPECT_TRUE(
            HoldsWithin(StepDeadline, [&] { return Program().Picker(DatePage, picker).time.wYear == 2003; }))
            << "picker " << picker;
        PressKey(VK_RIGHT);
        PressKey(VK_RIGHT);
        PressKey(VK_DOWN);
        EXPECT_TRUE(
            HoldsWithin(StepDeadline, [&] { return Program().Picker(DatePage, picker).time.wDay == 14; }))
            << "picker " << picker;
    }
}

TEST_F(PagesInHands, a_date_is_typed) {
    TurnTo(DatePage);
    ClickAt(PlaceOf(DatePage, RADIO_BETWEEN));
    for (const int picker : {PICKER_FROM, PICKER_TO}) {
        Program().SetDate(DatePage, picker, 20020115);
        const RECT box = Rectangle(DatePage, picker);
        ClickAt({box.left + 8, (box.top + box.bottom) / 2});
        EXPECT_TRUE(HasFocus(DatePage, picker));
        TypeText(L"1998");
        PressKey(VK_RIGHT);
        TypeText(L"11");
        PressKey(VK_RIGHT);
        TypeText(L"23");
        // The last field is taken over when it is left.
        PressKey(VK_TAB);
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return PickedDate(picker) == 19981123; }))
            << "picker " << picker << " has " << PickedDate(picker);
    }
}

TEST_F(PagesInHands, a_type_is_chosen_by_pointer_and_by_keys) {
    TurnTo(SizePage);
    const std::vector<std::wstring> kinds = Program().Combo(SizePage, COMBO_FILE_TYPE).entries;
    ASSERT_GE(kinds.size(), 3u);
    ClickAt(PlaceOf(SizePage, COMBO_FILE_TYPE));
    ClickEntry(2);
    EXPECT_EQ(Program().Combo(SizePage, COMBO_FILE_TYPE).selected, 2);
    PressKey(VK_UP);
    EXPECT_TRUE(
        HoldsWithin(StepDeadline, [&] { return Program().Combo(SizePage, COMBO_FILE_TYPE).selected == 1; }));
}

TEST_F(PagesInHands, a_size_is_chosen_typed_and_spun) {
    TurnTo(SizePage);
    ClickAt(ArrowOf(SizePage, COMBO_FILE_SIZE));
    ClickEntry(1);
    EXPECT_TRUE(TextIs(SizePage, COMBO_FILE_SIZE, Shown(L"Min", L"最低")));
    PressKey(VK_DOWN);
    EXPECT_TRUE(TextIs(SizePage, COMBO_FILE_SIZE, Shown(L"Max", L"最高")));
    ClickAt(PlaceOf(SizePage, EDIT_KILOBYTES));
    TypeText(L"7");
    EXPECT_TRUE(TextIs(SizePage, EDIT_KILOBYTES, L"7"));
    ClickAt(HalfOf(SizePage, SPIN_KILOBYTES, Half::Up));
    EXPECT_TRUE(TextIs(SizePage, EDIT_KILOBYTES, L"8"));
    PressKey(VK_DOWN);
    EXPECT_TRUE(TextIs(SizePage, EDIT_KILOBYTES, L"7"));
}

TEST_F(PagesInHands, a_pointer_that_rests_on_the_controls_changes_nothing) {
    Program().FocusTab();
    for (const int id : {COMBO_NAME, EDIT_CONTENT, COMBO_LOCATION, BUTTON_BROWSE, CHECK_SUBFOLDERS})
        RestPointerAt(PlaceOf(NamePage, id), 700);
    for (const TabState& tab : Program().Tabs())
        RestPointerAt(CentreOf(tab.rectangle), 700);
    EXPECT_TRUE(NoDialogOpen());
    EXPECT_TRUE(Program().TabHasFocus());
    EXPECT_EQ(Program().CurrentPage(), NamePage);
    EXPECT_FALSE(IsChecked(NamePage, CHECK_SUBFOLDERS));
}
