// The main view that the message loop asks: it and the application end in any order.

#include "framework/application.h"
#include "tests/framework/framework_test.h"

namespace {

constexpr UINT OtherMessage = WM_APP + 2;

class QuietView : public MainView {
  public:
    bool PreTranslate(MSG&) override {
        ++asked;
        return false;
    }
    int asked = 0;
};

class MainViews : public FrameworkTest {
  protected:
    // Lets one message and the end of the loop through.
    int RunLoop() {
        PostThreadMessageW(GetCurrentThreadId(), OtherMessage, 0, 0);
        PostQuitMessage(4);
        return application_.Run();
    }
};

TEST_F(MainViews, that_are_gone_are_not_asked) {
    {
        QuietView shorter;
        application_.SetMainView(&shorter);
    }
    EXPECT_EQ(RunLoop(), 4);
    QuietView view;
    application_.SetMainView(&view);
    EXPECT_EQ(RunLoop(), 4);
    EXPECT_EQ(view.asked, 1);
}

TEST_F(MainViews, that_were_replaced_take_nothing_from_their_successors) {
    QuietView successor;
    {
        QuietView first;
        application_.SetMainView(&first);
        application_.SetMainView(&successor);
    }
    EXPECT_EQ(RunLoop(), 4);
    EXPECT_EQ(successor.asked, 1);
}

TEST_F(MainViews, may_outlive_their_application) {
    QuietView view;
    {
        Application shorter(L"Shorter", 0, nullptr);
        shorter.SetMainView(&view);
    }
    application_.SetMainView(&view);
    EXPECT_EQ(RunLoop(), 4);
    EXPECT_EQ(view.asked, 1);
}

}  // namespace
