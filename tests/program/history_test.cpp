// What the program remembers, read back from the registry after it has ended, and at its next start.

#include "resources/resource_ids.h"
#include "tests/program/program_test.h"
#include "tests/program/registry_reading.h"
#include "tests/support/user_input.h"

using Values = std::map<std::wstring, StoredValue>;

class History : public ProgramTest {
  protected:
    // As on the first day, with the fields as the program sets them.
    void SetUp() override { StartFresh(); }

    // Searches by Enter in a combo of the name page, in a folder without entries.
    void Enter(int comboId, const std::wstring& text) {
        if (comboId == COMBO_NAME) Program().SetText(NamePage, COMBO_LOCATION, L"\\empty");
        Program().SetText(NamePage, comboId, text);
        Program().FocusControl(NamePage, comboId);
        const int before = Program().SearchesBegun();
        PressKey(VK_RETURN);
        ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().SearchesBegun() > before; }));
        Program().WaitForEndOfSearch();
    }
    Names NameEntries() { return Program().Combo(NamePage, COMBO_NAME).entries; }
    Names LocationEntries() { return Program().Combo(NamePage, COMBO_LOCATION).entries; }
    bool SubFoldersChecked() { return Program().Control(NamePage, CHECK_SUBFOLDERS).checked == BST_CHECKED; }
};

TEST_F(History, of_the_first_run_is_txt_as_0_and_log_as_1_and_nothing_else) {
    EXPECT_FALSE(KeyExists(ProductKey)) << "something was written before the end";
    CloseProgram();
    EXPECT_EQ(ValuesOf(NameKey), (Values{{L"0", StoredText(L"*.txt")}, {L"1", StoredText(L"*.log")}}));
    EXPECT_TRUE(KeyExists(LocationKey));
    EXPECT_EQ(ValuesOf(LocationKey), Values());
    EXPECT_EQ(ValuesOf(ProductKey), (Values{{L"Sub Folder", StoredDword(0)}}));
    EXPECT_EQ(SubKeysOf(ProductKey), (Names{L"Location", L"Name"}));
    EXPECT_EQ(SubKeysOf(MakerKey), Names{L"QuorinSearch"});
}

TEST_F(History, comes_back_at_the_next_start_with_the_newest_entries_in_the_fields) {
    Enter(COMBO_NAME, L"日報");
    Enter(COMBO_LOCATION, L"\\names");
    Enter(COMBO_LOCATION, L"\\walk");
    Program().SetCheck(NamePage, CHECK_SUBFOLDERS, true);
    CloseProgram();
    EXPECT_EQ(
        ValuesOf(NameKey),
        (Values{{L"0", StoredText(L"*.txt")}, {L"1", StoredText(L"*.log")}, {L"2", StoredText(L"日報")}}));
    EXPECT_EQ(ValuesOf(LocationKey), (Values{{L"0", StoredText(L"\\names")}, {L"1", StoredText(L"\\walk")}}));
    EXPECT_EQ(ValuesOf(ProductKey), (Values{{L"Sub Folder", StoredDword(1)}}));

    StartAgain();
    EXPECT_EQ(NameEntries(), (Names{L"日報", L"*.log", L"*.txt"}));
    EXPECT_EQ(LocationEntries(), (Names{L"\\walk", L"\\names"}));
    EXPECT_EQ(Program().Control(NamePage, COMBO_NAME).text, L"日報");
    EXPECT_EQ(Program().Control(NamePage, COMBO_LOCATION).text, L"\\walk");
    EXPECT_TRUE(SubFoldersChecked());
}

TEST_F(History, keeps_ten_of_eleven_searches_and_gives_back_the_nine_oldest_of_these) {
    for (int i = 10; i <= 20; ++i)
        Enter(COMBO_NAME, std::to_wstring(i));
    EXPECT_EQ(NameEntries(), (Names{L"20", L"19", L"18", L"17", L"16", L"15", L"14", L"13", L"12", L"11"}));
    CloseProgram();
    Values expected;
    for (int n = 0; n <= 9; ++n)
        expected[std::to_wstring(n)] = StoredText(std::to_wstring(n + 11));
    EXPECT_EQ(ValuesOf(NameKey), expected);
    StartAgain();
    EXPECT_EQ(NameEntries(), (Names{L"19", L"18", L"17", L"16", L"15", L"14", L"13", L"12", L"11"}));
}

TEST_F(History, is_lost_with_a_program_that_is_killed) {
    Enter(COMBO_NAME, L"lost");
    Program().Kill();
    EXPECT_FALSE(KeyExists(ProductKey));
}

TEST_F(History, survives_a_registry_full_of_rubbish) {
    CloseProgram();
    RegDeleteTreeW(HKEY_CURRENT_USER, ProductKey);
    const DWORD number = 0x00420041;
    const std::wstring full(300, L'x');
    const std::wstring huge(3000, L'y');
    Store(NameKey, L"0", REG_DWORD, &number, sizeof number);
    Store(NameKey, L"1", REG_SZ, L"odd#", 7);
    Store(NameKey, L"2", REG_MULTI_SZ, L"one\0two\0", 18);
    Store(NameKey, L"3", REG_SZ, full.data(), 520);
    StoreText(NameKey, L"4", huge);
    StoreText(NameKey, L"5", L"behind");
    Store(LocationKey, L"0", REG_BINARY, huge.data(), 521);
    StoreText(ProductKey, L"Sub Folder", L"yes");
    StartAgain();
    // 520 bytes fill the buffer: the last unit makes room for the end. The huge text ends the loading.
    EXPECT_EQ(NameEntries(), (Names{std::wstring(259, L'x'), L"one", L"odd", L"AB"}));
    EXPECT_TRUE(LocationEntries().empty());
    EXPECT_FALSE(SubFoldersChecked());
    EXPECT_TRUE(Program().Dialogs().empty());
    EXPECT_EQ(NamesFoundBy(Named(L"abc", L"\\names")).size(), 2u);
    CloseProgram();
    EXPECT_EQ(ValuesOf(NameKey)[L"0"], StoredText(L"AB"));
    EXPECT_EQ(ValuesOf(ProductKey)[L"Sub Folder"], StoredDword(0));
}

// Below a key that lives only as long as the system runs, none can be made that is to be kept.
TEST_F(History, is_lost_in_silence_where_its_keys_cannot_be_made) {
    CloseProgram();
    RegDeleteTreeW(HKEY_CURRENT_USER, MakerKey);
    HKEY passing = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, MakerKey, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS,
                              nullptr, &passing, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(passing);
    StartAgain();
    EXPECT_EQ(NameEntries(), (Names{L"*.log", L"*.txt"}));
    EXPECT_EQ(Program().Close(), 0u);
    EXPECT_EQ(SubKeysOf(MakerKey), Names());
    RegDeleteTreeW(HKEY_CURRENT_USER, MakerKey);
}
