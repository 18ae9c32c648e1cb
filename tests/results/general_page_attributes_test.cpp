// The boxes of the General page, for every attribute that a file can have, and its size, for every size.

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

// A file whose attributes stand in attributesNow, so that every one of them can be tried.
class GeneralPageAttributes : public PropertiesTest {
  protected:
    GeneralPageAttributes() {
        attributesNow = FILE_ATTRIBUTE_NORMAL;
        sizeNow = 0;
        attributesSet.clear();
        failureCode = 0;
    }

    std::wstring path_ = tree_.AddFile(L"a.txt");
    Replaced<decltype(ce::fileCalls.getFileAttributes)> get_{ce::fileCalls.getFileAttributes, &AttributesNow};
    Replaced<decltype(ce::fileCalls.setFileAttributes)> set_{ce::fileCalls.setFileAttributes,
                                                             &NoteAttributes};
    Replaced<decltype(ce::fileCalls.findFirstFile)> find_{ce::fileCalls.findFirstFile, &FindWithAttributes};
    Replaced<decltype(ce::fileCalls.findClose)> close_{ce::fileCalls.findClose, &EndFinding};
};

TEST_F(GeneralPageAttributes, are_shown_by_their_boxes) {
    for (DWORD some = 0; some <= Changeable; ++some) {
        if ((some & ~Changeable) != 0) continue;
        attributesNow = some | FILE_ATTRIBUTE_TEMPORARY;
        ShowSheet(path_, IDCANCEL, [&](const OpenSheet& sheet) {
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
        EXPECT_TRUE(ShowSheet(path_, IDOK, [&](const OpenSheet& sheet) { sheet.Click(box.id); }));
        EXPECT_EQ(attributesSet, (std::vector<DWORD>{attributesNow | box.attribute})) << box.id;
    }
}

TEST_F(GeneralPageAttributes, are_cleared_one_by_one_and_the_others_stay) {
    attributesNow = Changeable | FILE_ATTRIBUTE_TEMPORARY;
    for (const Box& box : Boxes) {
        attributesSet.clear();
        EXPECT_TRUE(ShowSheet(path_, IDOK, [&](const OpenSheet& sheet) { sheet.Click(box.id); }));
        EXPECT_EQ(attributesSet, (std::vector<DWORD>{attributesNow & ~box.attribute})) << box.id;
    }
}

TEST_F(GeneralPageAttributes, are_not_touched_when_no_box_has_changed) {
    attributesNow = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_TEMPORARY;
    EXPECT_FALSE(ShowSheet(path_, IDOK));
    EXPECT_FALSE(ShowSheet(path_, IDOK, [](const OpenSheet& sheet) {
        sheet.Click(CHECK_HIDDEN);
        sheet.Click(CHECK_HIDDEN);
    }));
    EXPECT_TRUE(attributesSet.empty());
}

TEST_F(GeneralPageAttributes, are_not_touched_when_the_sheet_is_cancelled) {
    EXPECT_FALSE(ShowSheet(path_, IDCANCEL, [](const OpenSheet& sheet) {
        for (const Box& box : Boxes)
            sheet.Click(box.id);
    }));
    EXPECT_TRUE(attributesSet.empty());
}

TEST_F(GeneralPageAttributes, of_a_folder_that_has_another_one_are_written_like_a_files) {
    attributesNow = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN;
    // The hidden boxes are all clear.
    EXPECT_TRUE(ShowSheet(path_, IDOK));
    EXPECT_EQ(attributesSet, (std::vector<DWORD>{FILE_ATTRIBUTE_DIRECTORY}));
}

TEST_F(GeneralPageAttributes, that_cannot_be_read_any_more_are_not_written) {
    EXPECT_FALSE(ShowSheet(path_, IDOK, [](const OpenSheet& sheet) {
        sheet.Click(CHECK_HIDDEN);
        attributesNow = INVALID_FILE_ATTRIBUTES;
    }));
    EXPECT_TRUE(attributesSet.empty());
}

TEST_F(GeneralPageAttributes, whose_change_is_refused_are_reported_once) {
    for (const UiLanguage language : {UiLanguage::English, UiLanguage::Japanese}) {
        ContextForStartUp().uiLanguage = language;
        attributesSet.clear();
        failureCode = ERROR_ACCESS_DENIED;
        std::optional<AnsweredBoxes> boxes;
        ShowSheet(path_, IDOK, [&](const OpenSheet& sheet) {
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
        ContextForStartUp().uiLanguage = language;
        for (const DWORD size : {500u, 102399u, 102400000u, 2147483647u}) {
            sizeNow = size;
            ShowSheet(path_, IDCANCEL, [&](const OpenSheet& sheet) {
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
