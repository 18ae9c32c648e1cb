#include <gtest/gtest.h>

#include "platform/desktop/window_placement.h"

namespace {

void ExpectRectangle(const RECT& actual, int left, int top, int right, int bottom) {
    EXPECT_EQ(actual.left, left);
    EXPECT_EQ(actual.top, top);
    EXPECT_EQ(actual.right, right);
    EXPECT_EQ(actual.bottom, bottom);
}

TEST(Screens, up_to_800_by_480_are_a_handheld_s_either_way_round) {
    EXPECT_TRUE(ce::IsHandheldScreen(240, 320));
    EXPECT_TRUE(ce::IsHandheldScreen(640, 240));
    EXPECT_TRUE(ce::IsHandheldScreen(800, 480));
    EXPECT_TRUE(ce::IsHandheldScreen(480, 800));
    EXPECT_FALSE(ce::IsHandheldScreen(801, 480));
    EXPECT_FALSE(ce::IsHandheldScreen(800, 481));
    EXPECT_FALSE(ce::IsHandheldScreen(600, 600));
    EXPECT_FALSE(ce::IsHandheldScreen(1920, 1080));
}

TEST(Screens, upright_or_square_and_up_to_320_wide_are_a_pocket_pc_s) {
    EXPECT_TRUE(ce::IsPocketScreen(240, 320));
    EXPECT_TRUE(ce::IsPocketScreen(320, 320));
    EXPECT_TRUE(ce::IsPocketScreen(240, 240));
    EXPECT_FALSE(ce::IsPocketScreen(321, 480));
    EXPECT_FALSE(ce::IsPocketScreen(320, 240));
    EXPECT_FALSE(ce::IsPocketScreen(640, 240));
}

TEST(UsableArea, is_the_work_area_that_the_system_reports) {
    ExpectRectangle(ce::UsableArea(1024, 768, RECT{0, 0, 1024, 740}), 0, 0, 1024, 740);
    ExpectRectangle(ce::UsableArea(240, 320, RECT{0, 26, 240, 294}), 0, 26, 240, 294);
}

TEST(UsableArea, is_the_whole_screen_when_the_report_is_empty) {
    ExpectRectangle(ce::UsableArea(240, 320, RECT{0, 0, 0, 0}), 0, 0, 240, 320);
    ExpectRectangle(ce::UsableArea(240, 320, RECT{10, 10, 240, 10}), 0, 0, 240, 320);
}

TEST(UsableArea, is_the_whole_screen_when_the_report_reaches_beyond_it) {
    ExpectRectangle(ce::UsableArea(240, 320, RECT{0, 0, 640, 240}), 0, 0, 240, 320);
    ExpectRectangle(ce::UsableArea(640, 240, RECT{0, 0, 240, 320}), 0, 0, 640, 240);
    ExpectRectangle(ce::UsableArea(640, 240, RECT{-1, 0, 100, 100}), 0, 0, 640, 240);
    ExpectRectangle(ce::UsableArea(640, 240, RECT{0, -1, 100, 100}), 0, 0, 640, 240);
}

TEST(TopLevelPlacement, fills_the_area_of_a_handheld_exactly) {
    ExpectRectangle(ce::TopLevelPlacement(true, RECT{0, 0, 240, 320}, {6, 25}), 0, 0, 240, 320);
    ExpectRectangle(ce::TopLevelPlacement(true, RECT{0, 26, 240, 294}, {6, 25}), 0, 26, 240, 294);
    ExpectRectangle(ce::TopLevelPlacement(true, RECT{0, 0, 640, 240}, {6, 25}), 0, 0, 640, 240);
}

TEST(TopLevelPlacement, centres_a_client_area_of_360_by_480_with_its_frame_on_a_large_screen) {
    // 360 + 6 by 480 + 25 in 1024 x 740: left (1024 - 366) / 2 = 329, top (740 - 505) / 2 = 117.
    ExpectRectangle(ce::TopLevelPlacement(false, RECT{0, 0, 1024, 740}, {6, 25}), 329, 117, 695, 622);
    // The same beside a bar of 100 pixels at the left.
    ExpectRectangle(ce::TopLevelPlacement(false, RECT{100, 0, 1124, 740}, {6, 25}), 429, 117, 795, 622);
}

TEST(TopLevelPlacement, is_cut_to_a_screen_that_is_too_low) {
    ExpectRectangle(ce::TopLevelPlacement(false, RECT{0, 0, 1024, 500}, {6, 25}), 329, 0, 695, 500);
}

TEST(DropDownPlacement, opens_below_its_anchor_where_there_is_room) {
    ExpectRectangle(ce::DropDownPlacement({10, 60, 90, 80}, 200, 160, {0, 0, 240, 320}), 10, 80, 210, 240);
    ExpectRectangle(ce::DropDownPlacement({10, 60, 90, 80}, 200, 240, {0, 0, 240, 320}), 10, 80, 210, 320);
}

TEST(DropDownPlacement, moves_to_the_left_as_far_as_it_has_to) {
    ExpectRectangle(ce::DropDownPlacement({90, 60, 190, 80}, 200, 160, {0, 0, 240, 320}), 40, 80, 240, 240);
    ExpectRectangle(ce::DropDownPlacement({90, 60, 190, 80}, 200, 160, {0, 0, 300, 320}), 90, 80, 290, 240);
}

TEST(DropDownPlacement, opens_above_where_there_is_no_room_below) {
    ExpectRectangle(ce::DropDownPlacement({10, 200, 90, 220}, 200, 160, {0, 0, 240, 320}), 10, 40, 210, 200);
    // One pixel more than there is above: over the anchor, at the lower edge.
    ExpectRectangle(ce::DropDownPlacement({10, 200, 90, 220}, 200, 201, {0, 0, 240, 320}), 10, 119, 210, 320);
}

TEST(DropDownPlacement, opens_on_the_right_where_there_is_room_neither_below_nor_above) {
    ExpectRectangle(ce::DropDownPlacement({10, 100, 90, 120}, 200, 160, {0, 0, 640, 240}), 90, 80, 290, 240);
}

TEST(DropDownPlacement, covers_its_anchor_where_there_is_room_on_no_side) {
    ExpectRectangle(ce::DropDownPlacement({10, 100, 90, 120}, 200, 160, {0, 0, 240, 240}), 10, 80, 210, 240);
}

TEST(DropDownPlacement, begins_at_the_corner_of_an_area_that_is_too_small) {
    ExpectRectangle(ce::DropDownPlacement({10, 100, 90, 120}, 300, 260, {0, 26, 240, 240}), 0, 26, 300, 286);
}

}  // namespace
