// What the name page remembers between runs.

#include "base/registry_key.h"
#include "conditions/name_page.h"
#include "tests/conditions/page_test.h"

using Texts = std::vector<std::wstring>;

namespace {
constexpr const wchar_t* TestsPath = L"Software\\QuorinSoftTests";
constexpr const wchar_t* Path = L"Software\\QuorinSoftTests\\Settings";
}  // namespace

class NamePageSettings : public PageTest {
  protected:
    void SetUp() override {
        ce::RegDeleteKeyW(HKEY_CURRENT_USER, TestsPath);
        Restart();
    }
    void TearDown() override {
        page_.reset();
        ce::RegDeleteKeyW(HKEY_CURRENT_USER, TestsPath);
    }

    // The page as it is at the start of another run, before it has loaded anything.
    void Restart() {
        page_.reset();
        page_ = std::make_unique<NamePage>(Host(), HostHandle());
        Open(*page_);
    }

    void Enter(int comboId, const std::wstring& text) {
        SetText(comboId, text);
        PressKeyOn(EditOf(comboId), VK_RETURN);
    }
    static std::wstring Stored(const wchar_t* key, const wchar_t* name) {
        wchar_t text[MAX_PATH] = L"";
        DWORD size = sizeof text;
        const LONG error = RegGetValueW(HKEY_CURRENT_USER, (std::wstring(Path) + L"\\" + key).c_str(), name,
                                        RRF_RT_REG_SZ, nullptr, text, &size);
        return error == ERROR_SUCCESS ? text : L"(none)";
    }
    static void StoreSubFolders(DWORD type, const void* data, DWORD size) {
        RegistryKey key(HKEY_CURRENT_USER);
        ASSERT_TRUE(key.Create(Path));
        RegSetValueExW(key.Handle(), L"Sub Folder", 0, type, static_cast<const BYTE*>(data), size);
    }
    static DWORD StoredSubFolders() {
        DWORD value = 77;
        EXPECT_EQ(ReadRegistryDword(HKEY_CURRENT_USER, Path, L"Sub Folder", value), ERROR_SUCCESS);
        return value;
    }

    std::unique_ptr<NamePage> page_;
};

TEST_F(NamePageSettings, at_the_first_start_there_is_nothing_to_load_and_the_page_keeps_its_entries) {
    page_->LoadSettings(Path);
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"*.log", L"*.txt"}));
    EXPECT_EQ(TextOf(COMBO_NAME), L"*.log");
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), Texts());
    EXPECT_FALSE(QueryOf(*page_).subFolders);
}

TEST_F(NamePageSettings, after_the_first_run_txt_is_stored_as_0_and_log_as_1) {
    page_->LoadSettings(Path);
    page_->SaveSettings(Path);
    EXPECT_EQ(Stored(L"Name", L"0"), L"*.txt");
    EXPECT_EQ(Stored(L"Name", L"1"), L"*.log");
    EXPECT_EQ(Stored(L"Name", L"2"), L"(none)");
    EXPECT_EQ(Stored(L"Location", L"0"), L"(none)");
    EXPECT_EQ(StoredSubFolders(), 0U);
}

TEST_F(NamePageSettings, a_location_history_without_entries_is_an_empty_key) {
    page_->SaveSettings(Path);
    RegistryKey key(HKEY_CURRENT_USER);
    EXPECT_TRUE(key.Open((std::wstring(Path) + L"\\Location").c_str()));
}

TEST_F(NamePageSettings, both_histories_come_back_each_in_its_field) {
    Enter(COMBO_NAME, L"notes");
    Enter(COMBO_LOCATION, L"\\My Documents");
    Enter(COMBO_LOCATION, L"\\Windows");
    page_->SaveSettings(Path);
    Restart();
    page_->LoadSettings(Path);
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"notes", L"*.log", L"*.txt"}));
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), (Texts{L"\\Windows", L"\\My Documents"}));
    EXPECT_EQ(TextOf(COMBO_NAME), L"notes");
    EXPECT_EQ(TextOf(COMBO_LOCATION), L"\\Windows");
}

TEST_F(NamePageSettings, after_eleven_searches_and_a_restart_the_nine_oldest_of_ten_are_left) {
    for (int i = 10; i <= 20; ++i)
        Enter(COMBO_NAME, std::to_wstring(i));
    ASSERT_EQ(EntriesOf(COMBO_NAME).size(), 10U);
    page_->SaveSettings(Path);
    Restart();
    page_->LoadSettings(Path);
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"19", L"18", L"17", L"16", L"15", L"14", L"13", L"12", L"11"}));
}

TEST_F(NamePageSettings, the_saved_names_replace_those_that_the_page_starts_with) {
    SendMessageW(Item(COMBO_NAME), CB_RESETCONTENT, 0, 0);
    Enter(COMBO_NAME, L"only");
    page_->SaveSettings(Path);
    Restart();
    page_->LoadSettings(Path);
    EXPECT_EQ(EntriesOf(COMBO_NAME), Texts{L"only"});
}

TEST_F(NamePageSettings, any_number_but_0_checks_the_sub_folders) {
    for (const DWORD value : {DWORD{1}, DWORD{5}, DWORD{0xFFFFFFFF}}) {
        StoreSubFolders(REG_DWORD, &value, sizeof value);
        Restart();
        page_->LoadSettings(Path);
        EXPECT_TRUE(QueryOf(*page_).subFolders) << value;
        EXPECT_EQ(Send(CHECK_SUBFOLDERS, BM_GETCHECK), BST_CHECKED);
    }
}

TEST_F(NamePageSettings, a_5_becomes_a_0_when_the_box_is_cleared_and_saved) {
    const DWORD five = 5;
    StoreSubFolders(REG_DWORD, &five, sizeof five);
    page_->LoadSettings(Path);
    Click(CHECK_SUBFOLDERS);
    page_->SaveSettings(Path);
    EXPECT_EQ(StoredSubFolders(), 0U);
}

TEST_F(NamePageSettings, a_checked_box_is_saved_as_1) {
    Click(CHECK_SUBFOLDERS);
    page_->SaveSettings(Path);
    EXPECT_EQ(StoredSubFolders(), 1U);
}

TEST_F(NamePageSettings, a_0_and_a_missing_value_clear_the_box) {
    Click(CHECK_SUBFOLDERS);
    page_->LoadSettings(Path);
    EXPECT_FALSE(QueryOf(*page_).subFolders);
    const DWORD zero = 0;
    StoreSubFolders(REG_DWORD, &zero, sizeof zero);
    Click(CHECK_SUBFOLDERS);
    page_->LoadSettings(Path);
    EXPECT_FALSE(QueryOf(*page_).subFolders);
}

TEST_F(NamePageSettings, a_sub_folder_value_that_does_not_fit_clears_the_box) {
    StoreSubFolders(REG_SZ, L"yes", 8);
    Click(CHECK_SUBFOLDERS);
    page_->LoadSettings(Path);
    EXPECT_FALSE(QueryOf(*page_).subFolders);
}

TEST_F(NamePageSettings, a_shorter_sub_folder_value_is_taken_as_far_as_it_goes) {
    const BYTE one = 1;
    StoreSubFolders(REG_BINARY, &one, sizeof one);
    page_->LoadSettings(Path);
    EXPECT_TRUE(QueryOf(*page_).subFolders);
}

TEST_F(NamePageSettings, each_part_that_can_be_read_is_read) {
    page_->SaveSettings(Path);
    ASSERT_EQ(ce::RegDeleteKeyW(HKEY_CURRENT_USER, (std::wstring(Path) + L"\\Location").c_str()),
              ERROR_SUCCESS);
    Enter(COMBO_LOCATION, L"\\kept");
    SetText(COMBO_NAME, L"");
    const DWORD one = 1;
    StoreSubFolders(REG_DWORD, &one, sizeof one);
    page_->LoadSettings(Path);
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"*.log", L"*.txt"}));
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), Texts{L"\\kept"});
    EXPECT_TRUE(QueryOf(*page_).subFolders);
}

TEST_F(NamePageSettings, a_registry_that_takes_nothing_is_silent) {
    HKEY passing = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, TestsPath, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS,
                              nullptr, &passing, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(passing);
    page_->SaveSettings(Path);
    page_->LoadSettings(Path);
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"*.log", L"*.txt"}));
    EXPECT_FALSE(QueryOf(*page_).subFolders);
}

TEST_F(NamePageSettings, a_page_without_a_window_loads_and_saves_nothing) {
    NamePage unopened(Host(), HostHandle());
    unopened.LoadSettings(Path);
    unopened.SaveSettings(Path);
    RegistryKey key(HKEY_CURRENT_USER);
    EXPECT_FALSE(key.Open(Path));
}
