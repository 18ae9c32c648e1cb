#include "tests/support/answered_boxes.h"

#include <gtest/gtest.h>

TEST(AnsweredBoxes, a_message_box_gets_the_answer_and_leaves_its_texts) {
    const AnsweredBoxes boxes{IDNO};
    EXPECT_EQ(MessageBoxW(nullptr, L"Go on?", L"A question", MB_YESNO), IDNO);
    ASSERT_EQ(boxes.Seen().size(), 1u);
    EXPECT_EQ(boxes.Seen()[0].caption, L"A question");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"Go on?"));
    EXPECT_FALSE(AnsweredBoxes::Shows(boxes.Seen()[0], L"Go"));
}

TEST(AnsweredBoxes, answers_are_given_in_turn_and_the_last_one_serves_for_the_rest) {
    const AnsweredBoxes boxes{IDYES, IDNO};
    EXPECT_EQ(MessageBoxW(nullptr, L"1", L"", MB_YESNO), IDYES);
    EXPECT_EQ(MessageBoxW(nullptr, L"2", L"", MB_YESNO), IDNO);
    EXPECT_EQ(MessageBoxW(nullptr, L"3", L"", MB_YESNO), IDNO);
    EXPECT_EQ(boxes.Seen().size(), 3u);
}

TEST(AnsweredBoxes, without_a_box_nothing_is_seen) {
    const AnsweredBoxes boxes{IDOK};
    EXPECT_TRUE(boxes.Seen().empty());
}
