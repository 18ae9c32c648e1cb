// What the main window makes of double clicks, keys, menu commands and edits in the list, and of the
// Uninstall button.

#include "app/product.h"
#include "tests/app/main_window_test.h"
#include "tests/support/answered_boxes.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/temp_tree.h"

namespace {

Texts startedFiles;

BOOL NoteStart(SHELLEXECUTEINFOW* info) {
    startedFiles.emplace_back(info->lpFile);
    return TRUE;
}

bool Exists(const wchar_t* path) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
}

void CreateKey(const std::wstring& path) {
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                              nullptr),
              ERROR_SUCCESS);
    RegCloseKey(key);
}

}  // namespace

class MainWindowResults : public MainWindowTest {
  protected:
    void SetUp() override {
        startedFiles.clear();
        tree_.AddFile(L"a.txt", "text");
        Open();
        SetText(NamePageIndex, COMBO_LOCATION, tree_.Root());
        SetText(NamePageIndex, COMBO_NAME, L"*.txt");
        PostCommand(COMMAND_FIND);
        PumpQueue();
        ASSERT_EQ(RowNames(), Texts{L"a.txt"});
    }
    void DoubleClick(std::initializer_list<int> modifiers) const {
        const HeldKeys held(modifiers);
        NMITEMACTIVATE notification = {};
        notification.hdr = {List(), static_cast<UINT_PTR>(GetDlgCtrlID(List())),
                            static_cast<UINT>(NM_DBLCLK)};
        SendMessageW(Handle(), WM_NOTIFY, notification.hdr.idFrom, reinterpret_cast<LPARAM>(&notification));
    }

    TempTree tree_;
    Replaced<decltype(ce::ShortcutCalls::execute)> starting_{ce::shortcutCalls.execute, &NoteStart};
};

TEST_F(MainWindowResults, a_double_click_and_enter_and_the_menu_open_the_file) {
    DoubleClick({});
    EXPECT_EQ(startedFiles, (Texts{tree_.Path(L"a.txt")}));
    Key(List(), VK_RETURN);
    EXPECT_EQ(startedFiles.size(), 2u);
    Command(COMMAND_OPEN);
    EXPECT_EQ(startedFiles.size(), 3u);
}

TEST_F(MainWindowResults, other_keys_open_nothing) {
    Key(List(), VK_SPACE);
    Key(List(), VK_F2);
    EXPECT_TRUE(startedFiles.empty());
}

TEST_F(MainWindowResults, a_double_click_with_alt_shows_the_properties_instead) {
    const AnsweredBoxes boxes{IDCANCEL};
    DoubleClick({VK_MENU});
    EXPECT_TRUE(startedFiles.empty());
    EXPECT_EQ(boxes.Seen().size(), 1u);
}

TEST_F(MainWindowResults, deleting_the_last_row_grays_the_commands) {
    ASSERT_FALSE(IsGray(COMMAND_DELETE));
    const AnsweredBoxes boxes{IDYES};
    Command(COMMAND_DELETE);
    EXPECT_EQ(boxes.Seen().size(), 1u);
    EXPECT_EQ(RowCount(), 0);
    EXPECT_TRUE(IsGray(COMMAND_OPEN) && IsGray(COMMAND_DELETE) && IsGray(COMMAND_RENAME) &&
                IsGray(COMMAND_PROPERTIES));
}

TEST_F(MainWindowResults, a_name_edited_in_place_renames_the_file_and_enter_opens_nothing) {
    SetFocus(List());
    Command(COMMAND_RENAME);
    const auto edit = reinterpret_cast<HWND>(SendMessageW(List(), LVM_GETEDITCONTROL, 0, 0));
    ASSERT_NE(edit, nullptr);
    SetWindowTextW(edit, L"b.txt");
    Key(edit, VK_RETURN);
    EXPECT_EQ(RowNames(), Texts{L"b.txt"});
    EXPECT_NE(GetFileAttributesW(tree_.Path(L"b.txt").c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(GetFileAttributesW(tree_.Path(L"a.txt").c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_TRUE(startedFiles.empty());
}

TEST_F(MainWindowResults, a_name_whose_editing_is_given_up_stays) {
    SetFocus(List());
    Command(COMMAND_RENAME);
    const auto edit = reinterpret_cast<HWND>(SendMessageW(List(), LVM_GETEDITCONTROL, 0, 0));
    ASSERT_NE(edit, nullptr);
    SetWindowTextW(edit, L"b.txt");
    Key(edit, VK_ESCAPE);
    EXPECT_EQ(RowNames(), Texts{L"a.txt"});
    EXPECT_NE(GetFileAttributesW(tree_.Path(L"a.txt").c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_TRUE(startedFiles.empty());
}

class Uninstalling : public MainWindowTest {
  protected:
    ~Uninstalling() override { RegDeleteTreeW(HKEY_CURRENT_USER, Another); }

    static constexpr const wchar_t* Another = L"Software\\QuorinSoft\\Another";
};

TEST_F(Uninstalling, removes_the_keys_ends_the_program_and_saves_nothing) {
    CreateKey(ProductRegistryKey + std::wstring(L"\\Name"));
    Open();
    const AnsweredBoxes boxes{BUTTON_UNINSTALL, IDOK};
    EXPECT_EQ(RunToTheEnd(COMMAND_ABOUT), 0);
    EXPECT_EQ(boxes.Seen().size(), 1u) << "nothing is asked";
    EXPECT_FALSE(Exists(ProductRegistryKey));
    EXPECT_FALSE(Exists(MakerRegistryKey));
}

TEST_F(Uninstalling, leaves_the_makers_key_to_another_product) {
    CreateKey(ProductRegistryKey);
    CreateKey(Another);
    Open();
    const AnsweredBoxes boxes{BUTTON_UNINSTALL, IDOK};
    EXPECT_EQ(RunToTheEnd(COMMAND_ABOUT), 0);
    EXPECT_FALSE(Exists(ProductRegistryKey));
    EXPECT_TRUE(Exists(Another));
}

TEST_F(Uninstalling, that_fails_says_so_once_and_changes_nothing) {
    CreateKey(Another);
    Open();
    const AnsweredBoxes boxes{BUTTON_UNINSTALL, IDOK};
    Command(COMMAND_ABOUT);
    PumpQueue();
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(boxes.Seen()[1].caption, L"Error");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"Uninstall fail!"));
    EXPECT_EQ(boxes.Seen()[1].owner, Handle());
    EXPECT_TRUE(IsWindow(Handle()));
    EXPECT_TRUE(Exists(Another));
    // The settings are saved as ever.
    EXPECT_EQ(RunToTheEnd(COMMAND_EXIT), 0);
    EXPECT_TRUE(Exists(ProductRegistryKey));
}

TEST_F(Uninstalling, that_fails_says_so_in_japanese_on_a_japanese_surface) {
    Open(UiLanguage::Japanese);
    const AnsweredBoxes boxes{BUTTON_UNINSTALL, IDOK};
    Command(COMMAND_ABOUT);
    PumpQueue();
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(boxes.Seen()[1].caption, L"ｴﾗｰ");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"ｱﾝｲﾝｽﾄｰﾙに失敗しました!"));
}
