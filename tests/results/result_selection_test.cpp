#include "tests/results/result_list_test.h"

#include <cwchar>

class ResultSelection : public ResultListTest {
  protected:
    // The path of the selected row, or what stood in the buffer before when there is none.
    std::wstring SelectedPath(int expectedRow) {
        wchar_t path[MAX_PATH] = L"as before";
        EXPECT_EQ(List().SelectedPath(path), expectedRow);
        return path;
    }
};

TEST_F(ResultSelection, with_no_row_there_is_no_selected_path_and_the_buffer_is_left_alone) {
    EXPECT_EQ(SelectedPath(-1), L"as before");
}

TEST_F(ResultSelection, with_rows_but_none_selected_the_buffer_is_left_alone_to_its_last_unit) {
    AddFile(L"\\f", L"a.txt");
    wchar_t path[MAX_PATH];
    std::wmemset(path, L'#', MAX_PATH);
    EXPECT_EQ(List().SelectedPath(path), -1);
    EXPECT_EQ(std::wstring(path, MAX_PATH), std::wstring(MAX_PATH, L'#'));
    EXPECT_EQ(List().SelectedCount(), 0);
}

TEST_F(ResultSelection, the_path_is_joined_from_the_folder_and_name_cells) {
    AddFile(L"\\f", L"a.txt");
    AddFile(L"\\My Documents\\sub", L"b c.txt");
    List().SelectRow(1);
    EXPECT_EQ(SelectedPath(1), L"\\My Documents\\sub\\b c.txt");
    EXPECT_EQ(List().SelectedCount(), 1);
}

TEST_F(ResultSelection, a_file_in_the_root_gets_no_second_separator) {
    List().AddMatch(L"\\a.txt", FileEntry(L"a.txt"));
    List().SelectRow(0);
    EXPECT_EQ(SelectedPath(0), L"\\a.txt");
}

TEST_F(ResultSelection, a_file_without_a_folder_is_its_name_alone) {
    List().AddMatch(L"a.txt", FileEntry(L"a.txt"));
    List().SelectRow(0);
    EXPECT_EQ(SelectedPath(0), L"a.txt");
}

TEST_F(ResultSelection, the_longest_path_comes_back_whole) {
    const std::wstring folder = L"\\" + std::wstring(200, L'f');
    const std::wstring name(57, L'n');
    AddFile(folder, name);
    List().SelectRow(0);
    EXPECT_EQ(SelectedPath(0), folder + L"\\" + name);
}

TEST_F(ResultSelection, cells_that_do_not_fit_in_one_path_give_none) {
    AddFile(L"\\" + std::wstring(200, L'f'), L"a");
    LVITEMW renamed = {};
    std::wstring longName(100, L'n');
    renamed.pszText = longName.data();
    SendMessageW(Handle(), LVM_SETITEMTEXTW, 0, reinterpret_cast<LPARAM>(&renamed));
    List().SelectRow(0);
    EXPECT_EQ(SelectedPath(-1), L"as before");
}

TEST_F(ResultSelection, only_one_row_can_be_selected) {
    AddFile(L"\\f", L"a");
    AddFile(L"\\f", L"b");
    List().SelectRow(0);
    List().SelectRow(1);
    EXPECT_EQ(List().SelectedCount(), 1);
    EXPECT_FALSE(IsRowSelected(Handle(), 0));
    EXPECT_TRUE(IsRowSelected(Handle(), 1));
}

TEST_F(ResultSelection, selecting_the_first_row_of_an_empty_list_does_nothing) {
    List().SelectRow(0);
    EXPECT_EQ(List().SelectedCount(), 0);
    EXPECT_EQ(List().RowCount(), 0);
}

TEST_F(ResultSelection, after_a_clear_nothing_is_selected) {
    AddFile(L"\\f", L"a");
    List().SelectRow(0);
    List().Clear();
    AddFile(L"\\f", L"b");
    EXPECT_EQ(SelectedPath(-1), L"as before");
}
