// Emptying a list, in steps where it is long.

#include <random>

#include "tests/results/result_list_test.h"

namespace {

constexpr int LongList = 12'000;
constexpr int FarDown = 100'000;

}  // namespace

class ResultClearing : public ResultListTest {
  protected:
    // As in a search: nothing is drawn until the filling is ended.
    void AddFiles(int count) {
        List().BeginFilling();
        for (int i = 0; i < count; ++i)
            AddFile(L"\\f", L"n" + std::to_wstring(i));
    }
    [[nodiscard]] LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageW(Handle(), message, wParam, lParam);
    }
    int ClearInSteps() {
        int steps = 1;
        while (List().ClearSome())
            ++steps;
        return steps;
    }
    // What a list shows that was never filled before.
    void ExpectFreshWith(int count) {
        ASSERT_EQ(List().RowCount(), count);
        for (int row = 0; row < count; ++row) {
            ASSERT_EQ(RowNumberOf(Handle(), row), row);
            ASSERT_EQ(Cell(row, ResultColumn::Name), L"n" + std::to_wstring(row));
        }
        EXPECT_EQ(List().SelectedCount(), 0);
        EXPECT_EQ(Ask(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED), -1);
        EXPECT_EQ(Ask(LVM_GETTOPINDEX), 0);
    }
};

TEST_F(ResultClearing, a_short_list_is_cleared_in_one_step) {
    AddFiles(100);
    EXPECT_FALSE(List().ClearSome());
    EXPECT_EQ(List().RowCount(), 0);
}

TEST_F(ResultClearing, an_empty_list_needs_one_step) {
    EXPECT_FALSE(List().ClearSome());
    EXPECT_TRUE(IsWindowEnabled(Handle()));
}

TEST_F(ResultClearing, a_long_list_loses_rows_with_each_step_and_all_of_them_in_the_end) {
    AddFiles(LongList);
    int left = List().RowCount();
    int steps = 0;
    while (List().ClearSome()) {
        ASSERT_LT(List().RowCount(), left);
        left = List().RowCount();
        ++steps;
    }
    EXPECT_GE(steps, 1);
    EXPECT_EQ(List().RowCount(), 0);
}

TEST_F(ResultClearing, between_the_steps_the_list_takes_no_input) {
    AddFiles(LongList);
    ASSERT_TRUE(List().ClearSome());
    EXPECT_FALSE(IsWindowEnabled(Handle()));
    ClearInSteps();
    EXPECT_TRUE(IsWindowEnabled(Handle()));
}

TEST_F(ResultClearing, the_rows_after_a_clear_in_steps_are_numbered_from_0) {
    AddFiles(LongList);
    ASSERT_GT(ClearInSteps(), 1);
    AddFiles(3);
    ExpectFreshWith(3);
}

TEST_F(ResultClearing, a_clear_at_once_empties_a_long_list_as_well) {
    AddFiles(LongList);
    List().Clear();
    EXPECT_EQ(List().RowCount(), 0);
    EXPECT_TRUE(IsWindowEnabled(Handle()));
}

TEST_F(ResultClearing, whatever_was_done_to_the_list_it_is_like_new_after_its_clear) {
    std::mt19937 random(20010415);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    for (int round = 0; round < 8; ++round) {
        SCOPED_TRACE(round);
        AddFiles(1 + below(LongList));
        List().EndFilling();
        NMLISTVIEW click{};
        click.hdr = {Handle(), static_cast<UINT_PTR>(GetDlgCtrlID(Handle())),
                     static_cast<UINT>(LVN_COLUMNCLICK)};
        click.iItem = -1;
        click.iSubItem = below(ResultColumnCount);
        if (below(2) == 0) SendMessageW(GetParent(Handle()), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&click));
        for (int i = below(20); i > 0 && List().RowCount() > 1; --i)
            List().DeleteRow(below(List().RowCount()));
        List().SelectRow(below(List().RowCount()));
        if (below(2) == 0) SendMessageW(Handle(), LVM_SCROLL, 0, FarDown);
        List().BeginFilling();
        ClearInSteps();
        AddFiles(60);
        List().EndFilling();
        ExpectFreshWith(60);
        List().Clear();
    }
}
