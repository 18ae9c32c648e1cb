#include "tests/support/answered_boxes.h"

#include <gtest/gtest.h>

TEST(AnsweredBoxes, a_message_box_gets_the_answer_and_leaves_its_texts) {
    const AnsweredBoxes boxes{IDNO};
    EXPECT_EQ(IDNO, MessageBoxW(nullptr, L"Go on?", L"A question", MB_YESNO));
    ASSERT_EQ(1u, boxes.Seen().size());
    EXPECT_EQ(L"A question", boxes.Seen()[0].caption);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"Go on?"));
    EXPECT_FALSE(AnsweredBoxes::Shows(boxes.Seen()[0], L"Go"));
}

TEST(AnsweredBoxes, answers_are_given_in_turn_and_the_last_one_serves_for_the_rest) {
    const AnsweredBoxes boxes{IDYES, IDNO};
    EXPECT_EQ(IDYES, MessageBoxW(nullptr, L"1", L"", MB_YESNO));
    EXPECT_EQ(IDNO, MessageBoxW(nullptr, L"2", L"", MB_YESNO));
    EXPECT_EQ(IDNO, MessageBoxW(nullptr, L"3", L"", MB_YESNO));
    EXPECT_EQ(3u, boxes.Seen().size());
}

TEST(AnsweredBoxes, without_a_box_nothing_is_seen) {
    const AnsweredBoxes boxes{IDOK};
    EXPECT_TRUE(boxes.Seen().empty());
}
