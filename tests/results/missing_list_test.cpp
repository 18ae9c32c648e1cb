// A result list whose window could not be created.

#include "tests/results/result_list_test.h"
#include "tests/support/message_pump.h"
#include "tests/support/refused_windows.h"

class MissingList : public ResultListTest {
  protected:
    // Neither the list nor the message that tells of it can be created.
    MissingList() {
        const RefusedWindows refusal;
        List();
    }

    // A window that has been drawn and is not asked to draw again.
    void ExpectOthersUndisturbed(void (*doing)(ResultList& missing)) {
        HostWindow other;
        PumpQueue();
        UpdateWindow(other.Handle());
        ASSERT_FALSE(GetUpdateRect(other.Handle(), nullptr, FALSE));
        doing(List());
        EXPECT_FALSE(GetUpdateRect(other.Handle(), nullptr, FALSE));
    }
};

TEST_F(MissingList, it_takes_matches_and_has_no_rows) {
    ASSERT_EQ(Handle(), nullptr);
    AddFile(L"\\folder", L"a.txt", 12);
    EXPECT_EQ(List().RowCount(), 0);
    EXPECT_EQ(List().SelectedCount(), 0);
    List().Clear();
}

TEST_F(MissingList, filling_it_draws_no_other_window) {
    ExpectOthersUndisturbed([](ResultList& missing) {
        missing.BeginFilling();
        missing.EndFilling();
    });
}

TEST_F(MissingList, another_view_draws_no_other_window) {
    ExpectOthersUndisturbed([](ResultList& missing) { missing.SetView(LVS_ICON); });
}
