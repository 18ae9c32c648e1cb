// The clearing before a search, in steps: messages are answered between them.

#include <gtest/gtest.h>

#include "search/run_search.h"
#include "tests/search/fake_folders.h"
#include "tests/search/recorded_search.h"
#include "tests/support/asked_query.h"

namespace {

constexpr UINT Asked = WM_APP + 1;

// Takes so many steps to be cleared.
class SlowSink : public RecordingSink {
  public:
    [[nodiscard]] bool ClearSome() override {
        --stepsLeft;
        if (stepsLeft > 0) return true;
        Clear();
        return false;
    }
    int stepsLeft = 10;
};

// Stops once it is told to.
class ToldProgress : public RecordingProgress {
  public:
    [[nodiscard]] bool StopRequested() override { return stop; }
    bool stop = false;
};

class SearchClearing : public testing::Test {
  protected:
    SearchClearing() {
        current = this;
        window_ = CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
        folders_.AddFile(L"\\", L"a.txt");
    }
    ~SearchClearing() override { DestroyWindow(window_); }

    void Ask() { PostMessageW(window_, Asked, 0, 0); }
    void Search() { RunSearch(conditions_, query_, sink_, progress_); }

    FakeFolders folders_;
    AskedQuery query_;
    SearchConditions conditions_;
    SlowSink sink_;
    ToldProgress progress_;
    int stepsLeftWhenAnswered_ = -1;
    int answers_ = 0;
    int answersWanted_ = 1;
    bool stopWhenAnswered_ = false;

  private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != Asked) return DefWindowProcW(handle, message, wParam, lParam);
        current->Answer();
        return 0;
    }
    void Answer() {
        if (stepsLeftWhenAnswered_ < 0) stepsLeftWhenAnswered_ = sink_.stepsLeft;
        if (stopWhenAnswered_) progress_.stop = true;
        if (++answers_ < answersWanted_) Ask();
    }

    static inline SearchClearing* current = nullptr;
    HWND window_ = nullptr;
};

}  // namespace

TEST_F(SearchClearing, a_message_is_answered_before_the_next_step) {
    Ask();
    Search();
    EXPECT_EQ(stepsLeftWhenAnswered_, 9);
    EXPECT_EQ(sink_.paths.size(), 1u);
}

TEST_F(SearchClearing, an_abort_leaves_an_empty_sink_and_walks_no_folder) {
    stopWhenAnswered_ = true;
    Ask();
    Search();
    EXPECT_EQ(stepsLeftWhenAnswered_, 9);
    EXPECT_EQ(sink_.clears, 1);
    EXPECT_TRUE(progress_.folders.empty());
    EXPECT_TRUE(sink_.paths.empty());
}

TEST_F(SearchClearing, a_quit_ends_it_and_waits_for_the_loop_outside) {
    PostQuitMessage(7);
    Search();
    EXPECT_EQ(sink_.stepsLeft, 9);
    EXPECT_TRUE(progress_.folders.empty());
    MSG message;
    ASSERT_FALSE(GetMessageW(&message, nullptr, 0, 0));
    EXPECT_EQ(message.wParam, 7u);
}

TEST_F(SearchClearing, a_window_that_always_has_something_to_do_does_not_hold_it_up) {
    answersWanted_ = 100'000;
    Ask();
    Search();
    EXPECT_EQ(sink_.clears, 1);
    EXPECT_LT(answers_, 10'000);
    answersWanted_ = 0;
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
}
