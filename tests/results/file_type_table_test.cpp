#include "results/file_type_table.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/results/registered_types.h"
#include "tests/support/test_world.h"

class FileTypeTableTest : public testing::Test {
  protected:
    // Registers two types with all there is, in two letter cases.
    void SetUp() override {
        types_.Add(L".qsaa", L"qsnote");
        types_.Add(L".qsab", L"qssheet");
        types_.Add(L".QSAC", L"qsnote");
        types_.Add(L"qsnote", L"Quorin note");
        types_.Add(L"qsnote\\Shell\\Open\\Command", L"\\Windows\\note.exe \"%1\"");
        types_.Add(L"qsnote\\DefaultIcon", L"\\Windows\\note,s.dll,-12");
        types_.Add(L"qssheet", L"Quorin sheet");
    }

    static const FileTypeInfo* Find(const FileTypeTable& table, const std::wstring& typeKey) {
        for (int i = 0; i < table.Count(); ++i)
            if (table.At(i).typeKey == typeKey) return &table.At(i);
        return nullptr;
    }

    TestWorld world_;
    RegisteredTypes types_;
};

TEST_F(FileTypeTableTest, a_type_is_read_with_all_that_the_registry_tells_of_it) {
    const FileTypeTable table;
    const FileTypeInfo* note = Find(table, L"qsnote");
    ASSERT_NE(note, nullptr);
    EXPECT_EQ(note->description, L"Quorin note");
    EXPECT_EQ(note->openCommand, L"\\Windows\\note.exe \"%1\"");
    EXPECT_EQ(note->iconFile, L"\\Windows\\note,s.dll");
    EXPECT_EQ(note->iconNumber, -12);
}

TEST_F(FileTypeTableTest, two_extensions_of_one_type_share_a_record) {
    const FileTypeTable table;
    const FileTypeInfo* note = Find(table, L"qsnote");
    ASSERT_NE(note, nullptr);
    EXPECT_EQ(note->extensions, L".qsaa.qsac");
    int records = 0;
    for (int i = 0; i < table.Count(); ++i)
        records += table.At(i).typeKey == L"qsnote";
    EXPECT_EQ(records, 1);
    EXPECT_STREQ(table.TypeKeyOf(L"\\f\\a.qsaa"), L"qsnote");
    EXPECT_STREQ(table.TypeKeyOf(L"\\f\\a.qsac"), L"qsnote");
}

TEST_F(FileTypeTableTest, records_stand_in_the_order_in_which_their_first_extensions_were_found) {
    const FileTypeTable table;
    const FileTypeInfo* note = Find(table, L"qsnote");
    const FileTypeInfo* sheet = Find(table, L"qssheet");
    ASSERT_NE(note, nullptr);
    ASSERT_NE(sheet, nullptr);
    int notePlace = 0;
    int sheetPlace = 0;
    for (int i = 0; i < table.Count(); ++i) {
        if (&table.At(i) == note) notePlace = i;
        if (&table.At(i) == sheet) sheetPlace = i;
    }
    EXPECT_EQ(sheetPlace, notePlace + 1);
}

TEST_F(FileTypeTableTest, an_extension_is_looked_up_without_regard_to_case_from_the_last_dot) {
    const FileTypeTable table;
    EXPECT_STREQ(table.TypeKeyOf(L"\\f\\A.B.QsAb"), L"qssheet");
    EXPECT_STREQ(table.TypeKeyOf(L"\\f\\a.qsab.none"), L"");
    EXPECT_STREQ(table.TypeKeyOf(L"\\f\\README"), L"");
    EXPECT_STREQ(table.TypeKeyOf(L""), L"");
    EXPECT_STREQ(table.TypeKeyOf((L"." + std::wstring(400, L'x')).c_str()), L"");
}

TEST_F(FileTypeTableTest, the_extension_of_applications_is_left_out) {
    types_.Add(L".exe", L"exefile");
    const FileTypeTable table;
    EXPECT_STREQ(table.TypeKeyOf(L"\\f\\a.exe"), L"");
    for (int i = 0; i < table.Count(); ++i)
        EXPECT_EQ(table.At(i).extensions.find(L".exe"), std::wstring::npos);
}

TEST_F(FileTypeTableTest, a_type_without_an_icon_has_its_description_and_open_command) {
    types_.Add(L"qssheet\\Shell\\Open\\Command", L"sheet.exe");
    const FileTypeTable table;
    const FileTypeInfo* sheet = Find(table, L"qssheet");
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->description, L"Quorin sheet");
    EXPECT_EQ(sheet->openCommand, L"sheet.exe");
    EXPECT_EQ(sheet->iconFile, L"");
    EXPECT_EQ(sheet->iconNumber, 0);
}

TEST_F(FileTypeTableTest, a_missing_open_command_ends_the_reading) {
    types_.Add(L"qssheet\\DefaultIcon", L"sheet.dll,3");
    const FileTypeTable table;
    const FileTypeInfo* sheet = Find(table, L"qssheet");
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->description, L"Quorin sheet");
    EXPECT_EQ(sheet->iconFile, L"");
}

TEST_F(FileTypeTableTest, a_type_whose_key_is_missing_has_its_key_and_extension_alone) {
    types_.Add(L".qsad", L"qsnowhere");
    const FileTypeTable table;
    const FileTypeInfo* nowhere = Find(table, L"qsnowhere");
    ASSERT_NE(nowhere, nullptr);
    EXPECT_EQ(nowhere->extensions, L".qsad");
    EXPECT_EQ(nowhere->description, L"");
}

TEST_F(FileTypeTableTest, extensions_without_a_type_share_one_record_with_an_empty_key) {
    types_.Make(L".qsae");
    types_.Make(L".qsaf");
    const FileTypeTable table;
    const FileTypeInfo* none = Find(table, L"");
    ASSERT_NE(none, nullptr);
    EXPECT_NE(none->extensions.find(L".qsae"), std::wstring::npos);
    EXPECT_NE(none->extensions.find(L".qsaf"), std::wstring::npos);
    EXPECT_STREQ(table.TypeKeyOf(L"\\f\\a.qsae"), L"");
}

TEST_F(FileTypeTableTest, the_value_named_default_goes_before_the_unnamed_one) {
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CLASSES_ROOT, L"qssheet", 0, KEY_ALL_ACCESS, &key), ERROR_SUCCESS);
    RegSetValueExW(key, L"Default", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"Named"), 6 * sizeof(wchar_t));
    RegCloseKey(key);
    const FileTypeTable table;
    const FileTypeInfo* sheet = Find(table, L"qssheet");
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->description, L"Named");
}

TEST_F(FileTypeTableTest, the_arrow_stands_again_when_the_registry_has_been_read) {
    SetCursor(LoadCursorW(nullptr, IDC_IBEAM));
    const FileTypeTable first;
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
    // Nothing is read for another one.
    SetCursor(LoadCursorW(nullptr, IDC_IBEAM));
    const FileTypeTable second;
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_IBEAM));
}

TEST_F(FileTypeTableTest, the_registry_is_read_again_only_when_all_tables_are_gone) {
    std::optional<FileTypeTable> first;
    first.emplace();
    types_.Add(L".qsag", L"qslater");
    {
        const FileTypeTable second;
        EXPECT_EQ(Find(second, L"qslater"), nullptr);
        first.reset();
        EXPECT_EQ(Find(second, L"qslater"), nullptr);
        EXPECT_NE(Find(second, L"qsnote"), nullptr);
    }
    const FileTypeTable third;
    EXPECT_NE(Find(third, L"qslater"), nullptr);
}

TEST(SplitIconLocation, the_number_stands_behind_the_last_comma) {
    FileTypeInfo info;
    SplitIconLocation(L"a,1.dll,7", info);
    EXPECT_EQ(info.iconFile, L"a,1.dll");
    EXPECT_EQ(info.iconNumber, 7);
    SplitIconLocation(L"a.dll", info);
    EXPECT_EQ(info.iconFile, L"a.dll");
    EXPECT_EQ(info.iconNumber, 0);
    SplitIconLocation(L"a.dll,", info);
    EXPECT_EQ(info.iconFile, L"a.dll");
    EXPECT_EQ(info.iconNumber, 0);
    SplitIconLocation(L"", info);
    EXPECT_EQ(info.iconFile, L"");
}
