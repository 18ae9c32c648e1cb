// A window that cannot be created costs that window only: each creation of a start and of a search is refused
// once, and everything else works and is saved.

#include <commctrl.h>

#include "resources/resource_ids.h"
#include "tests/hands/refusing_program.h"
#include "tests/program/program_test.h"
#include "tests/support/user_input.h"

namespace {

constexpr wchar_t ProductKey[] = L"Software\\QuorinSoft\\QuorinSearch";
constexpr wchar_t MenuBarClass[] = L"QuorinMenuBar";
// More than the program makes from its start to the end of a first search.
constexpr LONG MostCreations = 400;

constexpr DWORD ExitWithoutWindow = 2;

constexpr UINT HarmlessCommands[] = {COMMAND_LARGE_ICON, COMMAND_DETAILS, COMMAND_CHECK_CASE,
                                     COMMAND_NEW_CONDITION};

constexpr int PageControls[] = {CHECK_SUBFOLDERS, RADIO_ALL_FILES, SPIN_KILOBYTES};

// Each of the four worlds tries every fourth number, each another one of the four.
constexpr LONG WorldCount = 4;

LONG FirstNumberOfWorld() {
    const LONG language = World().japaneseSystem ? 2 : 0;
    return 1 + language + (World().screenWidth > World().screenHeight ? 1 : 0);
}

bool IsSaved(const wchar_t* value, DWORD expected) {
    DWORD number = 0;
    DWORD size = sizeof number;
    return RegGetValueW(HKEY_CURRENT_USER, ProductKey, value, RRF_RT_REG_DWORD, nullptr, &number, &size) ==
               ERROR_SUCCESS &&
           number == expected;
}

// What the history of a first start holds at its bottom.
bool IsFirstNameSaved() {
    wchar_t text[16] = L"";
    DWORD size = sizeof text;
    const std::wstring key = std::wstring(ProductKey) + L"\\Name";
    return RegGetValueW(HKEY_CURRENT_USER, key.c_str(), L"0", RRF_RT_REG_SZ, nullptr, text, &size) ==
               ERROR_SUCCESS &&
           std::wstring(text) == L"*.txt";
}

}  // namespace

class Refusals : public testing::Test {
  protected:
    Refusals() : tree_(L"QuorinRefusals"), drive_(tree_.Root()) {
        tree_.AddFile(L"alpha.txt");
        tree_.AddFile(L"beta.log");
        tree_.AddFile(L"gamma\\alpha too.txt");
    }

    void StartRefusing(LONG number) {
        PrepareRegistry();
        program_.Refuse(number);
        program_.Start(drive_.Root());
    }

    // "alpha" in all folders, where there is a page to say so.
    void FillNamePage() const {
        if (program_.PageWith(CHECK_SUBFOLDERS) == nullptr) return;
        SetWindowTextOf(COMBO_NAME, L"alpha");
        SendMessageW(program_.Control(CHECK_SUBFOLDERS), BM_SETCHECK, BST_CHECKED, 0);
    }

    void SetWindowTextOf(int control, const wchar_t* text) const {
        const HWND page = program_.PageWith(CHECK_SUBFOLDERS);
        SendMessageW(GetDlgItem(page, control), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }

    // The main window and the two that it makes itself; their parts take them along. Everything else fails
    // silently.
    [[nodiscard]] static bool IsToldOf(const std::wstring& name) {
        for (const wchar_t* told : {L"QuorinSearch", WC_TABCONTROLW, WC_LISTVIEWW, WC_HEADERW}) {
            if (name == told) return true;
        }
        return name == L"class" && FindWindowW(L"QuorinSearch", nullptr) == nullptr;
    }

    [[nodiscard]] LRESULT RowCount() const {
        return SendMessageW(program_.Child(WC_LISTVIEWW), LVM_GETITEMCOUNT, 0, 0);
    }

    // With the page the two of that name; without it every name of the root.
    void ExpectSearchToWork() {
        const bool hasNamePage = program_.PageWith(CHECK_SUBFOLDERS) != nullptr;
        program_.Run(COMMAND_FIND);
        ASSERT_TRUE(program_.IsRunning());
        if (program_.Child(WC_LISTVIEWW) == nullptr) return;
        EXPECT_EQ(RowCount(), hasNamePage ? 2 : 3);
    }

    // A search leaves the focus in the list, and Tab leads on to the tab control, which keeps it where there
    // is no list. A page that does not exist is no stop on the way.
    void ExpectKeysToLeadOn() {
        if (program_.PageWith(CHECK_SUBFOLDERS) == nullptr) {
            PressKey(VK_TAB, {VK_SHIFT});
            PressKey('N', {VK_MENU});
        }
        if (program_.Child(WC_TABCONTROLW) == nullptr) return;
        if (program_.Child(WC_LISTVIEWW) != nullptr) PressKey(VK_TAB);
        for (const int page : {1, 2}) {
            PressKey(VK_RIGHT);
            EXPECT_TRUE(HoldsWithin(LongestStep, [&] { return IsShown(page); })) << "page " << page;
        }
    }

    [[nodiscard]] bool IsShown(int page) const {
        const LRESULT selected = SendMessageW(program_.Child(WC_TABCONTROLW), TCM_GETCURSEL, 0, 0);
        const HWND window = program_.PageWith(PageControls[page]);
        return selected == page && (window == nullptr || IsWindowVisible(window));
    }

    void ExpectMenusToOpen() {
        if (program_.Child(MenuBarClass) == nullptr || refused_ == L"menu") return;
        PressKey(VK_F10);
        EXPECT_TRUE(HoldsWithin(LongestStep, [] { return FindWindowW(L"#32768", nullptr) != nullptr; }));
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(HoldsWithin(LongestStep, [] { return FindWindowW(L"#32768", nullptr) == nullptr; }));
    }

    void ExpectCommandsToWork() {
        for (const UINT command : HarmlessCommands)
            program_.Run(command);
        ASSERT_TRUE(program_.IsRunning());
    }

    void ExpectOrderlyEnd(DWORD subFolders = 1) {
        const bool hasNamePage = program_.PageWith(CHECK_SUBFOLDERS) != nullptr;
        EXPECT_EQ(program_.Close(), 0u);
        EXPECT_EQ(IsSaved(L"Sub Folder", subFolders), hasNamePage);
        EXPECT_EQ(IsFirstNameSaved(), hasNamePage);
    }

    static constexpr DWORD LongestStep = 5000;

    DeviceTree tree_;
    DeviceDrive drive_;
    RefusingProgram program_;
    std::wstring refused_;  // at the start
};

// The commands of a program that has started well and shows a row.
class RefusedCommands : public Refusals {
  protected:
    void SetUp() override {
        StartRefusing(0);
        FillNamePage();
        SendMessageW(program_.Control(CHECK_SUBFOLDERS), BM_SETCHECK, BST_UNCHECKED, 0);
        program_.Run(COMMAND_FIND);
        ASSERT_EQ(RowCount(), 1);
    }

    // A last search and an end as usual.
    void TearDown() override {
        if (!HasFailure()) ExpectOrderlyEnd(0);
    }

    void Post(UINT command) { PostMessageW(program_.Window(), WM_COMMAND, command, 0); }

    [[nodiscard]] HWND NameEdit() const {
        return FindWindowExW(program_.Child(WC_LISTVIEWW), nullptr, WC_EDITW, nullptr);
    }

    [[nodiscard]] static bool IsMenuOpen() { return FindWindowW(L"#32768", nullptr) != nullptr; }

    [[nodiscard]] bool IsAnythingOpen() const {
        return program_.OpenDialog() != nullptr || NameEdit() != nullptr || IsMenuOpen();
    }

    // Esc until nothing is open.
    void Dismiss() {
        program_.WaitForQueue();
        WaitUntil("the program to wait for commands", [this] {
            if (!IsAnythingOpen()) return IsWindowEnabled(program_.Window()) != FALSE;
            const HWND dialog = program_.OpenDialog();
            PressKey(VK_ESCAPE);
            static_cast<void>(HoldsWithin(LongestClosing, [&] {
                return !IsAnythingOpen() || (dialog != nullptr && program_.OpenDialog() != dialog);
            }));
            return false;
        });
        program_.WaitForQueue();
    }

    // Each creation of what the action opens is refused once, and then the action works again.
    template <typename Action>
    void ExpectToSurvive(Action action) {
        for (LONG number = 1; number < MostCreations; ++number) {
            program_.Refuse(number);
            action();
            Dismiss();
            const std::wstring name = program_.Refused();
            SCOPED_TRACE(testing::Message() << "creation " << number << ": " << name.c_str());
            program_.Refuse(0);
            ASSERT_TRUE(program_.IsRunning());
            EXPECT_EQ(RowCount(), 1);
            EXPECT_TRUE(Stands(L"alpha.txt"));
            action();
            EXPECT_TRUE(HoldsWithin(LongestStep, [this] { return IsAnythingOpen(); }));
            Dismiss();
            if (name.empty()) return;
        }
        FAIL() << "the command never stops making things";
    }

    [[nodiscard]] bool Stands(const std::wstring& name) const {
        return GetFileAttributesW((drive_.Root() + name).c_str()) != INVALID_FILE_ATTRIBUTES;
    }

    static constexpr DWORD LongestClosing = 1000;
};

TEST_F(Refusals, whatever_cannot_be_made_at_the_start_costs_that_alone) {
    for (LONG number = FirstNumberOfWorld(); number < MostCreations; number += WorldCount) {
        StartRefusing(number);
        refused_ = program_.Refused();
        SCOPED_TRACE(testing::Message() << "creation " << number << ": " << refused_.c_str());
        EXPECT_EQ(IsToldOf(refused_), program_.HasComplained());
        if (!program_.IsRunning()) {
            EXPECT_EQ(program_.ExitCode(), ExitWithoutWindow);
            EXPECT_TRUE(refused_ == L"class" || refused_ == L"QuorinSearch");
            continue;
        }
        FillNamePage();
        program_.Run(COMMAND_FIND);
        const bool wasLast = program_.Refused().empty();
        program_.Refuse(0);
        ExpectKeysToLeadOn();
        ExpectMenusToOpen();
        ExpectSearchToWork();
        ExpectCommandsToWork();
        ExpectOrderlyEnd();
        if (wasLast) return;
    }
    FAIL() << "the program never stops making things";
}

TEST_F(RefusedCommands, deleting_without_its_question_deletes_nothing) {
    ExpectToSurvive([this] { Post(COMMAND_DELETE); });
}

TEST_F(RefusedCommands, a_name_is_edited_again_after_an_edit_that_could_not_be_made) {
    ExpectToSurvive([this] { Post(COMMAND_RENAME); });
}

TEST_F(RefusedCommands, a_rename_that_fails_without_its_messages_leaves_the_file) {
    ExpectToSurvive([this] {
        Post(COMMAND_RENAME);
        program_.WaitForQueue();
        if (NameEdit() == nullptr) return;
        TypeText(L"beta.log");
        PressKey(VK_RETURN);
        static_cast<void>(HoldsWithin(
            LongestStep, [this] { return NameEdit() == nullptr || program_.OpenDialog() != nullptr; }));
    });
    EXPECT_TRUE(Stands(L"beta.log"));
}

TEST_F(RefusedCommands, properties_are_shown_again_after_a_sheet_that_could_not_be_made) {
    ExpectToSurvive([this] { Post(COMMAND_PROPERTIES); });
}

TEST_F(RefusedCommands, the_folder_browser_opens_again_after_one_that_could_not_be_made) {
    ExpectToSurvive([this] { PostMessageW(program_.Control(BUTTON_BROWSE), BM_CLICK, 0, 0); });
}

TEST_F(RefusedCommands, the_about_box_opens_again_after_one_that_could_not_be_made) {
    ExpectToSurvive([this] { Post(COMMAND_ABOUT); });
}

TEST_F(RefusedCommands, a_menu_opens_again_after_one_that_could_not_be_made) {
    ExpectToSurvive([] {
        PressKey(VK_F10);
        static_cast<void>(HoldsWithin(LongestClosing, [] { return IsMenuOpen(); }));
    });
}
