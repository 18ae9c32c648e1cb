// What is asked how often: the shell while the list fills, the list's cells while it is sorted.

#include "platform/windows_ce.h"
#include "tests/results/registered_types.h"
#include "tests/results/result_list_test.h"

namespace {

std::vector<UINT> shellQuestions;

DWORD_PTR CountQuestion(const wchar_t*, DWORD, SHFILEINFOW* info, UINT, UINT flags) {
    shellQuestions.push_back(flags);
    lstrcpyW(info->szTypeName, L"Kind");
    if ((flags & SHGFI_ICON) != 0) info->hIcon = CopyIcon(LoadIconW(nullptr, IDI_APPLICATION));
    return 1;
}

// What a list was sent, for as long as the object lives.
class WatchedList {
  public:
    explicit WatchedList(HWND listView) : list_(listView) {
        SetWindowSubclass(list_, &Watch, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~WatchedList() { RemoveWindowSubclass(list_, &Watch, 1); }
    WatchedList(const WatchedList&) = delete;
    WatchedList& operator=(const WatchedList&) = delete;

    int cellsRead = 0;
    int rowsLookedFor = 0;
    std::vector<HCURSOR> cursorsOfSorts;

  private:
    static LRESULT CALLBACK Watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                  DWORD_PTR object) {
        auto& self = *reinterpret_cast<WatchedList*>(object);
        if (message == LVM_GETITEMTEXTW) ++self.cellsRead;
        if (message == LVM_FINDITEMW) ++self.rowsLookedFor;
        if (message == LVM_SORTITEMS || message == LVM_GETITEMTEXTW) {
            const HCURSOR cursor = GetCursor();
            if (self.cursorsOfSorts.empty() || self.cursorsOfSorts.back() != cursor)
                self.cursorsOfSorts.push_back(cursor);
        }
        return DefSubclassProc(window, message, wParam, lParam);
    }

    HWND list_;
};

// What the list has reported to its parent, for as long as the object lives.
class WatchedParent {
  public:
    explicit WatchedParent(HWND listView) : parent_(GetParent(listView)) {
        SetWindowSubclass(parent_, &Watch, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~WatchedParent() { RemoveWindowSubclass(parent_, &Watch, 1); }
    WatchedParent(const WatchedParent&) = delete;
    WatchedParent& operator=(const WatchedParent&) = delete;

    std::vector<UINT> reports;

  private:
    static LRESULT CALLBACK Watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                  DWORD_PTR object) {
        auto& self = *reinterpret_cast<WatchedParent*>(object);
        if (message == WM_NOTIFY) self.reports.push_back(reinterpret_cast<const NMHDR*>(lParam)->code);
        return DefSubclassProc(window, message, wParam, lParam);
    }

    HWND parent_;
};

}  // namespace

class ResultCosts : public ResultListTest {
  protected:
    ResultCosts() {
        shellQuestions.clear();
        types_.Add(L".qsaa", L"qsnote");
        types_.Add(L".qsab", L"qsnote");
    }
    void ClickOnHeading(int column) {
        NMLISTVIEW clicked = {};
        clicked.hdr = {Handle(), static_cast<UINT_PTR>(GetDlgCtrlID(Handle())),
                       static_cast<UINT>(LVN_COLUMNCLICK)};
        clicked.iItem = -1;
        clicked.iSubItem = column;
        SendMessageW(GetParent(Handle()), WM_NOTIFY, clicked.hdr.idFrom, reinterpret_cast<LPARAM>(&clicked));
    }

    RegisteredTypes types_;
    Replaced<decltype(ce::shellCalls.getFileInfo)> shell_{ce::shellCalls.getFileInfo, &CountQuestion};
};

TEST_F(ResultCosts, a_thousand_rows_ask_once_for_each_extensions_name_and_once_for_each_icon_of_a_type) {
    for (int i = 0; i < 1000; ++i)
        AddFile(i % 3 == 0 ? L"\\f" : L"\\g", std::to_wstring(i) + (i % 2 == 0 ? L".qsaa" : L".QSAB"));
    ASSERT_EQ(List().RowCount(), 1000);
    EXPECT_EQ(Cell(999, ResultColumn::Type), L"Kind");
    constexpr UINT LargeIcon = SHGFI_ICON | SHGFI_USEFILEATTRIBUTES;
    EXPECT_EQ(shellQuestions,
              (std::vector<UINT>{LargeIcon, LargeIcon | SHGFI_SMALLICON, SHGFI_TYPENAME, SHGFI_TYPENAME}));
}

TEST_F(ResultCosts, a_second_search_asks_nothing_that_the_first_has_asked) {
    AddFile(L"\\f", L"a.qsaa");
    List().Clear();
    shellQuestions.clear();
    AddFile(L"\\g", L"b.qsaa");
    EXPECT_EQ(Cell(0, ResultColumn::Type), L"Kind");
    EXPECT_TRUE(shellQuestions.empty());
}

TEST_F(ResultCosts, a_row_is_reported_to_the_window_by_its_insertion_and_its_name_and_no_other_cell) {
    AddFile(L"\\f", L"first.txt");
    List().BeginFilling();
    const WatchedParent watched(Handle());
    for (int i = 0; i < 50; ++i)
        AddFile(L"\\f", std::to_wstring(i) + L".txt", static_cast<DWORD>(i));
    ASSERT_EQ(List().RowCount(), 51);
    std::vector<UINT> expected;
    for (int i = 0; i < 50; ++i)
        expected.insert(expected.end(), {LVN_INSERTITEM, LVN_ITEMCHANGING, LVN_ITEMCHANGED});
    EXPECT_EQ(watched.reports, expected);
}

TEST_F(ResultCosts, a_clear_is_reported_to_the_window_once_and_no_row_of_it) {
    for (int i = 0; i < 50; ++i)
        AddFile(L"\\f", std::to_wstring(i) + L".txt");
    List().BeginFilling();
    const WatchedParent watched(Handle());
    List().Clear();
    ASSERT_EQ(List().RowCount(), 0);
    EXPECT_EQ(watched.reports, std::vector<UINT>(1, LVN_DELETEALLITEMS));
}

TEST_F(ResultCosts, a_sort_reads_each_rows_key_once_and_looks_for_no_row) {
    for (int i = 0; i < 500; ++i)
        AddFile(L"\\f", std::to_wstring(i * 77 % 500) + L".txt", static_cast<DWORD>(i));
    for (int column = 0; column < ResultColumnCount; ++column) {
        SCOPED_TRACE(column);
        const WatchedList watched(Handle());
        ClickOnHeading(column);
        EXPECT_EQ(watched.cellsRead, 500);
        EXPECT_EQ(watched.rowsLookedFor, 0);
    }
}

TEST_F(ResultCosts, the_wait_cursor_stands_for_the_whole_sort_and_the_arrow_afterwards) {
    AddFile(L"\\f", L"a.txt");
    AddFile(L"\\f", L"b.txt");
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    const WatchedList watched(Handle());
    ClickOnHeading(0);
    EXPECT_EQ(watched.cursorsOfSorts, (std::vector<HCURSOR>{LoadCursorW(nullptr, IDC_WAIT)}));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}
