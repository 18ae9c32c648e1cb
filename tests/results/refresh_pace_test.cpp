#include "results/refresh_pace.h"

#include <gtest/gtest.h>

namespace {

constexpr ULONGLONG Start = 1'000'000;
constexpr bool Rows = true;
constexpr bool NoRows = false;

class RefreshPaceTest : public testing::Test {
  protected:
    RefreshPaceTest() { pace_.Begin(Start); }
    void DrawAt(ULONGLONG begin, ULONGLONG cost, bool hasRows) {
        pace_.Drawn(Start + begin, Start + begin + cost, hasRows);
    }
    [[nodiscard]] bool IsDueAt(ULONGLONG time, bool hasRows) const {
        return pace_.IsDue(Start + time, hasRows);
    }

    RefreshPace pace_;
};

}  // namespace

TEST_F(RefreshPaceTest, the_first_rows_are_shown_after_50_ms) {
    EXPECT_FALSE(IsDueAt(0, Rows));
    EXPECT_FALSE(IsDueAt(49, Rows));
    EXPECT_TRUE(IsDueAt(50, Rows));
}

TEST_F(RefreshPaceTest, the_emptied_list_is_shown_after_250_ms) {
    EXPECT_FALSE(IsDueAt(50, NoRows));
    EXPECT_FALSE(IsDueAt(249, NoRows));
    EXPECT_TRUE(IsDueAt(250, NoRows));
}

TEST_F(RefreshPaceTest, the_first_row_waits_for_no_earlier_drawing_of_the_empty_list) {
    DrawAt(250, 40, NoRows);
    EXPECT_FALSE(IsDueAt(291, NoRows));
    EXPECT_TRUE(IsDueAt(291, Rows));
}

TEST_F(RefreshPaceTest, later_rows_wait_250_ms_after_the_end_of_the_last_drawing) {
    DrawAt(50, 10, Rows);
    EXPECT_FALSE(IsDueAt(60, Rows));
    EXPECT_FALSE(IsDueAt(309, Rows));
    EXPECT_TRUE(IsDueAt(310, Rows));
}

TEST_F(RefreshPaceTest, a_dear_drawing_is_followed_by_a_pause_of_ten_times_its_cost) {
    DrawAt(50, 100, Rows);
    EXPECT_FALSE(IsDueAt(1149, Rows));
    EXPECT_TRUE(IsDueAt(1150, Rows));
}

TEST_F(RefreshPaceTest, the_next_search_begins_anew) {
    DrawAt(50, 100, Rows);
    pace_.Begin(Start + 200);
    EXPECT_FALSE(IsDueAt(249, Rows));
    EXPECT_TRUE(IsDueAt(250, Rows));
}
