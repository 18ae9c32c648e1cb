#include "framework/layout.h"

#include <gtest/gtest.h>

namespace {

void ExpectPoint(const POINT& corner, LONG x, LONG y) {
    EXPECT_EQ(corner.x, x);
    EXPECT_EQ(corner.y, y);
}

TEST(Centring, without_a_parent_is_on_the_screen) {
    // (240 - 100) / 2 and (320 - 60) / 2
    ExpectPoint(CentredPosition(100, 60, nullptr, 240, 320), 70, 130);
    // (640 - 100) / 2 and (240 - 60) / 2
    ExpectPoint(CentredPosition(100, 60, nullptr, 640, 240), 270, 90);
}

TEST(Centring, without_a_parent_takes_no_heed_of_the_input_panel) {
    // (320 - 250) / 2
    ExpectPoint(CentredPosition(200, 250, nullptr, 240, 320), 20, 35);
}

TEST(Centring, is_on_the_parent_s_rectangle) {
    const RECT parent{100, 20, 400, 220};
    // 100 + (300 - 101) / 2 = 199 and 20 + (200 - 51) / 2 = 94
    ExpectPoint(CentredPosition(101, 51, &parent, 640, 240), 199, 94);
}

TEST(Centring, on_a_portrait_screen_is_above_the_bottom_106_pixels) {
    const RECT parent{0, 26, 240, 320};
    // The space ends at 320 - 106 = 214: 26 + (188 - 60) / 2 = 90
    ExpectPoint(CentredPosition(120, 60, &parent, 240, 320), 60, 90);
}

TEST(Centring, keeps_a_parent_that_ends_above_the_input_panel) {
    const RECT above{0, 26, 240, 200};
    // 26 + (174 - 60) / 2 = 83
    ExpectPoint(CentredPosition(120, 60, &above, 240, 320), 60, 83);
    const RECT touching{0, 26, 240, 214};
    ExpectPoint(CentredPosition(120, 60, &touching, 240, 320), 60, 90);
}

TEST(Centring, cuts_a_parent_one_pixel_into_the_input_panel) {
    const RECT parent{0, 25, 240, 215};
    // 25 + (214 - 25 - 60) / 2 = 25 + 64; the whole parent would give 25 + 65
    ExpectPoint(CentredPosition(120, 60, &parent, 240, 320), 60, 89);
}

TEST(Centring, minds_the_input_panel_only_up_to_a_width_of_240) {
    const RECT parent{0, 20, 240, 320};
    // 20 + (300 - 60) / 2 = 140 against 20 + (194 - 60) / 2 = 87
    ExpectPoint(CentredPosition(120, 60, &parent, 241, 320), 60, 140);
    ExpectPoint(CentredPosition(120, 60, &parent, 240, 320), 60, 87);
    ExpectPoint(CentredPosition(120, 60, &parent, 176, 320), 56, 87);  // held on the screen: 176 - 120
}

TEST(Centring, divides_a_negative_difference_towards_0) {
    const RECT parent{50, 100, 60, 111};
    // 50 + (10 - 21) / 2 = 50 - 5 = 45 and 100 + (11 - 20) / 2 = 100 - 4 = 96
    ExpectPoint(CentredPosition(21, 20, &parent, 640, 480), 45, 96);
}

TEST(Centring, holds_the_right_and_bottom_edges_on_the_screen) {
    const RECT parent{500, 200, 640, 240};
    // 500 + (140 - 200) / 2 = 470, which would end at 670; 200 + (40 - 100) / 2 = 170, which would end at 270
    ExpectPoint(CentredPosition(200, 100, &parent, 640, 240), 440, 140);
}

TEST(Centring, leaves_edges_alone_that_just_reach_the_screen_s) {
    const RECT parent{540, 190, 640, 240};
    ExpectPoint(CentredPosition(100, 50, &parent, 640, 240), 540, 190);
}

TEST(Centring, raises_negative_places_to_0) {
    const RECT parent{-100, -80, 40, 20};
    // -100 + (140 - 100) / 2 = -80 and -80 + (100 - 60) / 2 = -60
    ExpectPoint(CentredPosition(100, 60, &parent, 640, 240), 0, 0);
}

TEST(Centring, puts_a_dialog_larger_than_the_screen_at_0) {
    ExpectPoint(CentredPosition(300, 400, nullptr, 240, 320), 0, 0);
    const RECT parent{0, 26, 240, 320};
    ExpectPoint(CentredPosition(300, 400, &parent, 240, 320), 0, 0);
}

TEST(Centring, treats_the_axes_apart) {
    // Wider than the screen, but not as high: (320 - 100) / 2
    ExpectPoint(CentredPosition(300, 100, nullptr, 240, 320), 0, 110);
}

TEST(Centring, leaves_106_pixels_to_the_input_panel) {
    EXPECT_EQ(InputPanelSpace, 106);
}

}  // namespace
