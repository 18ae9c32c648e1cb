#include "platform/desktop/shell_files.h"
#include "tests/results/registered_types.h"
#include "tests/results/result_list_test.h"
#include "tests/support/temp_tree.h"

using Cells = std::vector<std::wstring>;

class ResultRows : public ResultListTest {
  protected:
    void AddWritten(const FILETIME& lastWrite) {
        WIN32_FIND_DATAW entry = FileEntry(L"a.txt");
        entry.ftLastWriteTime = lastWrite;
        List().AddMatch(L"\\f\\a.txt", entry);
    }
    std::wstring SizeCell(DWORD size) {
        const int row = List().RowCount();
        AddFile(L"\\f", L"a.txt", size);
        return Cell(row, ResultColumn::Size);
    }
};

TEST_F(ResultRows, a_file_becomes_a_row_of_five_texts) {
    AddFile(L"\\My Documents", L"report.txt", 2047);
    ASSERT_EQ(List().RowCount(), 1);
    EXPECT_EQ(CellsOf(Handle(), 0),
              (Cells{L"report.txt", L"\\My Documents", L"1K", L"Kind", L"02/07/15 09:05:30"}));
}

TEST_F(ResultRows, have_the_type_that_the_shell_tells_of_that_very_path) {
    RegisteredTypes types;
    // Of one type for the table, which reads a value of that name; for the shell, of two.
    for (const std::wstring extension : {L".qsda", L".qsdb"}) {
        types.Add(extension, L"qs" + extension);
        types.Add(L"qs" + extension, L"Kind of " + extension);
        RegSetKeyValueW(HKEY_CLASSES_ROOT, extension.c_str(), L"Default", REG_SZ, L"qs.qsda", 16);
    }
    const Replaced<decltype(ce::shellCalls.getFileInfo)> shell(ce::shellCalls.getFileInfo, &GetShellFileInfo);
    TempTree tree;
    for (const wchar_t* name : {L"a.qsda", L"b.qsdb", L"c.xyz", L"D.XYZ", L"e.Xyz", L"f.QSDB"}) {
        const std::wstring path = tree.AddFile(name);
        AddFile(tree.Root(), name);
        SHFILEINFOW info = {};
        SHGetFileInfoW(path.c_str(), 0, &info, sizeof info, SHGFI_TYPENAME);
        EXPECT_EQ(Cell(List().RowCount() - 1, ResultColumn::Type), info.szTypeName);
    }
}

TEST_F(ResultRows, the_texts_are_the_same_in_japanese) {
    UseJapanese();
    AddFile(L"\\My Documents", L"report.txt", 2047);
    EXPECT_EQ(CellsOf(Handle(), 0),
              (Cells{L"report.txt", L"\\My Documents", L"1K", L"Kind", L"02/07/15 09:05:30"}));
}

TEST_F(ResultRows, a_folder_has_no_size_but_a_time) {
    WIN32_FIND_DATAW folder = FolderEntry(L"sub");
    folder.nFileSizeLow = 4096;
    List().AddMatch(L"\\f\\sub", folder);
    EXPECT_EQ(CellsOf(Handle(), 0), (Cells{L"sub", L"\\f", L"", L"Kind", L"02/07/15 09:05:30"}));
}

TEST_F(ResultRows, a_folder_with_further_attributes_has_no_size_either) {
    WIN32_FIND_DATAW folder = FolderEntry(L"sub");
    folder.dwFileAttributes |= FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY;
    List().AddMatch(L"\\f\\sub", folder);
    EXPECT_EQ(Cell(0, ResultColumn::Size), L"");
}

TEST_F(ResultRows, a_file_in_the_root_shows_the_separator_as_its_folder) {
    List().AddMatch(L"\\a.txt", FileEntry(L"a.txt"));
    EXPECT_EQ(Cell(0, ResultColumn::Folder), L"\\");
}

TEST_F(ResultRows, the_name_is_the_entrys_own_and_not_cut_from_the_path) {
    List().AddMatch(L"\\f\\other.txt", FileEntry(L"a.txt"));
    EXPECT_EQ(Cell(0, ResultColumn::Name), L"a.txt");
}

TEST_F(ResultRows, sizes_show_bytes_then_kilobytes_then_megabytes) {
    EXPECT_EQ(SizeCell(0), L"0");
    EXPECT_EQ(SizeCell(1023), L"1023");
    EXPECT_EQ(SizeCell(1024), L"1K");
    EXPECT_EQ(SizeCell(1048575), L"1023K");
    EXPECT_EQ(SizeCell(1048576), L"1M");
    EXPECT_EQ(SizeCell(5767168), L"5M");
}

TEST_F(ResultRows, the_high_word_of_a_size_is_ignored_and_2_gigabytes_read_as_negative) {
    WIN32_FIND_DATAW huge = FileEntry(L"a.bin", 5);
    huge.nFileSizeHigh = 1;
    List().AddMatch(L"\\f\\a.bin", huge);
    EXPECT_EQ(Cell(0, ResultColumn::Size), L"5");
    EXPECT_EQ(SizeCell(0x80000000), L"-2147483648");
}

TEST_F(ResultRows, the_modified_cell_shows_local_time) {
    AddWritten(FileTimeOf(2026, 2, 28, 23, 59, 59));
    EXPECT_EQ(Cell(0, ResultColumn::Modified), L"26/03/01 08:59:59");
}

TEST_F(ResultRows, west_of_utc_the_first_second_of_a_day_belongs_to_the_day_before) {
    const Replaced<decltype(ce::systemCalls.fileTimeToLocalFileTime)> fiveHoursBehind(
        ce::systemCalls.fileTimeToLocalFileTime, [](const FILETIME* utc, FILETIME* local) -> BOOL {
            ULARGE_INTEGER time;
            time.LowPart = utc->dwLowDateTime;
            time.HighPart = utc->dwHighDateTime;
            time.QuadPart -= 5ULL * 60 * 60 * 10000000;
            *local = {time.LowPart, time.HighPart};
            return TRUE;
        });
    AddWritten(FileTimeOf(2026, 1, 1, 0, 0, 1));
    EXPECT_EQ(Cell(0, ResultColumn::Modified), L"25/12/31 19:00:01");
}

TEST_F(ResultRows, a_time_that_cannot_be_converted_still_gives_a_row) {
    const Replaced<decltype(ce::systemCalls.fileTimeToLocalFileTime)> failing(
        ce::systemCalls.fileTimeToLocalFileTime, [](const FILETIME*, FILETIME*) -> BOOL { return FALSE; });
    AddFile(L"\\f", L"a.txt");
    EXPECT_EQ(List().RowCount(), 1);
    EXPECT_EQ(Cell(0, ResultColumn::Name), L"a.txt");
}

TEST_F(ResultRows, rows_are_numbered_in_the_order_of_finding) {
    for (const wchar_t* name : {L"c", L"a", L"b"})
        AddFile(L"\\f", name);
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(RowNumberOf(Handle(), row), row);
    EXPECT_EQ(Cell(0, ResultColumn::Name), L"c");
    EXPECT_EQ(Cell(1, ResultColumn::Name), L"a");
    EXPECT_EQ(Cell(2, ResultColumn::Name), L"b");
}

TEST_F(ResultRows, after_the_second_of_three_is_deleted_the_others_keep_the_numbers_0_and_2) {
    for (const wchar_t* name : {L"a", L"b", L"c"})
        AddFile(L"\\f", name);
    SendMessageW(Handle(), LVM_DELETEITEM, 1, 0);
    ASSERT_EQ(List().RowCount(), 2);
    EXPECT_EQ(RowNumberOf(Handle(), 0), 0);
    EXPECT_EQ(RowNumberOf(Handle(), 1), 2);
}

TEST_F(ResultRows, after_a_clear_the_numbers_start_again_at_0) {
    AddFile(L"\\f", L"a");
    AddFile(L"\\f", L"b");
    List().Clear();
    EXPECT_EQ(List().RowCount(), 0);
    AddFile(L"\\f", L"c");
    ASSERT_EQ(List().RowCount(), 1);
    EXPECT_EQ(RowNumberOf(Handle(), 0), 0);
    EXPECT_EQ(Cell(0, ResultColumn::Name), L"c");
}

TEST_F(ResultRows, a_name_of_259_units_and_an_unpaired_surrogate_are_kept_unit_by_unit) {
    const std::wstring longName(259, L'n');
    const std::wstring oddName = L"a\xD800z";
    List().AddMatch((L"\\" + longName).substr(0, 259).c_str(), FileEntry(longName));
    List().AddMatch((L"\\" + oddName).c_str(), FileEntry(oddName));
    EXPECT_EQ(Cell(0, ResultColumn::Name), longName);
    EXPECT_EQ(Cell(1, ResultColumn::Name), oddName);
}
