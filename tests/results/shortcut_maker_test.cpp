#include "results/shortcut_maker.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/windows_ce.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/test_world.h"

namespace {

struct Made {
    std::wstring shortcut;
    std::wstring target;
    bool operator==(const Made&) const = default;
};
std::vector<Made> made;

DWORD AttributesOfMade(const wchar_t* path) {
    for (const Made& one : made)
        if (one.shortcut == path) return FILE_ATTRIBUTE_ARCHIVE;
    return INVALID_FILE_ATTRIBUTES;
}
DWORD_PTR NotesAsDisplayName(const wchar_t*, DWORD, SHFILEINFOW* info, UINT, UINT) {
    lstrcpyW(info->szDisplayName, L"Notes");
    return 1;
}

class ShortcutMaker : public testing::Test {
  protected:
    void SetUp() override { made.clear(); }

    Replaced<decltype(ce::fileCalls.getFileAttributes)> attributes_{ce::fileCalls.getFileAttributes,
                                                                    &AttributesOfMade};
    Replaced<decltype(ce::shellCalls.getFileInfo)> shell_{ce::shellCalls.getFileInfo, &NotesAsDisplayName};
    Replaced<decltype(ce::shortcutCalls.create)> create_{
        ce::shortcutCalls.create, [](const wchar_t* shortcut, const wchar_t* target) -> BOOL {
            made.push_back({shortcut, target});
            return TRUE;
        }};
};

}  // namespace

TEST_F(ShortcutMaker, names_that_are_taken_get_the_numbers_2_and_3) {
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(MakeShortcut(L"\\f\\Notes.txt", L"\\m", ShortcutForm::Plain));
    EXPECT_EQ(made, (std::vector<Made>{{L"\\m\\Notes.lnk", L"\\f\\Notes.txt"},
                                       {L"\\m\\Notes (2).lnk", L"\\f\\Notes.txt"},
                                       {L"\\m\\Notes (3).lnk", L"\\f\\Notes.txt"}}));
}

TEST_F(ShortcutMaker, a_target_with_a_blank_is_enclosed_in_quotes) {
    EXPECT_TRUE(MakeShortcut(L"\\My Documents\\a.txt", L"\\m", ShortcutForm::Plain));
    EXPECT_EQ(made, (std::vector<Made>{{L"\\m\\Notes.lnk", L"\"\\My Documents\\a.txt\""}}));
}

TEST_F(ShortcutMaker, the_other_form_is_worded_in_both_languages) {
    EXPECT_TRUE(MakeShortcut(L"\\a.txt", L"\\m", ShortcutForm::ShortcutTo));
    const TestWorld japanese(UiLanguage::Japanese);
    EXPECT_TRUE(MakeShortcut(L"\\a.txt", L"\\m", ShortcutForm::ShortcutTo));
    EXPECT_EQ(made, (std::vector<Made>{{L"\\m\\Shortcut to Notes.lnk", L"\\a.txt"},
                                       {L"\\m\\Notesへのｼｮｰﾄｶｯﾄ.lnk", L"\\a.txt"}}));
}

TEST_F(ShortcutMaker, a_shortcut_to_a_shortcut_points_to_that_ones_target) {
    const Replaced read(ce::shortcutCalls.getTarget,
                        [](const wchar_t*, wchar_t* target, int capacity) -> BOOL {
                            EXPECT_EQ(capacity, 260);
                            lstrcpyW(target, L"\"\\a b.txt\"");
                            return TRUE;
                        });
    EXPECT_TRUE(MakeShortcut(L"\\f\\x.lnk", L"\\m", ShortcutForm::Plain));
    EXPECT_EQ(made, (std::vector<Made>{{L"\\m\\Notes.lnk", L"\"\\a b.txt\""}}));
}

TEST_F(ShortcutMaker, a_shortcut_whose_target_cannot_be_read_makes_none) {
    const Replaced read(ce::shortcutCalls.getTarget,
                        [](const wchar_t*, wchar_t*, int) -> BOOL { return FALSE; });
    EXPECT_FALSE(MakeShortcut(L"\\f\\x.lnk", L"\\m", ShortcutForm::Plain));
    EXPECT_TRUE(made.empty());
}
