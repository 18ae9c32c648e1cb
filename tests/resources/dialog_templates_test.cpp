// The condition pages and the abort dialog against the written controls: class, id, text, style and order,
// in both languages.

#include <gtest/gtest.h>
#include <windows.h>

#include <cwctype>
#include <set>
#include <string>
#include <vector>

#include <commctrl.h>

#include "tests/resources/dialog_expectations.h"
#include "tests/resources/dialog_template.h"
#include "tests/resources/program_module.h"

namespace {

constexpr DWORD ComboKind = 3;
// An ampersand is shown, a long name without a blank breaks.
constexpr DWORD FolderStyle = SS_NOPREFIX | SS_EDITCONTROL;
constexpr DWORD SpinStyle = UDS_AUTOBUDDY | UDS_SETBUDDYINT | UDS_ARROWKEYS | UDS_ALIGNRIGHT;

// In the order of the Tab key.
const std::vector<ExpectedControl> NameEnglish = {
    {L"Static", Label, L"&Name:", 0, 0},
    {L"ComboBox", 10401, L"", ComboKind | WS_TABSTOP, CBS_DROPDOWN | WS_TABSTOP},
    {L"Static", Label, L"&Contain string:", 0, 0},
    {L"Edit", 10701, L"", WS_TABSTOP | ES_AUTOHSCROLL, WS_TABSTOP | ES_AUTOHSCROLL},
    {L"Static", Label, L"&Location:", 0, 0},
    {L"ComboBox", 10402, L"", ComboKind | WS_TABSTOP, CBS_DROPDOWN | WS_TABSTOP},
    {L"Button", 10201, L"&Browse", ButtonKind | WS_TABSTOP, BS_PUSHBUTTON | WS_TABSTOP},
    {L"Button", 10301, L"Include &Subfolders", ButtonKind | WS_TABSTOP, BS_AUTOCHECKBOX | WS_TABSTOP},
};
const std::vector<ExpectedControl> NameJapanese = {
    {L"Static", Label, L"名前(&N)", 0, 0},
    {L"ComboBox", 10401, L"", ComboKind | WS_TABSTOP, CBS_DROPDOWN | WS_TABSTOP},
    {L"Static", Label, L"含まれる文字列(&C)", 0, 0},
    {L"Edit", 10701, L"", WS_TABSTOP | ES_AUTOHSCROLL, WS_TABSTOP | ES_AUTOHSCROLL},
    {L"Static", Label, L"探す場所(&L)", 0, 0},
    {L"ComboBox", 10402, L"", ComboKind | WS_TABSTOP, CBS_DROPDOWN | WS_TABSTOP},
    {L"Button", 10201, L"参照(&B)", ButtonKind | WS_TABSTOP, BS_PUSHBUTTON | WS_TABSTOP},
    {L"Button", 10301, L"ｻﾌﾞﾌｫﾙﾀﾞも探す(&S)", ButtonKind | WS_TABSTOP, BS_AUTOCHECKBOX | WS_TABSTOP},
};
const std::vector<ExpectedControl> DateEnglish = {
    {L"Button", 11201, L"&All Files", ButtonKind | WS_GROUP, BS_AUTORADIOBUTTON | WS_GROUP},
    {L"Button", 11202, L"&Between", ButtonKind | WS_GROUP, BS_AUTORADIOBUTTON},
    {L"Button", 11204, L"Paste&d", ButtonKind | WS_GROUP, BS_AUTORADIOBUTTON},
    {L"SysDateTimePick32", 12101, L"", WS_GROUP | WS_TABSTOP, WS_GROUP | WS_TABSTOP},
    {L"SysDateTimePick32", 12102, L"", WS_TABSTOP, WS_TABSTOP},
    {L"Edit", 10702, L"", WS_TABSTOP, WS_TABSTOP},
    {L"msctls_updown32", 11602, L"", SpinStyle, SpinStyle},
    {L"Static", Label, L"Days", 0, 0},
};
const std::vector<ExpectedControl> DateJapanese = {
    {L"Button", 11201, L"すべてのﾌｧｲﾙ(&A)", ButtonKind | WS_GROUP, BS_AUTORADIOBUTTON | WS_GROUP},
    {L"Button", 11202, L"日付指定(&B)", ButtonKind | WS_GROUP, BS_AUTORADIOBUTTON},
    {L"Button", 11204, L"過去(&D)", ButtonKind | WS_GROUP, BS_AUTORADIOBUTTON},
    {L"SysDateTimePick32", 12101, L"", WS_GROUP | WS_TABSTOP, WS_GROUP | WS_TABSTOP},
    {L"SysDateTimePick32", 12102, L"", WS_TABSTOP, WS_TABSTOP},
    {L"Edit", 10702, L"", WS_TABSTOP, WS_TABSTOP},
    {L"msctls_updown32", 11602, L"", SpinStyle, SpinStyle},
    {L"Static", Label, L"日間", 0, 0},
};
const std::vector<ExpectedControl> SizeEnglish = {
    {L"Static", Label, L"File &Type", 0, 0},
    {L"ComboBox", 10401, L"", ComboKind | WS_VSCROLL | WS_TABSTOP,
     CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP},
    {L"Static", Label, L"File &Size", 0, 0},
    {L"ComboBox", 10402, L"", ComboKind | WS_TABSTOP, CBS_DROPDOWN | WS_TABSTOP},
    {L"Edit", 10701, L"", WS_TABSTOP, WS_TABSTOP},
    {L"msctls_updown32", 11601, L"", SpinStyle, SpinStyle},
    {L"Static", Label, L"KB", 0, 0},
};
const std::vector<ExpectedControl> SizeJapanese = {
    {L"Static", Label, L"種類(&T)", 0, 0},
    {L"ComboBox", 10401, L"", ComboKind | WS_VSCROLL | WS_TABSTOP,
     CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP},
    {L"Static", Label, L"ｻｲｽﾞ(&S)", 0, 0},
    {L"ComboBox", 10402, L"", ComboKind | WS_TABSTOP, CBS_DROPDOWN | WS_TABSTOP},
    {L"Edit", 10701, L"", WS_TABSTOP, WS_TABSTOP},
    {L"msctls_updown32", 11601, L"", SpinStyle, SpinStyle},
    {L"Static", Label, L"KB", 0, 0},
};
const std::vector<ExpectedControl> AbortEnglish = {
    {L"Static", 11901, L"", FolderStyle, FolderStyle},
    {L"Button", 2, L"Abort", ButtonKind | WS_TABSTOP, BS_PUSHBUTTON | WS_TABSTOP},
};
const std::vector<ExpectedControl> AbortJapanese = {
    {L"Static", 11901, L"", FolderStyle, FolderStyle},
    {L"Button", 2, L"中断", ButtonKind | WS_TABSTOP, BS_PUSHBUTTON | WS_TABSTOP},
};

TEST(DialogTemplates, the_english_name_page_reads_as_written) {
    ExpectControls(L"NAME_E", NameEnglish);
}
TEST(DialogTemplates, the_japanese_name_page_reads_as_written) {
    ExpectControls(L"NAME_J", NameJapanese);
}
TEST(DialogTemplates, the_english_date_page_reads_as_written) {
    ExpectControls(L"DATE_E", DateEnglish);
}
TEST(DialogTemplates, the_japanese_date_page_reads_as_written) {
    ExpectControls(L"DATE_J", DateJapanese);
}
TEST(DialogTemplates, the_english_size_page_reads_as_written) {
    ExpectControls(L"SIZE_E", SizeEnglish);
}
TEST(DialogTemplates, the_japanese_size_page_reads_as_written) {
    ExpectControls(L"SIZE_J", SizeJapanese);
}
TEST(DialogTemplates, the_english_abort_dialog_reads_as_written) {
    ExpectControls(L"ABORTDIALOG_E", AbortEnglish);
}
TEST(DialogTemplates, the_japanese_abort_dialog_reads_as_written) {
    ExpectControls(L"ABORTDIALOG_J", AbortJapanese);
}

const wchar_t* const Pages[] = {L"NAME_E", L"NAME_J", L"DATE_E", L"DATE_J", L"SIZE_E", L"SIZE_J"};
const wchar_t* const Everything[] = {L"NAME_E", L"NAME_J", L"DATE_E",        L"DATE_J",
                                     L"SIZE_E", L"SIZE_J", L"ABORTDIALOG_E", L"ABORTDIALOG_J"};

TEST(DialogTemplates, a_template_is_found_whatever_the_case_of_its_name) {
    for (const wchar_t* const name : {L"Name_E", L"Name_J", L"Date_E", L"Date_J", L"Size_E", L"Size_J",
                                      L"AbortDialog_E", L"AbortDialog_J"}) {
        DialogTemplate dialog;
        EXPECT_TRUE(ReadDialogTemplate(name, dialog)) << testing::PrintToString(std::wstring(name));
    }
}

TEST(DialogTemplates, every_template_is_set_in_tahoma_9) {
    for (const wchar_t* const name : Everything) {
        DialogTemplate dialog;
        ASSERT_TRUE(ReadDialogTemplate(name, dialog));
        EXPECT_EQ(dialog.fontName, L"Tahoma");
        EXPECT_EQ(dialog.fontSize, 9);
    }
}

// Half-width letters have no room of their own in front of them.
TEST(DialogTemplates, no_text_touches_the_left_edge) {
    int texts = 0;
    const auto expectRoom = [&](LPWSTR name) {
        DialogTemplate dialog;
        EXPECT_TRUE(ReadDialogTemplate(name, dialog)) << testing::PrintToString(std::wstring(name));
        for (const TemplateControl& control : dialog.controls) {
            if (control.className != L"Static" || control.text.empty() || control.text[0] == L'#') continue;
            EXPECT_GE(control.x, 1) << testing::PrintToString(control.text);
            ++texts;
        }
    };
    using ExpectRoom = decltype(expectRoom);
    EnumResourceNamesW(
        ProgramModule(), RT_DIALOG,
        [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR expect) -> BOOL {
            (*reinterpret_cast<const ExpectRoom*>(expect))(name);
            return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&expectRoom));
    EXPECT_GT(texts, 50);
}

TEST(DialogTemplates, a_page_is_a_child_without_title_that_joins_its_parents_tab_order) {
    for (const wchar_t* const name : Pages) {
        DialogTemplate dialog;
        ASSERT_TRUE(ReadDialogTemplate(name, dialog));
        EXPECT_EQ(dialog.style & (WS_CHILD | WS_POPUP | WS_CAPTION), DWORD{WS_CHILD});
        EXPECT_EQ(dialog.style & DS_CONTROL, DWORD{DS_CONTROL});
        EXPECT_EQ(dialog.title, L"");
    }
}

TEST(DialogTemplates, the_abort_dialog_is_a_window_of_its_own_with_a_title) {
    DialogTemplate english, japanese;
    ASSERT_TRUE(ReadDialogTemplate(L"ABORTDIALOG_E", english));
    ASSERT_TRUE(ReadDialogTemplate(L"ABORTDIALOG_J", japanese));
    EXPECT_EQ(english.title, L"Finding...");
    EXPECT_EQ(japanese.title, L"検索中...");
    for (const DialogTemplate* dialog : {&english, &japanese}) {
        EXPECT_EQ(dialog->style & (WS_CHILD | WS_POPUP | WS_CAPTION), DWORD{WS_POPUP | WS_CAPTION});
        const TemplateControl* folder = FindControl(*dialog, 11901);
        ASSERT_NE(folder, nullptr);
        EXPECT_EQ(folder->width, 124);
        EXPECT_EQ(folder->height, 40);
    }
}

// The letter behind the ampersand, 0 when there is none.
wchar_t MnemonicOf(const std::wstring& text) {
    const std::size_t place = text.find(L'&');
    return place == std::wstring::npos ? L'\0' : static_cast<wchar_t>(std::towupper(text[place + 1]));
}

TEST(DialogTemplates, no_letter_of_a_page_reaches_two_controls) {
    for (const wchar_t* const name : Pages) {
        DialogTemplate dialog;
        ASSERT_TRUE(ReadDialogTemplate(name, dialog));
        std::set<wchar_t> taken;
        for (const TemplateControl& control : dialog.controls) {
            const wchar_t letter = MnemonicOf(control.text);
            if (letter == 0) continue;
            EXPECT_TRUE(taken.insert(letter).second) << static_cast<char>(letter);
        }
        EXPECT_GE(taken.size(), 2u);
    }
}

TEST(DialogTemplates, a_label_with_a_letter_stands_right_before_its_control) {
    int labels = 0;
    for (const wchar_t* const name : Pages) {
        DialogTemplate dialog;
        ASSERT_TRUE(ReadDialogTemplate(name, dialog));
        for (std::size_t index = 0; index < dialog.controls.size(); ++index) {
            const TemplateControl& label = dialog.controls[index];
            if (label.className != L"Static" || MnemonicOf(label.text) == 0) continue;
            ++labels;
            ASSERT_LT(index + 1, dialog.controls.size());
            const TemplateControl& control = dialog.controls[index + 1];
            EXPECT_TRUE(control.style & WS_TABSTOP);
            // On the same line, to the right of it.
            EXPECT_LE(label.x + label.width, control.x);
            EXPECT_LT(label.y, control.y + 12);
            EXPECT_GT(label.y + label.height, control.y);
        }
    }
    EXPECT_EQ(labels, 2 * (3 + 2));
}

}  // namespace
