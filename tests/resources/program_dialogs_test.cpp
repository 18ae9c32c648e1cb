// The About box, the folder browser, the progress dialog and the pages of the properties sheet against the
// written controls, in both languages.

#include <gtest/gtest.h>
#include <windows.h>

#include <vector>

#include <commctrl.h>

#include "tests/resources/dialog_expectations.h"
#include "tests/resources/dialog_template.h"

namespace {

using Controls = std::vector<ExpectedControl>;

constexpr DWORD StaticKind = SS_TYPEMASK;
constexpr DWORD ButtonStyle = ButtonKind | WS_TABSTOP;
constexpr DWORD CheckBox = BS_AUTOCHECKBOX | WS_TABSTOP;

Controls AboutControls(const wchar_t* heading, const wchar_t* memories, const wchar_t* uninstall) {
    return {
        {L"Static", 12500, heading, StaticKind, SS_LEFT},
        {L"Static", Label, L"#101", StaticKind, SS_ICON},
        {L"Static", 11901, L"", StaticKind, SS_LEFT},
        {L"Static", 11902, L"", StaticKind, SS_LEFT},
        {L"Static", 11903, L"", StaticKind, SS_LEFT},
        {L"Static", 11910, L"", StaticKind, SS_LEFT},
        {L"Static", 11911, L"", StaticKind, SS_LEFT},
        {L"Button", Label, memories, ButtonKind, BS_GROUPBOX},
        {L"Static", 11904, L"", SS_NOPREFIX, SS_NOPREFIX},
        {L"Static", 11905, L"", SS_NOPREFIX, SS_NOPREFIX},
        {L"Static", 11906, L"", SS_NOPREFIX, SS_NOPREFIX},
        {L"Static", 11907, L"", SS_NOPREFIX, SS_NOPREFIX},
        {L"Button", 10201, uninstall, ButtonStyle, BS_PUSHBUTTON | WS_TABSTOP},
    };
}

TEST(ProgramDialogs, the_about_box_reads_as_written) {
    ExpectControls(L"EAboutDialog_E", AboutControls(L"About", L"Rest of memories", L"&Uninstall"));
    ExpectControls(L"EAboutDialog_J", AboutControls(L"ﾊﾞｰｼﾞｮﾝ情報", L"ﾒﾓﾘ残量", L"ｱﾝｲﾝｽﾄ(&U)"));
    ExpectCaptionedPopUp(L"EAboutDialog_E", L"About", 134, 152);
    ExpectCaptionedPopUp(L"EAboutDialog_J", L"ﾊﾞｰｼﾞｮﾝ情報", 134, 152);
}

TEST(ProgramDialogs, the_about_box_is_laid_out_as_written) {
    for (const wchar_t* const name : {L"EAboutDialog_E", L"EAboutDialog_J"}) {
        ExpectPlaces(name, {{12500, 4, 4, 130, 10},
                            {Label, 4, 16, 20, 20},
                            {11901, 30, 16, 120, 10},
                            {11902, 30, 26, 120, 10},
                            {11903, 4, 36, 130, 20},
                            {11910, 4, 56, 130, 10},
                            {11911, 4, 66, 130, 10},
                            {11904, 4, 86, 120, 10},
                            {11905, 4, 96, 120, 10},
                            {11906, 4, 106, 120, 10},
                            {11907, 4, 116, 120, 10},
                            {10201, 94, 136, 40, 12}});
        DialogTemplate dialog;
        ASSERT_TRUE(ReadDialogTemplate(name, dialog));
        ASSERT_EQ(dialog.controls.size(), 13u);
        const TemplateControl& memories = dialog.controls[7];
        EXPECT_EQ(memories.x, 2);
        EXPECT_EQ(memories.y, 76);
        EXPECT_EQ(memories.width, 132);
        EXPECT_EQ(memories.height, 56);
    }
}

Controls BrowseControls(const wchar_t* heading) {
    constexpr DWORD TreeStyle = TVS_HASBUTTONS | TVS_HASLINES | WS_BORDER | WS_TABSTOP;
    return {
        {L"Static", 12500, heading, StaticKind, SS_LEFT},
        {L"SysTreeView32", 12001, L"", TreeStyle, TreeStyle},
    };
}

TEST(ProgramDialogs, the_folder_browser_reads_as_written) {
    ExpectControls(L"EBrowseDialog_E", BrowseControls(L"Browse folder"));
    ExpectControls(L"EBrowseDialog_J", BrowseControls(L"ﾌｫﾙﾀﾞの参照"));
    ExpectCaptionedPopUp(L"EBrowseDialog_E", L"Select Folder", 134, 108);
    ExpectCaptionedPopUp(L"EBrowseDialog_J", L"ﾌｫﾙﾀﾞ選択", 134, 108);
}

Controls ProgressControls(const wchar_t* stop) {
    return {
        {L"Static", 11901, L"", StaticKind, SS_LEFT},
        {L"Static", 11902, L"", SS_NOPREFIX | SS_ELLIPSISMASK, SS_NOPREFIX | SS_PATHELLIPSIS},
        {L"Static", 11903, L"", StaticKind, SS_LEFT},
        {L"Static", 11904, L"", SS_NOPREFIX | SS_ELLIPSISMASK, SS_NOPREFIX | SS_PATHELLIPSIS},
        {L"Button", 10201, stop, ButtonStyle, BS_DEFPUSHBUTTON | WS_TABSTOP},
    };
}

TEST(ProgramDialogs, the_progress_dialog_reads_as_written) {
    ExpectControls(L"EFileOpDialog_E", ProgressControls(L"Stop"));
    ExpectControls(L"EFileOpDialog_J", ProgressControls(L"中断"));
    ExpectCaptionedPopUp(L"EFileOpDialog_E", L"File Operation...", 134, 90);
    ExpectCaptionedPopUp(L"EFileOpDialog_J", L"ﾌｧｲﾙ操作中...", 134, 90);
}

TEST(ProgramDialogs, the_progress_dialog_is_laid_out_as_written) {
    for (const wchar_t* const name : {L"EFileOpDialog_E", L"EFileOpDialog_J"}) {
        ExpectPlaces(name, {{11901, 4, 4, 126, 10},
                            {11902, 8, 16, 122, 10},
                            {11903, 4, 32, 126, 10},
                            {11904, 8, 44, 122, 10},
                            {10201, 50, 68, 34, 14}});
        DialogTemplate dialog;
        ASSERT_TRUE(ReadDialogTemplate(name, dialog));
        EXPECT_EQ(dialog.x, 10);
        EXPECT_EQ(dialog.y, 10);
    }
}

TEST(ProgramDialogs, the_english_general_page_reads_as_written) {
    ExpectControls(L"EFilePropGeneralPage_E", {{L"Static", 10901, L"", StaticKind, SS_ICON},
                                               {L"Static", 11901, L"", SS_NOPREFIX, SS_NOPREFIX},
                                               {L"Static", 11701, L"Type:", StaticKind, SS_LEFT},
                                               {L"Static", 11902, L"", SS_NOPREFIX, SS_NOPREFIX},
                                               {L"Static", 11702, L"Location:", StaticKind, SS_LEFT},
                                               {L"Static", 11903, L"", SS_NOPREFIX, SS_NOPREFIX},
                                               {L"Static", 11703, L"Size:", StaticKind, SS_LEFT},
                                               {L"Static", 11904, L"", StaticKind, SS_LEFT},
                                               {L"Static", 11705, L"Modified:", StaticKind, SS_LEFT},
                                               {L"Static", 11905, L"", StaticKind, SS_LEFT},
                                               {L"Static", 11704, L"Attributes:", StaticKind, SS_LEFT},
                                               {L"Button", 10301, L"&Read-only", ButtonStyle, CheckBox},
                                               {L"Button", 10302, L"&Archive", ButtonStyle, CheckBox},
                                               {L"Button", 10303, L"H&idden", ButtonStyle, CheckBox},
                                               {L"Button", 10304, L"&System", ButtonStyle, CheckBox}});
}

TEST(ProgramDialogs, the_japanese_general_page_reads_as_written) {
    ExpectControls(L"EFilePropGeneralPage_J", {{L"Static", 10901, L"", StaticKind, SS_ICON},
                                               {L"Static", 11901, L"", SS_NOPREFIX, SS_NOPREFIX},
                                               {L"Static", 11701, L"種類:", StaticKind, SS_LEFT},
                                               {L"Static", 11902, L"", SS_NOPREFIX, SS_NOPREFIX},
                                               {L"Static", 11702, L"場所:", StaticKind, SS_LEFT},
                                               {L"Static", 11903, L"", SS_NOPREFIX, SS_NOPREFIX},
                                               {L"Static", 11703, L"ｻｲｽﾞ:", StaticKind, SS_LEFT},
                                               {L"Static", 11904, L"", StaticKind, SS_LEFT},
                                               {L"Static", 11705, L"更新日時:", StaticKind, SS_LEFT},
                                               {L"Static", 11905, L"", StaticKind, SS_LEFT},
                                               {L"Static", 11704, L"属性:", StaticKind, SS_LEFT},
                                               {L"Button", 10301, L"読みとり専用(&R)", ButtonStyle, CheckBox},
                                               {L"Button", 10302, L"ｱｰｶｲﾌﾞ(&A)", ButtonStyle, CheckBox},
                                               {L"Button", 10303, L"隠しﾌｧｲﾙ(&I)", ButtonStyle, CheckBox},
                                               {L"Button", 10304, L"ｼｽﾃﾑ(&S)", ButtonStyle, CheckBox}});
}

// The label of the target stands right before it, so that its letter reaches it.
Controls ShortcutControls(const wchar_t* type, const wchar_t* target, const wchar_t* size,
                          const wchar_t* modified) {
    return {
        {L"Static", 10901, L"", StaticKind, SS_ICON},
        {L"Static", 11901, L"", SS_NOPREFIX, SS_NOPREFIX},
        {L"Static", Label, type, StaticKind, SS_LEFT},
        {L"Static", 11902, L"", SS_NOPREFIX, SS_NOPREFIX},
        {L"Static", Label, target, StaticKind, SS_LEFT},
        {L"Edit", 10701, L"", WS_TABSTOP | ES_AUTOHSCROLL, WS_TABSTOP | ES_AUTOHSCROLL},
        {L"Static", 11903, size, StaticKind, SS_LEFT},
        {L"Static", 11905, L"", StaticKind, SS_LEFT},
        {L"Static", 11904, modified, StaticKind, SS_LEFT},
        {L"Static", 11906, L"", StaticKind, SS_LEFT},
    };
}

TEST(ProgramDialogs, the_shortcut_page_reads_as_written) {
    ExpectControls(L"EFilePropShortcutPage_E",
                   ShortcutControls(L"Target Type:", L"&Target:", L"Size:", L"Modified:"));
    ExpectControls(L"EFilePropShortcutPage_J",
                   ShortcutControls(L"ﾘﾝｸ先種類:", L"ﾘﾝｸ先(&T):", L"ｻｲｽﾞ:", L"更新日時:"));
}

TEST(ProgramDialogs, the_pages_of_the_properties_sheet_are_children) {
    for (const wchar_t* const name : {L"EFilePropGeneralPage_E", L"EFilePropGeneralPage_J",
                                      L"EFilePropShortcutPage_E", L"EFilePropShortcutPage_J"}) {
        DialogTemplate dialog;
        ASSERT_TRUE(ReadDialogTemplate(name, dialog));
        EXPECT_EQ(dialog.style & (WS_CHILD | WS_POPUP), DWORD{WS_CHILD});
        EXPECT_EQ(dialog.fontName, L"Tahoma");
        EXPECT_EQ(dialog.fontSize, 9);
    }
}

}  // namespace
