#include "results/result_sorting.h"

#include <algorithm>
#include <cwchar>
#include <random>

#include "tests/results/result_list_test.h"
#include "tests/support/key_presses.h"

using Names = std::vector<std::wstring>;

namespace {

struct PlainRow {
    LPARAM number;
    std::wstring cells[ResultColumnCount];
};

long PlainSize(const std::wstring& text) {
    const long number = _wtol(text.c_str());
    const std::size_t unit = text.find_first_of(L"KM");
    if (unit == std::wstring::npos) return number;
    return text[unit] == L'K' ? number * 1024 : number * 1048576;
}

// The written rule, step by step.
int PlainCompare(const PlainRow& a, const PlainRow& b, int column, bool ascending) {
    if (column < 0) return a.number > b.number ? 1 : a.number < b.number ? -1 : 0;
    const std::wstring first = a.cells[column].substr(0, 127);
    const std::wstring second = b.cells[column].substr(0, 127);
    int result = 0;
    if (column == 2) {
        const long firstSize = PlainSize(first);
        const long secondSize = PlainSize(second);
        result = firstSize > secondSize ? 1 : firstSize < secondSize ? -1 : 0;
    } else {
        result = _wcsicmp(first.c_str(), second.c_str());
    }
    return ascending ? result : -result;
}

}  // namespace

class ResultSorting : public ResultListTest {
  protected:
    void AddRow(const PlainRow& row) {
        LVITEMW item = {};
        item.mask = LVIF_PARAM;
        item.iItem = List().RowCount();
        item.lParam = row.number;
        SendMessageW(Handle(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        for (int i = 0; i < ResultColumnCount; ++i)
            List().SetCell(item.iItem, static_cast<ResultColumn>(i), row.cells[i].c_str());
    }
    // Rows of a few values each, so that many are equal, with gaps in their numbers and some long names.
    std::vector<PlainRow> AddRandomRows(std::mt19937& random, int count) {
        const wchar_t* const sizes[] = {L"", L"0", L"999", L"1K", L"2K", L"10K", L"1M", L"2M", L"-5"};
        const wchar_t* const times[] = {L"02/07/15 09:05:30", L"02/07/15 09:05:31", L"99/12/31 00:00:00"};
        std::vector<PlainRow> rows;
        LPARAM number = 0;
        for (int i = 0; i < count; ++i) {
            number += 1 + static_cast<LPARAM>(random() % 3);
            std::wstring name(random() % 4 == 0 ? 126 + random() % 3 : 1 + random() % 3, L'a');
            for (wchar_t& unit : name)
                if (random() % 8 == 0) unit = L"aAbB_"[random() % 5];
            rows.push_back({number,
                            {name, random() % 2 ? L"\\f" : L"\\F\\g", sizes[random() % 9],
                             random() % 2 ? L"Text" : L"text file", times[random() % 3]}});
            AddRow(rows.back());
        }
        return rows;
    }
    std::vector<LPARAM> Numbers() {
        std::vector<LPARAM> numbers;
        for (int i = 0; i < List().RowCount(); ++i)
            numbers.push_back(RowNumberOf(Handle(), i));
        return numbers;
    }
    Names NameCells() {
        Names names;
        for (int i = 0; i < List().RowCount(); ++i)
            names.push_back(Cell(i, ResultColumn::Name));
        return names;
    }
    void Click(int column) {
        NMLISTVIEW clicked = {};
        clicked.hdr.hwndFrom = Handle();
        clicked.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(Handle()));
        clicked.hdr.code = static_cast<UINT>(LVN_COLUMNCLICK);
        clicked.iItem = -1;
        clicked.iSubItem = column;
        SendMessageW(GetParent(Handle()), WM_NOTIFY, clicked.hdr.idFrom, reinterpret_cast<LPARAM>(&clicked));
    }
    // Presses the button on the heading as often, each press but the first as the desktop tells of a quick
    // one.
    void PressOnHeading(int column, int times) {
        const auto header = reinterpret_cast<HWND>(SendMessageW(Handle(), LVM_GETHEADER, 0, 0));
        RECT place = {};
        SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&place));
        const LPARAM point = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
        for (int i = 0; i < times; ++i) {
            SendMessageW(header, i == 0 ? WM_LBUTTONDOWN : WM_LBUTTONDBLCLK, MK_LBUTTON, point);
            SendMessageW(header, WM_LBUTTONUP, 0, point);
        }
    }
    void AddThreeFiles() {
        AddFile(L"\\f", L"b.txt", 2097152);
        AddFile(L"\\f", L"c.txt", 999);
        AddFile(L"\\f", L"a.txt", 1024);
    }
};

TEST_F(ResultSorting, the_order_is_that_of_the_plain_comparison_for_every_column_and_direction) {
    std::mt19937 random(20020715);
    for (int column = -1; column < ResultColumnCount; ++column) {
        for (const bool ascending : {true, false}) {
            SCOPED_TRACE(testing::Message() << "column " << column << (ascending ? " up" : " down"));
            List().Clear();
            std::vector<PlainRow> rows = AddRandomRows(random, 150);
            SortRows(List(), column, ascending);
            std::stable_sort(rows.begin(), rows.end(), [=](const PlainRow& a, const PlainRow& b) {
                return PlainCompare(a, b, column, ascending) < 0;
            });
            std::vector<LPARAM> expected;
            for (const PlainRow& row : rows)
                expected.push_back(row.number);
            EXPECT_EQ(Numbers(), expected);
        }
    }
}

TEST_F(ResultSorting, control_with_a_digit_stands_for_the_click_on_that_heading) {
    AddThreeFiles();
    PressKeyOn(Handle(), '3', {VK_CONTROL});
    EXPECT_EQ(NameCells(), (Names{L"c.txt", L"a.txt", L"b.txt"}));
    PressKeyOn(Handle(), '3', {VK_CONTROL});
    EXPECT_EQ(NameCells(), (Names{L"b.txt", L"a.txt", L"c.txt"}));
    PressKeyOn(Handle(), '1', {VK_CONTROL});
    EXPECT_EQ(NameCells(), (Names{L"a.txt", L"b.txt", L"c.txt"}));
}

TEST_F(ResultSorting, other_keys_sort_nothing) {
    AddThreeFiles();
    for (const int key : {'0', '6', '9', 'A'})
        PressKeyOn(Handle(), key, {VK_CONTROL});
    PressKeyOn(Handle(), '3');
    PressKeyOn(Handle(), '3', {VK_SHIFT});
    PressKeyOn(Handle(), '3', {VK_CONTROL, VK_MENU});
    EXPECT_EQ(NameCells(), (Names{L"b.txt", L"c.txt", L"a.txt"}));
}

TEST_F(ResultSorting, every_click_on_a_heading_counts_however_quick) {
    AddThreeFiles();
    PressOnHeading(0, 1);
    EXPECT_EQ(NameCells(), (Names{L"c.txt", L"b.txt", L"a.txt"}));
    PressOnHeading(0, 2);
    EXPECT_EQ(NameCells(), (Names{L"c.txt", L"b.txt", L"a.txt"}));
    PressOnHeading(0, 3);
    EXPECT_EQ(NameCells(), (Names{L"a.txt", L"b.txt", L"c.txt"}));
}

TEST_F(ResultSorting, a_double_click_between_two_headings_sorts_nothing) {
    AddThreeFiles();
    const auto header = reinterpret_cast<HWND>(SendMessageW(Handle(), LVM_GETHEADER, 0, 0));
    RECT place = {};
    SendMessageW(header, HDM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&place));
    const LPARAM point = MAKELPARAM(place.right - 1, (place.top + place.bottom) / 2);
    for (const int message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
        SendMessageW(header, static_cast<UINT>(message), 0, point);
    EXPECT_EQ(NameCells(), (Names{L"b.txt", L"c.txt", L"a.txt"}));
}

TEST_F(ResultSorting, a_negative_column_restores_the_order_of_finding_in_both_directions) {
    AddThreeFiles();
    for (const bool ascending : {true, false}) {
        SortRows(List(), static_cast<int>(ResultColumn::Name), true);
        ASSERT_EQ(Numbers(), (std::vector<LPARAM>{2, 0, 1}));
        SortRows(List(), -1, ascending);
        EXPECT_EQ(Numbers(), (std::vector<LPARAM>{0, 1, 2}));
    }
}

TEST_F(ResultSorting, an_empty_list_stays_empty) {
    for (int column = -1; column < ResultColumnCount; ++column)
        SortRows(List(), column, true);
    EXPECT_EQ(List().RowCount(), 0);
}

TEST_F(ResultSorting, sizes_that_show_the_same_are_equal_and_keep_their_order) {
    AddFile(L"\\f", L"first", 2000);
    AddFile(L"\\f", L"second", 1500);
    AddFile(L"\\f", L"third", 1258291);
    AddFile(L"\\f", L"fourth", 1992294);
    AddFile(L"\\f", L"fifth", 1100);
    SortRows(List(), static_cast<int>(ResultColumn::Size), true);
    EXPECT_EQ(NameCells(), (Names{L"first", L"second", L"fifth", L"third", L"fourth"}));
    SortRows(List(), static_cast<int>(ResultColumn::Size), false);
    EXPECT_EQ(NameCells(), (Names{L"third", L"fourth", L"first", L"second", L"fifth"}));
}

TEST_F(ResultSorting, a_folder_sorts_as_size_0) {
    AddFile(L"\\f", L"big", 1024);
    AddFile(L"\\f", L"small", 1);
    List().AddMatch(L"\\f\\sub", FolderEntry(L"sub"));
    SortRows(List(), static_cast<int>(ResultColumn::Size), true);
    EXPECT_EQ(NameCells(), (Names{L"sub", L"small", L"big"}));
}

TEST_F(ResultSorting, names_that_differ_in_letter_case_alone_keep_their_order) {
    for (const wchar_t* name : {L"b.txt", L"A.TXT", L"a.txt", L"A.txt"})
        AddFile(L"\\f", name);
    SortRows(List(), static_cast<int>(ResultColumn::Name), true);
    EXPECT_EQ(NameCells(), (Names{L"A.TXT", L"a.txt", L"A.txt", L"b.txt"}));
}

TEST_F(ResultSorting, units_behind_the_127th_do_not_count) {
    const std::wstring same(127, L'n');
    for (const wchar_t* end : {L"c", L"a", L"b"})
        AddFile(L"\\f", same + end);
    SortRows(List(), static_cast<int>(ResultColumn::Name), true);
    EXPECT_EQ(Numbers(), (std::vector<LPARAM>{0, 1, 2}));
}

TEST_F(ResultSorting, the_first_click_on_the_name_heading_sorts_from_z_to_a_and_the_second_back) {
    AddThreeFiles();
    Click(0);
    EXPECT_EQ(NameCells(), (Names{L"c.txt", L"b.txt", L"a.txt"}));
    Click(0);
    EXPECT_EQ(NameCells(), (Names{L"a.txt", L"b.txt", L"c.txt"}));
}

TEST_F(ResultSorting, another_heading_sorts_up_then_down_and_yet_another_up_again) {
    AddThreeFiles();
    Click(2);
    EXPECT_EQ(NameCells(), (Names{L"c.txt", L"a.txt", L"b.txt"}));
    Click(2);
    EXPECT_EQ(NameCells(), (Names{L"b.txt", L"a.txt", L"c.txt"}));
    Click(0);
    EXPECT_EQ(NameCells(), (Names{L"a.txt", L"b.txt", L"c.txt"}));
}

TEST_F(ResultSorting, a_new_search_is_not_sorted_but_the_direction_is_remembered) {
    AddThreeFiles();
    Click(2);
    List().Clear();
    AddThreeFiles();
    EXPECT_EQ(NameCells(), (Names{L"b.txt", L"c.txt", L"a.txt"}));
    Click(2);
    EXPECT_EQ(NameCells(), (Names{L"b.txt", L"a.txt", L"c.txt"}));
}

TEST_F(ResultSorting, a_deleted_row_leaves_a_gap_that_does_not_matter) {
    AddThreeFiles();
    List().DeleteRow(0);
    Click(0);
    EXPECT_EQ(NameCells(), (Names{L"c.txt", L"a.txt"}));
    EXPECT_EQ(Numbers(), (std::vector<LPARAM>{1, 2}));
}

TEST_F(ResultSorting, the_selection_goes_with_its_row) {
    AddThreeFiles();
    List().SelectRow(2);
    Click(2);
    EXPECT_EQ(List().SelectedRow(), 1);
    EXPECT_EQ(Cell(1, ResultColumn::Name), L"a.txt");
}

TEST_F(ResultSorting, twenty_thousand_rows_come_into_the_order_of_their_texts) {
    SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
    for (int i = 0; i < 20000; ++i)
        AddRow({i, {std::to_wstring(i * 7919LL % 20000), L"", L"", L"", L""}});
    SortRows(List(), static_cast<int>(ResultColumn::Name), true);
    EXPECT_EQ(Cell(0, ResultColumn::Name), L"0");
    EXPECT_EQ(Cell(1, ResultColumn::Name), L"1");
    EXPECT_EQ(Cell(2, ResultColumn::Name), L"10");
    EXPECT_EQ(Cell(19999, ResultColumn::Name), L"9999");
}
