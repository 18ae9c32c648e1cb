#include <iterator>

#include "tests/results/result_list_test.h"

namespace {

struct Heading {
    const wchar_t* english;
    const wchar_t* japanese;
    int width;
    int alignment;
};

constexpr Heading Headings[] = {
    {L"Name", L"名前", 100, LVCFMT_LEFT},         {L"Folder", L"ﾌｫﾙﾀﾞ名", 140, LVCFMT_LEFT},
    {L"Size", L"ｻｲｽﾞ", 40, LVCFMT_RIGHT},         {L"Type", L"種類", 74, LVCFMT_LEFT},
    {L"Modified", L"更新日時", 104, LVCFMT_LEFT},
};

void ExpectColumns(HWND list, bool japanese) {
    for (std::size_t i = 0; i < std::size(Headings); ++i) {
        SCOPED_TRACE(i);
        wchar_t text[64] = L"";
        LVCOLUMNW column = {};
        column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT;
        column.pszText = text;
        column.cchTextMax = 64;
        ASSERT_TRUE(SendMessageW(list, LVM_GETCOLUMNW, i, reinterpret_cast<LPARAM>(&column)));
        EXPECT_EQ(std::wstring(text), japanese ? Headings[i].japanese : Headings[i].english);
        EXPECT_EQ(column.cx, Headings[i].width);
        EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, Headings[i].alignment);
    }
    LVCOLUMNW beyond = {};
    beyond.mask = LVCF_WIDTH;
    EXPECT_FALSE(SendMessageW(list, LVM_GETCOLUMNW, std::size(Headings), reinterpret_cast<LPARAM>(&beyond)));
}

}  // namespace

class ResultColumns : public ResultListTest {};

TEST_F(ResultColumns, the_five_columns_have_their_english_headings_widths_and_alignments) {
    ExpectColumns(Handle(), false);
}

TEST_F(ResultColumns, the_five_columns_have_their_japanese_headings_and_the_same_widths) {
    UseJapanese();
    ExpectColumns(Handle(), true);
}

TEST_F(ResultColumns, headings_are_chosen_once_when_the_list_is_made) {
    const HWND window = Handle();
    UseJapanese();
    AddFile(L"\\f", L"a.txt");
    ExpectColumns(window, false);
}

TEST_F(ResultColumns, the_list_is_a_single_selection_report_that_edits_labels_and_selects_whole_rows) {
    wchar_t name[32] = L"";
    GetClassNameW(Handle(), name, 32);
    EXPECT_EQ(std::wstring(name), L"SysListView32");
    const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_STYLE);
    EXPECT_EQ(style & LVS_TYPEMASK, LVS_REPORT);
    for (const LONG_PTR flag : {LONG_PTR{LVS_SINGLESEL}, LONG_PTR{LVS_AUTOARRANGE}, LONG_PTR{LVS_EDITLABELS},
                                LONG_PTR{WS_TABSTOP}, LONG_PTR{WS_CHILD}, LONG_PTR{WS_VISIBLE}}) {
        EXPECT_EQ(style & flag, flag);
    }
    EXPECT_EQ(SendMessageW(Handle(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & LVS_EX_FULLROWSELECT,
              LVS_EX_FULLROWSELECT);
}

TEST_F(ResultColumns, each_view_replaces_the_two_view_bits_and_leaves_the_other_styles) {
    // The control itself shows and hides its scroll bars.
    constexpr LONG_PTR NotTheViews = ~LONG_PTR{3 | WS_HSCROLL | WS_VSCROLL};
    const LONG_PTR others = GetWindowLongPtrW(Handle(), GWL_STYLE) & NotTheViews;
    for (const DWORD view : {DWORD{LVS_ICON}, DWORD{LVS_SMALLICON}, DWORD{LVS_REPORT}}) {
        List().SetView(view);
        const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_STYLE);
        EXPECT_EQ(static_cast<DWORD>(style & 3), view);
        EXPECT_EQ(style & NotTheViews, others);
    }
}

TEST_F(ResultColumns, another_view_is_drawn_on_an_empty_list) {
    List().SetView(LVS_REPORT);
    UpdateWindow(Handle());
    ASSERT_FALSE(GetUpdateRect(Handle(), nullptr, FALSE));
    List().SetView(LVS_ICON);
    RECT client = {};
    GetClientRect(Handle(), &client);
    RECT toDraw = {};
    ASSERT_TRUE(GetUpdateRect(Handle(), &toDraw, FALSE));
    EXPECT_TRUE(EqualRect(&toDraw, &client));
}

TEST_F(ResultColumns, rows_and_headings_have_the_letters_of_the_dialogs) {
    const auto header = SendMessageW(Handle(), LVM_GETHEADER, 0, 0);
    for (const HWND window : {Handle(), reinterpret_cast<HWND>(header)}) {
        LOGFONTW font = {};
        const auto handle = reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0));
        ASSERT_EQ(GetObjectW(handle, sizeof(font), &font), static_cast<int>(sizeof(font)));
        EXPECT_STREQ(font.lfFaceName, L"Tahoma");
    }
}
