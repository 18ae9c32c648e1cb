// The General page: what it shows of a file and of a folder, and what becomes of its boxes.

#include <optional>

#include "resources/resource_ids.h"
#include "tests/results/properties_test.h"
#include "tests/support/answered_boxes.h"

namespace {

constexpr DWORD Changeable =
    FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

struct Box {
    int id;
    DWORD attribute;
};
constexpr Box Boxes[] = {{10301, FILE_ATTRIBUTE_READONLY},
                         {10302, FILE_ATTRIBUTE_ARCHIVE},
                         {10303, FILE_ATTRIBUTE_HIDDEN},
                         {10304, FILE_ATTRIBUTE_SYSTEM}};

// What the file system keeps of one file, in the place of the real calls.
DWORD attributesNow = 0;
std::vector<DWORD> attributesSet;
DWORD failureCode = 0;

DWORD AttributesNow(const wchar_t*) {
    return attributesNow;
}
BOOL NoteAttributes(const wchar_t*, DWORD attributes) {
    attributesSet.push_back(attributes);
    SetLastError(failureCode);
    return failureCode == 0;
}
DWORD sizeNow = 0;
HANDLE FindWithAttributes(const wchar_t*, WIN32_FIND_DATAW* data) {
    *data = {};
    data->nFileSizeLow = sizeNow;
    data->dwFileAttributes = attributesNow;
    return data;
}
BOOL EndFinding(HANDLE) {
    return TRUE;
}

}  // namespace

class GeneralPageTest : public PropertiesTest {
  protected:
    std::wstring SizeOf(std::size_t bytes) {
        std::wstring shown;
        ShowSheet(tree.AddFile(L"a.bin", std::string(bytes, 'x')), IDCANCEL,
                  [&](const OpenSheet& sheet) { shown = sheet.Text(11904); });
        return shown;
    }
};

// A file whose attributes stand in attributesNow, so that every one of them can be tried.
class GeneralPageAttributes : public GeneralPageTest {
  protected:
    GeneralPageAttributes() {
        attributesNow = FILE_ATTRIBUTE_NORMAL;
        sizeNow = 0;
        attributesSet.clear();
        failureCode = 0;
    }

    std::wstring path = tree.AddFile(L"a.txt");
    Replaced<decltype(ce::fileCalls.getFileAttributes)> get{ce::fileCalls.getFileAttributes, &AttributesNow};
    Replaced<decltype(ce::fileCalls.setFileAttributes)> set{ce::fileCalls.setFileAttributes, &NoteAttributes};
    Replaced<decltype(ce::fileCalls.findFirstFile)> find{ce::fileCalls.findFirstFile, &FindWithAttributes};
    Replaced<decltype(ce::fileCalls.findClose)> close{ce::fileCalls.findClose, &EndFinding};
};

TEST_F(GeneralPageTest, shows_name_type_place_size_and_time) {
    const std::wstring path = tree.AddFile(L"docs\\a.txt", std::string(1000, 'x'));
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
        EXPECT_EQ(sheet.Text(11903), tree.Path(L"docs"));
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
    ShowSheet(tree.AddFile(L"a.txt"), IDCANCEL, [&](const OpenSheet& sheet) {
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
        GlobalsForStartUp().pocketPc = one.pocketPc;
        GlobalsForStartUp().uiLanguage = one.language;
        ShowSheet(L"\\no such file.txt", IDCANCEL,
                  [&](const OpenSheet& sheet) { EXPECT_EQ(sheet.Text(11903), one.name); });
    }
}

TEST_F(GeneralPageTest, shows_the_drive_as_the_place_of_a_file_in_a_drives_root) {
    ShowSheet(L"C:\\no such file.txt", IDCANCEL,
              [&](const OpenSheet& sheet) { EXPECT_EQ(sheet.Text(11903), L"C:"); });
}

TEST_F(GeneralPageTest, of_a_folder_hides_what_only_files_have_and_changes_nothing) {
    const std::wstring path = tree.AddFolder(L"folder");
    attributesSet.clear();
    const Replaced set(ce::fileCalls.setFileAttributes, &NoteAttributes);
    EXPECT_FALSE(ShowSheet(path, IDOK, [&](const OpenSheet& sheet) {
        for (const int id : {11703, 11704, 11705, 10301, 10302, 10303, 10304})
            EXPECT_FALSE(sheet.IsShown(id)) << id;
        for (const int id : {11701, 11702, 11901, 11902, 11903, 10901})
            EXPECT_TRUE(sheet.IsShown(id)) << id;
        EXPECT_EQ(sheet.Text(11903), tree.Root());
        EXPECT_EQ(sheet.Text(11904), L"");
        EXPECT_EQ(sheet.Text(11905), L"");
    }));
    EXPECT_TRUE(attributesSet.empty());
}

TEST_F(GeneralPageTest, of_a_missing_file_leaves_size_time_and_boxes_empty_and_changes_nothing) {
    EXPECT_FALSE(ShowSheet(tree.Path(L"missing.txt"), IDOK, [&](const OpenSheet& sheet) {
        EXPECT_EQ(sheet.Text(11903), tree.Root());
        EXPECT_EQ(sheet.Text(11904), L"");
        EXPECT_EQ(sheet.Text(11905), L"");
        for (const Box& box : Boxes)
            EXPECT_FALSE(sheet.IsChecked(box.id));
    }));
    EXPECT_EQ(GetFileAttributesW(tree.Path(L"missing.txt").c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(GeneralPageTest, changes_a_real_file) {
    const std::wstring path = tree.AddFile(L"a.txt", "text");
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

TEST_F(GeneralPageAttributes, are_shown_by_their_boxes) {
    for (DWORD some = 0; some <= Changeable; ++some) {
        if ((some & ~Changeable) != 0) continue;
        attributesNow = some | FILE_ATTRIBUTE_TEMPORARY;
        ShowSheet(path, IDCANCEL, [&](const OpenSheet& sheet) {
            for (const Box& box : Boxes)
                EXPECT_EQ(sheet.IsChecked(box.id), (some & box.attribute) != 0) << some << ", " << box.id;
        });
    }
    EXPECT_TRUE(attributesSet.empty());
}

TEST_F(GeneralPageAttributes, are_set_one_by_one_and_the_others_stay) {
    attributesNow = FILE_ATTRIBUTE_TEMPORARY | FILE_ATTRIBUTE_COMPRESSED;
    for (const Box& box : Boxes) {
        attributesSet.clear();
        EXPECT_TRUE(ShowSheet(path, IDOK, [&](const OpenSheet& sheet) { sheet.Click(box.id); }));
        EXPECT_EQ(attributesSet, (std::vector<DWORD>{attributesNow | box.attribute})) << box.id;
    }
}

TEST_F(GeneralPageAttributes, are_cleared_one_by_one_and_the_others_stay) {
    attributesNow = Changeable | FILE_ATTRIBUTE_TEMPORARY;
    for (const Box& box : Boxes) {
        attributesSet.clear();
        EXPECT_TRUE(ShowSheet(path, IDOK, [&](const OpenSheet& sheet) { sheet.Click(box.id); }));
        EXPECT_EQ(attributesSet, (std::vector<DWORD>{attributesNow & ~box.attribute})) << box.id;
    }
}

TEST_F(GeneralPageAttributes, are_not_touched_when_no_box_has_changed) {
    attributesNow = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_TEMPORARY;
    EXPECT_FALSE(ShowSheet(path, IDOK));
    EXPECT_FALSE(ShowSheet(path, IDOK, [](const OpenSheet& sheet) {
        sheet.Click(CHECK_HIDDEN);
        sheet.Click(CHECK_HIDDEN);
    }));
    EXPECT_TRUE(attributesSet.empty());
}

TEST_F(GeneralPageAttributes, are_not_touched_when_the_sheet_is_cancelled) {
    EXPECT_FALSE(ShowSheet(path, IDCANCEL, [](const OpenSheet& sheet) {
        for (const Box& box : Boxes)
            sheet.Click(box.id);
    }));
    EXPECT_TRUE(attributesSet.empty());
}

TEST_F(GeneralPageAttributes, of_a_folder_that_has_another_one_are_written_like_a_files) {
    attributesNow = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN;
    // The hidden boxes are all clear.
    EXPECT_TRUE(ShowSheet(path, IDOK));
    EXPECT_EQ(attributesSet, (std::vector<DWORD>{FILE_ATTRIBUTE_DIRECTORY}));
}

TEST_F(GeneralPageAttributes, that_cannot_be_read_any_more_are_not_written) {
    EXPECT_FALSE(ShowSheet(path, IDOK, [](const OpenSheet& sheet) {
        sheet.Click(CHECK_HIDDEN);
        attributesNow = INVALID_FILE_ATTRIBUTES;
    }));
    EXPECT_TRUE(attributesSet.empty());
}

TEST_F(GeneralPageAttributes, whose_change_is_refused_are_reported_once) {
    for (const UiLanguage language : {UiLanguage::English, UiLanguage::Japanese}) {
        GlobalsForStartUp().uiLanguage = language;
        attributesSet.clear();
        failureCode = ERROR_ACCESS_DENIED;
        std::optional<AnsweredBoxes> boxes;
        ShowSheet(path, IDOK, [&](const OpenSheet& sheet) {
            sheet.Click(CHECK_READ_ONLY);
            boxes.emplace(std::initializer_list<int>{IDOK});
        });
        ASSERT_TRUE(boxes.has_value());
        std::vector<SeenBox> errors;
        for (const SeenBox& box : boxes->Seen()) {
            // The sheet comes forward again when the box has gone.
            if (!box.caption.empty()) errors.push_back(box);
        }
        ASSERT_EQ(errors.size(), 1u);
        EXPECT_EQ(errors[0].caption, language == UiLanguage::English ? L"Error" : L"ｴﾗｰ");
        EXPECT_TRUE(AnsweredBoxes::Shows(errors[0], L"Error SetFileAttribute 5"));
        EXPECT_EQ(attributesSet.size(), 1u);
    }
}

// Any file's size, though it is about attributes otherwise.
using GeneralPageSizes = GeneralPageAttributes;

TEST_F(GeneralPageSizes, are_shown_whole_however_long_they_are) {
    for (const UiLanguage language : {UiLanguage::English, UiLanguage::Japanese}) {
        GlobalsForStartUp().uiLanguage = language;
        for (const DWORD size : {500u, 102399u, 102400000u, 2147483647u}) {
            sizeNow = size;
            ShowSheet(path, IDCANCEL, [&](const OpenSheet& sheet) {
                SCOPED_TRACE(testing::PrintToString(sheet.Text(11904)));
                EXPECT_TRUE(sheet.ShowsWhole(11904));
                EXPECT_TRUE(sheet.ShowsWhole(11703));
                // Places in dialog units are rounded one by one.
                EXPECT_LE(sheet.Place(11703).right, sheet.Place(11904).left + 1);
                EXPECT_EQ(sheet.Place(11904).right, sheet.Place(11905).right);
                // The usual ones stand below each other.
                if (size <= 102400u) {
                    EXPECT_EQ(sheet.Place(11904).left, sheet.Place(11905).left);
                }
            });
        }
    }
}
