// The General page: what it shows of a file and of a folder.

#include "resources/resource_ids.h"
#include "tests/results/properties_test.h"

class GeneralPageTest : public PropertiesTest {
  protected:
    std::wstring SizeOf(std::size_t bytes) {
        std::wstring shown;
        ShowSheet(tree_.AddFile(L"a.bin", std::string(bytes, 'x')), IDCANCEL,
                  [&](const OpenSheet& sheet) { shown = sheet.Text(11904); });
        return shown;
    }
};

TEST_F(GeneralPageTest, shows_name_type_place_size_and_time) {
    const std::wstring path = tree_.AddFile(L"docs\\a.txt", std::string(1000, 'x'));
    SetWritten(path);
    SHFILEINFOW info = {};
    SHGetFileInfoW(path.c_str(), 0, &info, sizeof info, SHGFI_DISPLAYNAME | SHGFI_TYPENAME);
    ASSERT_NE(info.szTypeName[0], L'\0');
    ShowSheet(path, IDCANCEL, [&](const OpenSheet& sheet) {
        EXPECT_EQ(sheet.Caption(), L"");
        EXPECT_EQ(sheet.Tabs(), (std::vector<std::wstring>{L"General"}));
        EXPECT_TRUE(sheet.HasIcon());
        EXPECT_EQ(sheet.Text(11901), info.szDisplayName);
        EXPECT_EQ(sheet.Text(11902), info.szTypeName);
        EXPECT_EQ(sheet.Text(11903), tree_.Path(L"docs"));
        EXPECT_EQ(sheet.Text(11904), L"0.9KB (1000 bytes)");
        EXPECT_EQ(sheet.Text(11905), ShortForms());
        EXPECT_EQ(sheet.Text(11701), L"Type:");
        EXPECT_EQ(sheet.Text(11702), L"Location:");
        EXPECT_EQ(sheet.Text(11703), L"Size:");
        EXPECT_EQ(sheet.Text(11705), L"Modified:");
        EXPECT_EQ(sheet.Text(11704), L"Attributes:");
        EXPECT_EQ(sheet.Text(10301), L"&Read-only");
        EXPECT_EQ(sheet.Text(10302), L"&Archive");
        EXPECT_EQ(sheet.Text(10303), L"H&idden");
        EXPECT_EQ(sheet.Text(10304), L"&System");
    });
}

TEST_F(GeneralPageTest, speaks_japanese_on_a_japanese_surface) {
    UseJapanese();
    ShowSheet(tree_.AddFile(L"a.txt"), IDCANCEL, [&](const OpenSheet& sheet) {
        EXPECT_EQ(sheet.Tabs(), (std::vector<std::wstring>{L"全般"}));
        EXPECT_EQ(sheet.Text(11701), L"種類:");
        EXPECT_EQ(sheet.Text(11702), L"場所:");
        EXPECT_EQ(sheet.Text(11703), L"ｻｲｽﾞ:");
        EXPECT_EQ(sheet.Text(11705), L"更新日時:");
        EXPECT_EQ(sheet.Text(11704), L"属性:");
        EXPECT_EQ(sheet.Text(10301), L"読みとり専用(&R)");
        EXPECT_EQ(sheet.Text(10302), L"ｱｰｶｲﾌﾞ(&A)");
        EXPECT_EQ(sheet.Text(10303), L"隠しﾌｧｲﾙ(&I)");
        EXPECT_EQ(sheet.Text(10304), L"ｼｽﾃﾑ(&S)");
    });
}

TEST_F(GeneralPageTest, has_no_form_of_plain_bytes) {
    EXPECT_EQ(SizeOf(0), L"0.0KB (0 bytes)");
    EXPECT_EQ(SizeOf(500), L"0.4KB (500 bytes)");
    EXPECT_EQ(SizeOf(1000), L"0.9KB (1000 bytes)");
    EXPECT_EQ(SizeOf(1023), L"0.9KB (1023 bytes)");
}

TEST_F(GeneralPageTest, shows_whole_kilobytes_from_100) {
    EXPECT_EQ(SizeOf(102399), L"99.9KB (102399 bytes)");
    EXPECT_EQ(SizeOf(102400), L"100KB (102400 bytes)");
}

TEST_F(GeneralPageTest, shows_the_roots_name_as_the_place_of_a_file_in_the_root) {
    struct Case {
        bool pocketPc;
        UiLanguage language;
        const wchar_t* name;
    };
    for (const Case& one : {Case{true, UiLanguage::English, L"My Pocket PC"},
                            Case{false, UiLanguage::English, L"My Handheld PC"},
                            Case{true, UiLanguage::Japanese, L"ﾏｲ ﾎﾟｹｯﾄ PC"},
                            Case{false, UiLanguage::Japanese, L"ﾏｲ ﾊﾝﾄﾞﾍﾙﾄﾞ PC"}}) {
        ContextForStartUp().pocketPc = one.pocketPc;
        ContextForStartUp().uiLanguage = one.language;
        ShowSheet(L"\\no such file.txt", IDCANCEL,
                  [&](const OpenSheet& sheet) { EXPECT_EQ(sheet.Text(11903), one.name); });
    }
}

TEST_F(GeneralPageTest, shows_the_drive_as_the_place_of_a_file_in_a_drives_root) {
    ShowSheet(L"C:\\no such file.txt", IDCANCEL,
              [&](const OpenSheet& sheet) { EXPECT_EQ(sheet.Text(11903), L"C:"); });
}

TEST_F(GeneralPageTest, of_a_folder_hides_what_only_files_have_and_changes_nothing) {
    const std::wstring path = tree_.AddFolder(L"folder");
    static int changes;
    changes = 0;
    const Replaced set(ce::fileCalls.setFileAttributes, [](const wchar_t*, DWORD) -> BOOL {
        ++changes;
        return TRUE;
    });
    EXPECT_FALSE(ShowSheet(path, IDOK, [&](const OpenSheet& sheet) {
        for (const int id : {11703, 11704, 11705, 10301, 10302, 10303, 10304})
            EXPECT_FALSE(sheet.IsShown(id)) << id;
        for (const int id : {11701, 11702, 11901, 11902, 11903, 10901})
            EXPECT_TRUE(sheet.IsShown(id)) << id;
        EXPECT_EQ(sheet.Text(11903), tree_.Root());
        EXPECT_EQ(sheet.Text(11904), L"");
        EXPECT_EQ(sheet.Text(11905), L"");
    }));
    EXPECT_EQ(changes, 0);
}

TEST_F(GeneralPageTest, of_a_missing_file_leaves_size_time_and_boxes_empty_and_changes_nothing) {
    EXPECT_FALSE(ShowSheet(tree_.Path(L"missing.txt"), IDOK, [&](const OpenSheet& sheet) {
        EXPECT_EQ(sheet.Text(11903), tree_.Root());
        EXPECT_EQ(sheet.Text(11904), L"");
        EXPECT_EQ(sheet.Text(11905), L"");
        for (const int box : {10301, 10302, 10303, 10304})
            EXPECT_FALSE(sheet.IsChecked(box)) << box;
    }));
    EXPECT_EQ(GetFileAttributesW(tree_.Path(L"missing.txt").c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(GeneralPageTest, changes_a_real_file) {
    const std::wstring path = tree_.AddFile(L"a.txt", "text");
    ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_ARCHIVE));
    EXPECT_TRUE(ShowSheet(path, IDOK, [](const OpenSheet& sheet) {
        EXPECT_FALSE(sheet.IsChecked(CHECK_READ_ONLY));
        sheet.Click(CHECK_READ_ONLY);
    }));
    EXPECT_NE(GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_READONLY, 0u);
    EXPECT_EQ(BytesOf(path), "text");
    EXPECT_TRUE(ShowSheet(path, IDOK, [](const OpenSheet& sheet) {
        EXPECT_TRUE(sheet.IsChecked(CHECK_READ_ONLY));
        sheet.Click(CHECK_READ_ONLY);
    }));
    EXPECT_EQ(GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_READONLY, 0u);
}
