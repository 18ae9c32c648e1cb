// Every key and every click in the middle of every state that the program can be in: it does one expected
// thing or nothing, and afterwards the program is as it was.

#include <commctrl.h>

#include <functional>

#include "tests/hands/hands_test.h"

namespace {

struct Input {
    const char* name;
    std::function<void()> apply;
};

Input KeyInput(const char* name, WORD key, std::vector<WORD> modifiers = {}) {
    return {name, [key, modifiers] {
                switch (modifiers.size()) {
                    case 0:
                        PressKey(key);
                        break;
                    default:
                        PressKey(key, {modifiers[0]});
                        break;
                }
            }};
}

// Keys that mean nothing but to move about, to open a menu or to give up.
std::vector<Input> HarmlessKeys() {
    return {KeyInput("Escape", VK_ESCAPE),
            KeyInput("F10", VK_F10),
            KeyInput("Alt", VK_MENU),
            KeyInput("Alt+Enter", VK_RETURN, {VK_MENU}),
            KeyInput("Alt+Down", VK_DOWN, {VK_MENU}),
            KeyInput("Ctrl+Break", VK_CANCEL, {VK_CONTROL}),
            KeyInput("Left", VK_LEFT),
            KeyInput("Right", VK_RIGHT),
            KeyInput("Up", VK_UP),
            KeyInput("Down", VK_DOWN),
            KeyInput("Tab", VK_TAB),
            KeyInput("Shift+Tab", VK_TAB, {VK_SHIFT}),
            KeyInput("Ctrl+1", '1', {VK_CONTROL})};
}

}  // namespace

class States : public HandsTest {
  protected:
    void SetUp() override {
        HandsTest::SetUp();
        AddFile(L"a.qsa", "of a");
        AddFile(L"b.qsb", "of b");
        Find();
        WaitUntil("the focus on the list", [&] { return Program().ListHasFocus(); });
        Program().SelectRow(0);
    }

    [[nodiscard]] HWND List() { return FindWindowExW(Program().Window(), nullptr, WC_LISTVIEWW, nullptr); }
    [[nodiscard]] bool IsEditOpen() { return FindWindowExW(List(), nullptr, WC_EDITW, nullptr) != nullptr; }
    [[nodiscard]] static bool IsComboOpen() {
        for (HWND list = FindWindowExW(nullptr, nullptr, L"ComboLBox", nullptr); list != nullptr;
             list = FindWindowExW(nullptr, list, L"ComboLBox", nullptr)) {
            if (IsWindowVisible(list)) return true;
        }
        return false;
    }
    [[nodiscard]] bool IsDialogOpen() { return !NoDialogOpen(); }

    struct Place {
        const char* name;
        POINT point;
    };
    // Places of the main window of which a click on each does something else.
    std::vector<Place> PlacesOfTheMainWindow() {
        RECT caption = {};
        GetWindowRect(Program().Window(), &caption);
        return {{"a tab", CentreOf(Program().Tabs().at(2).rectangle)},
                {"the find button", PlaceOfBarButton(COMMAND_FIND)},
                {"the properties button", PlaceOfBarButton(COMMAND_PROPERTIES)},
                {"a menu's button", PlaceOfBarButton(ViewButton)},
                {"a heading", CentreOf(Program().Columns().at(0).rectangle)},
                {"a row", CentreOf(Program().Rows().at(1).label)},
                {"the caption", {caption.left + 60, caption.top + 8}}};
    }
    std::vector<Input> ClicksOnTheMainWindow() {
        std::vector<Input> clicks;
        for (const Place& place : PlacesOfTheMainWindow())
            clicks.push_back({place.name, [point = place.point] { ClickAt(point); }});
        return clicks;
    }

    // Gives up whatever is open, as a person does.
    void Leave() {
        WaitUntil("everything to be given up", [&] {
            // One that a click has started ends by itself; Esc would abort it.
            if (Program().Searching()) return false;
            if (!IsMenuOpen() && !IsDialogOpen() && !IsEditOpen() && !IsComboOpen()) return true;
            PressKey(VK_ESCAPE);
            Program().WaitForInput();
            return false;
        });
        WaitUntil("both rows", [] { return Program().List().count == 2; });
    }

    void ExpectAtRest(const std::string& what) {
        EXPECT_TRUE(IsWindowEnabled(Program().Window())) << what;
        EXPECT_TRUE(HoldsWithin(StepDeadline,
                                [&] {
                                    const HWND focus = FocusWindow();
                                    return focus == Program().Window() || IsChild(Program().Window(), focus);
                                }))
            << what << ": no focus in the main window";
        EXPECT_EQ(ContentOf(L"a.qsa"), "of a") << what;
        EXPECT_EQ(ContentOf(L"b.qsb"), "of b") << what;
    }

    // Each input once in the state, which is entered anew each time.
    void Cross(const std::string& state, const std::function<void()>& enter,
               const std::vector<Input>& inputs) {
        for (const Input& input : inputs) {
            enter();
            input.apply();
            Program().WaitForInput();
            const std::string what = state + ", " + input.name;
            EXPECT_TRUE(Program().IsRunning()) << what;
            Leave();
            ExpectAtRest(what);
            EXPECT_EQ(Started(0), Names()) << what;
            if (HasFailure()) return;
            if (Program().CurrentPage() != NamePage) Program().ShowPage(NamePage);
            Program().SelectRow(0);
        }
        EXPECT_TRUE(NothingStarted()) << state;
        EXPECT_EQ(Sorted(Program().RowNames()), (Names{L"a.qsa", L"b.qsb"}));
    }

    // A dialog keeps the keyboard, and the main window takes no click where the dialog leaves it free.
    void ExpectDialogTakesAll(const std::string& state, const std::function<void()>& enter) {
        const int searches = Program().SearchesBegun();
        const std::vector<Place> places = PlacesOfTheMainWindow();
        enter();
        const HWND dialog = Dialog().Window();
        for (const Place& place : places) {
            if (GetAncestor(WindowFromPoint(place.point), GA_ROOT) == dialog) continue;
            ClickAt(place.point);
            Program().WaitForInput();
            const std::string what = state + ", " + place.name;
            EXPECT_FALSE(IsWindowEnabled(Program().Window())) << what;
            EXPECT_EQ(GetForegroundWindow(), dialog) << what;
            EXPECT_TRUE(IsChild(dialog, FocusWindow()) || FocusWindow() == dialog) << what;
            EXPECT_FALSE(IsMenuOpen()) << what;
        }
        Leave();
        ExpectAtRest(state);
        EXPECT_EQ(Program().SearchesBegun(), searches) << state;
        EXPECT_EQ(Program().CurrentPage(), NamePage) << state;
    }

    void OpenQuestion() {
        OpenMenuByKeys(FileMenu);
        TakeMenuItemByKeys(COMMAND_DELETE);
        EXPECT_EQ(Dialog().Caption(), Shown(L"Confirm File Delete", L"ﾌｧｲﾙの削除の確認"));
    }
    void OpenSheet() {
        ClickBarButton(COMMAND_PROPERTIES);
        EXPECT_TRUE(Dialog().IsSheet());
    }
    void OpenAbout() {
        PressKey(VK_F1);
        EXPECT_EQ(Dialog().Caption(), Shown(L"About", L"ﾊﾞｰｼﾞｮﾝ情報"));
    }
    void OpenBrowser() {
        ClickAt(PlaceOf(NamePage, BUTTON_BROWSE));
        EXPECT_EQ(Dialog().Caption(), Shown(L"Select Folder", L"ﾌｫﾙﾀﾞ選択"));
    }
    void OpenEdit() {
        ClickAt(CentreOf(Program().Rows().at(0).label));
        OpenMenuByKeys(FileMenu);
        TakeMenuItemByKeys(COMMAND_RENAME);
        WaitUntil("the name's edit", [&] { return IsEditOpen(); });
    }
    void OpenCombo() {
        Program().FocusControl(NamePage, COMBO_NAME);
        PressKey(VK_F4);
        WaitUntil("the list of names", [] { return IsComboOpen(); });
    }
};

TEST_F(States, an_open_edit_survives_or_ends_with_every_key_and_click) {
    Cross(
        "edit open", [&] { OpenEdit(); }, HarmlessKeys());
    Cross(
        "edit open", [&] { OpenEdit(); }, ClicksOnTheMainWindow());
}

TEST_F(States, an_open_list_of_names_survives_or_ends_with_every_key_and_click) {
    Cross(
        "combo open", [&] { OpenCombo(); }, HarmlessKeys());
    Cross(
        "combo open", [&] { OpenCombo(); }, ClicksOnTheMainWindow());
}

TEST_F(States, an_open_menu_survives_or_ends_with_every_key_and_click) {
    Cross(
        "menu open", [&] { OpenMenuByPointer(ViewMenu); }, HarmlessKeys());
    Cross(
        "menu open", [&] { OpenMenuByPointer(ViewMenu); }, ClicksOnTheMainWindow());
}

TEST_F(States, an_open_question_survives_or_ends_with_every_key) {
    Cross(
        "question open", [&] { OpenQuestion(); }, HarmlessKeys());
}

TEST_F(States, every_other_open_dialog_survives_or_ends_with_every_key) {
    Cross(
        "sheet open", [&] { OpenSheet(); }, HarmlessKeys());
    Cross(
        "about open", [&] { OpenAbout(); }, HarmlessKeys());
    Cross(
        "browser open", [&] { OpenBrowser(); }, HarmlessKeys());
}

TEST_F(States, the_windows_behind_a_dialog_take_no_click) {
    ExpectDialogTakesAll("question open", [&] { OpenQuestion(); });
    ExpectDialogTakesAll("sheet open", [&] { OpenSheet(); });
    ExpectDialogTakesAll("about open", [&] { OpenAbout(); });
    ExpectDialogTakesAll("browser open", [&] { OpenBrowser(); });
}
