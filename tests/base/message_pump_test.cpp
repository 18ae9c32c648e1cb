#include "base/message_pump.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/windows_ce.h"

namespace {

constexpr UINT Noted = WM_APP + 1;
constexpr UINT Nested = WM_APP + 2;

std::vector<WPARAM> noted;

LRESULT CALLBACK NotingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == Noted) noted.push_back(wParam);
    if (message == Nested) {
        // Work that pumps may itself be started by a message.
        while (PumpOneMessage() == PumpOutcome::Dispatched) {
        }
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

// A window that shows nothing, with an empty queue at the start and at the end.
class MessagePump : public testing::Test {
  protected:
    MessagePump() {
        noted.clear();
        window_ = CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(NotingProcedure));
        EmptyQueue();
        ExpectMessages();
    }
    ~MessagePump() override {
        DestroyWindow(window_);
        EmptyQueue();
    }

    static void EmptyQueue() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        }
    }

    void Post(WPARAM number) const { ASSERT_TRUE(PostMessageW(window_, Noted, number, 0)); }

    HWND window_ = nullptr;
};

}  // namespace

TEST_F(MessagePump, takes_one_message_a_call_in_the_order_of_the_queue) {
    Post(1);
    Post(2);
    EXPECT_EQ(PumpOneMessage(), PumpOutcome::Dispatched);
    EXPECT_EQ(noted, std::vector<WPARAM>{1});
    EXPECT_EQ(PumpOneMessage(), PumpOutcome::Dispatched);
    EXPECT_EQ(noted, (std::vector<WPARAM>{1, 2}));
    EXPECT_EQ(PumpOneMessage(), PumpOutcome::Empty);
}

TEST_F(MessagePump, translates_keys_into_characters) {
    ASSERT_TRUE(PostMessageW(window_, WM_KEYDOWN, 'A', 0x001E0001));
    EXPECT_EQ(PumpOneMessage(), PumpOutcome::Dispatched);
    MSG message;
    EXPECT_TRUE(PeekMessageW(&message, window_, WM_CHAR, WM_CHAR, PM_REMOVE));
}

TEST_F(MessagePump, does_not_look_again_right_after_an_empty_queue) {
    // The clock may move on just between two calls, so it is tried a few times.
    bool left = false;
    for (int tries = 0; tries < 50 && !left; ++tries) {
        EmptyQueue();
        noted.clear();
        ExpectMessages();
        ASSERT_EQ(PumpOneMessage(), PumpOutcome::Empty);
        Post(1);
        left = PumpOneMessage() == PumpOutcome::NotYet && noted.empty();
    }
    EXPECT_TRUE(left);
}

TEST_F(MessagePump, looks_again_when_some_time_has_passed) {
    ASSERT_EQ(PumpOneMessage(), PumpOutcome::Empty);
    Post(1);
    Sleep(60);
    EXPECT_EQ(PumpOneMessage(), PumpOutcome::Dispatched);
    EXPECT_EQ(noted, std::vector<WPARAM>{1});
}

TEST_F(MessagePump, looks_at_once_when_messages_are_expected) {
    ASSERT_EQ(PumpOneMessage(), PumpOutcome::Empty);
    Post(1);
    ExpectMessages();
    EXPECT_EQ(PumpOneMessage(), PumpOutcome::Dispatched);
    EXPECT_EQ(noted, std::vector<WPARAM>{1});
}

TEST_F(MessagePump, leaves_a_quit_in_the_queue_and_says_so_every_time) {
    PostQuitMessage(7);
    EXPECT_EQ(PumpOneMessage(), PumpOutcome::Quit);
    EXPECT_EQ(PumpOneMessage(), PumpOutcome::Quit);
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 7U);
    EXPECT_FALSE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(MessagePump, delivers_what_was_posted_before_the_quit_first) {
    Post(1);
    PostQuitMessage(0);
    EXPECT_EQ(PumpOneMessage(), PumpOutcome::Dispatched);
    EXPECT_EQ(noted, std::vector<WPARAM>{1});
    EXPECT_EQ(PumpOneMessage(), PumpOutcome::Quit);
}

TEST_F(MessagePump, may_be_called_by_what_it_dispatches) {
    ASSERT_TRUE(PostMessageW(window_, Nested, 0, 0));
    Post(1);
    Post(2);
    EXPECT_EQ(PumpOneMessage(), PumpOutcome::Dispatched);
    EXPECT_EQ(noted, (std::vector<WPARAM>{1, 2}));
}
