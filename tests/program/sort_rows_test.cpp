// Sorting the rows of a real search, by the headings and by the keyboard.

#include "tests/program/results_test.h"
#include "tests/support/user_input.h"

class SortRows : public ResultsTest {
  protected:
    // Both "c.qsc" and "d.qsa" show 1K; the second lies in a folder below and is found after the others.
    void SetUp() override {
        ResultsTest::SetUp();
        StartFresh();
        Program().BringForward();
        Add(L"b.qsb", 2097152, TimeOf(1999, 12, 31, 23, 59, 59));
        Add(L"A.qsa", 999, TimeOf(2002, 7, 15, 9, 5, 30));
        Add(L"c.qsc", 1500, TimeOf(2002, 7, 15, 9, 5, 31));
        Add(L"sub\\d.qsa", 2000, TimeOf(2000, 1, 1));
        ASSERT_EQ(Sorted(Find(L"*.qs?", true)), (Names{L"A.qsa", L"b.qsb", L"c.qsc", L"d.qsa"}));
    }
    void Add(const std::wstring& name, long long size, const SYSTEMTIME& time) {
        Tree().AddFileOfSize(Path(name).substr(1), size);
        Tree().SetLocalTime(Path(name).substr(1), time);
    }
    void ExpectOrder(const std::string& what, const Names& names) {
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().RowNames() == names; }))
            << what << ": " << testing::PrintToString(Program().RowNames());
    }
};

TEST_F(SortRows, by_every_column_in_both_directions_keeping_equal_rows_in_their_order) {
    struct Step {
        const char* what;
        int column;
        Names names;
    };
    // Each order is that of the one before where the cells are equal.
    for (const Step& step : {
             // The list counts as sorted by name, upwards: the first click turns it round.
             Step{"name down", NameColumn, {L"d.qsa", L"c.qsc", L"b.qsb", L"A.qsa"}},
             Step{"name up", NameColumn, {L"A.qsa", L"b.qsb", L"c.qsc", L"d.qsa"}},
             Step{"folder up", FolderColumn, {L"A.qsa", L"b.qsb", L"c.qsc", L"d.qsa"}},
             Step{"folder down", FolderColumn, {L"d.qsa", L"A.qsa", L"b.qsb", L"c.qsc"}},
             Step{"size up", SizeColumn, {L"A.qsa", L"d.qsa", L"c.qsc", L"b.qsb"}},
             Step{"size down", SizeColumn, {L"b.qsb", L"d.qsa", L"c.qsc", L"A.qsa"}},
             Step{"type up", TypeColumn, {L"d.qsa", L"A.qsa", L"b.qsb", L"c.qsc"}},
             Step{"type down", TypeColumn, {L"c.qsc", L"b.qsb", L"d.qsa", L"A.qsa"}},
             // By its text: the year 99 comes after 02.
             Step{"modified up", ModifiedColumn, {L"d.qsa", L"A.qsa", L"c.qsc", L"b.qsb"}},
             Step{"modified down", ModifiedColumn, {L"b.qsb", L"c.qsc", L"A.qsa", L"d.qsa"}},
             Step{"name up again", NameColumn, {L"A.qsa", L"b.qsb", L"c.qsc", L"d.qsa"}},
         }) {
        ClickHeading(step.column);
        ExpectOrder(step.what, step.names);
    }
}

TEST_F(SortRows, by_the_keyboard_as_by_the_headings) {
    struct Step {
        WORD key;
        Names names;
    };
    ASSERT_TRUE(Program().ListHasFocus());
    for (const Step& step : {Step{'1', {L"d.qsa", L"c.qsc", L"b.qsb", L"A.qsa"}},
                             Step{'1', {L"A.qsa", L"b.qsb", L"c.qsc", L"d.qsa"}},
                             Step{'2', {L"A.qsa", L"b.qsb", L"c.qsc", L"d.qsa"}},
                             Step{'2', {L"d.qsa", L"A.qsa", L"b.qsb", L"c.qsc"}},
                             Step{'3', {L"A.qsa", L"d.qsa", L"c.qsc", L"b.qsb"}},
                             Step{'4', {L"A.qsa", L"d.qsa", L"b.qsb", L"c.qsc"}},
                             Step{'5', {L"d.qsa", L"A.qsa", L"c.qsc", L"b.qsb"}}}) {
        PressKey(step.key, {VK_CONTROL});
        ExpectOrder(std::string("Ctrl+") + static_cast<char>(step.key), step.names);
    }
}

TEST_F(SortRows, by_size_puts_a_folder_among_the_smallest) {
    Find(L"", true);
    PressKey('1', {VK_CONTROL});
    PressKey('1', {VK_CONTROL});
    PressKey('3', {VK_CONTROL});
    ExpectOrder("size up", {L"sub", L"A.qsa", L"c.qsc", L"d.qsa", L"b.qsb"});
}

TEST_F(SortRows, is_not_done_by_a_search_but_its_column_and_direction_are_remembered) {
    const Names found = Program().RowNames();
    ClickHeading(SizeColumn);
    ExpectOrder("size up", {L"A.qsa", L"c.qsc", L"d.qsa", L"b.qsb"});
    EXPECT_EQ(Find(L"*.qs?", true), found);
    ClickHeading(SizeColumn);
    ExpectOrder("size down", {L"b.qsb", L"c.qsc", L"d.qsa", L"A.qsa"});
}

TEST_F(SortRows, leaves_the_rows_whole_with_their_numbers_and_the_selection) {
    SelectRow(L"c.qsc");
    const RowState before = Row(L"c.qsc");
    ClickHeading(SizeColumn);
    ClickHeading(SizeColumn);
    const RowState after = Row(L"c.qsc");
    EXPECT_TRUE(after.Selected());
    EXPECT_EQ(after.parameter, before.parameter);
    EXPECT_EQ(after.folder, Folder());
    EXPECT_EQ(after.size, L"1K");
    EXPECT_EQ(after.type, L"Gamma kind");
    EXPECT_EQ(after.modified, L"02/07/15 09:05:31");
}
