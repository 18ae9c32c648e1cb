#include "tests/results/result_list_test.h"
#include "tests/support/message_pump.h"

namespace {

// Counts the list's paints.
int paints = 0;

LRESULT CALLBACK CountPaints(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    if (message == WM_PAINT) ++paints;
    return DefSubclassProc(window, message, wParam, lParam);
}

// Colour of a pixel inside the first row's name.
bool ShowsSomething(HWND list) {
    RECT row = {LVIR_LABEL, 0, 0, 0};
    if (!SendMessageW(list, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row))) return false;
    const HDC context = GetDC(list);
    const COLORREF background = GetPixel(context, row.right - 1, row.top + 1);
    bool found = false;
    for (int y = row.top; y < row.bottom && !found; ++y) {
        for (int x = row.left; x < row.left + 60 && !found; ++x)
            found = GetPixel(context, x, y) != background;
    }
    ReleaseDC(list, context);
    return found;
}

}  // namespace

class ResultFilling : public ResultListTest {
  protected:
    void WatchPaints() {
        PumpQueue();
        UpdateWindow(Handle());
        SetWindowSubclass(Handle(), &CountPaints, 1, 0);
        paints = 0;
    }
};

TEST_F(ResultFilling, rows_are_there_during_filling) {
    List().BeginFilling();
    List().Clear();
    AddFile(L"\\f", L"a.txt", 12);
    AddFile(L"\\f", L"b.txt");
    EXPECT_EQ(List().RowCount(), 2);
    EXPECT_EQ(RowNumberOf(Handle(), 1), 1);
    EXPECT_EQ(Cell(0, ResultColumn::Name), L"a.txt");
    EXPECT_EQ(Cell(0, ResultColumn::Size), L"12");
    List().EndFilling();
    EXPECT_EQ(List().RowCount(), 2);
    EXPECT_EQ(Cell(1, ResultColumn::Name), L"b.txt");
}

TEST_F(ResultFilling, nothing_is_drawn_until_filling_ends_and_then_everything_is) {
    AddFile(L"\\f", L"a.txt");
    WatchPaints();
    List().BeginFilling();
    for (int i = 0; i < 50; ++i)
        AddFile(L"\\f", L"WWWWWW");
    PumpQueue();
    UpdateWindow(Handle());
    EXPECT_EQ(paints, 0);
    List().EndFilling();
    UpdateWindow(Handle());
    EXPECT_GE(paints, 1);
    EXPECT_TRUE(ShowsSomething(Handle()));
}

TEST_F(ResultFilling, a_row_added_after_filling_is_drawn) {
    List().BeginFilling();
    List().EndFilling();
    WatchPaints();
    AddFile(L"\\f", L"WWWWWW");
    UpdateWindow(Handle());
    EXPECT_GE(paints, 1);
    EXPECT_TRUE(ShowsSomething(Handle()));
}

TEST_F(ResultFilling, while_filling_the_list_is_redrawn_at_intervals) {
    WatchPaints();
    List().BeginFilling();
    AddFile(L"\\f", L"WWWWWW");
    Sleep(300);
    List().Refresh();
    EXPECT_EQ(paints, 1);
    EXPECT_TRUE(ShowsSomething(Handle()));
    AddFile(L"\\f", L"b.txt");
    List().Refresh();
    EXPECT_EQ(paints, 1) << "it was shown only just now";
    List().EndFilling();
}

TEST_F(ResultFilling, the_first_row_is_shown_sooner_than_all_later_ones) {
    List().LoadIcons();
    WatchPaints();
    List().BeginFilling();
    List().Clear();
    AddFile(L"\\f", L"WWWWWW");
    Sleep(150);
    List().Refresh();
    EXPECT_EQ(paints, 1);
    List().EndFilling();
}

TEST_F(ResultFilling, without_a_new_row_there_is_nothing_to_redraw) {
    WatchPaints();
    List().BeginFilling();
    AddFile(L"\\f", L"a.txt");
    Sleep(300);
    List().Refresh();
    ASSERT_EQ(paints, 1);
    Sleep(600);
    List().Refresh();
    EXPECT_EQ(paints, 1);
    List().EndFilling();
}

TEST_F(ResultFilling, a_refresh_outside_of_filling_does_nothing) {
    AddFile(L"\\f", L"a.txt");
    WatchPaints();
    Sleep(300);
    List().Refresh();
    EXPECT_EQ(paints, 0);
}

TEST_F(ResultFilling, filling_may_begin_and_end_again_and_an_end_without_a_beginning_is_nothing) {
    List().EndFilling();
    for (int round = 0; round < 2; ++round) {
        List().BeginFilling();
        List().BeginFilling();
        List().Clear();
        AddFile(L"\\f", L"a.txt");
        List().EndFilling();
        List().EndFilling();
        WatchPaints();
        InvalidateRect(Handle(), nullptr, TRUE);
        UpdateWindow(Handle());
        EXPECT_GE(paints, 1);
        RemoveWindowSubclass(Handle(), &CountPaints, 1);
    }
    EXPECT_EQ(List().RowCount(), 1);
}
