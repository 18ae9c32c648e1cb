#include "framework/window_class.h"

#include <memory>

#include "tests/framework/foreign_window.h"
#include "tests/framework/framework_test.h"

namespace {

constexpr UINT OtherMessage = WM_APP + 2;

class Resubclassing : public FrameworkTest {
  protected:
    static LRESULT SumOf(const ForeignWindow& foreign) {
        return SendMessageW(foreign.window, SumMessage, 30, 4);
    }

    Listener listener_;
};

TEST_F(Resubclassing, after_the_first_object_is_gone_reaches_the_control_s_own_procedure) {
    const ForeignWindow foreign;
    for (int time = 0; time < 3; ++time) {
        WindowObject wrapper(nullptr, foreign.window);
        wrapper.Subclass();
        EXPECT_EQ(SumOf(foreign), 34) << time;
    }
}

TEST_F(Resubclassing, by_a_second_object_leaves_the_control_to_the_one_that_stays) {
    for (const bool olderEndsFirst : {true, false}) {
        const ForeignWindow foreign;
        Listener older;
        Listener newer;
        older.answer = 1;
        newer.answer = 2;
        auto first = std::make_unique<WindowObject>(nullptr, foreign.window);
        auto second = std::make_unique<WindowObject>(nullptr, foreign.window);
        first->OnMessage(OtherMessage, &older, &Listener::TakeMessage);
        second->OnMessage(OtherMessage, &newer, &Listener::TakeMessage);
        first->Subclass();
        second->Subclass();
        EXPECT_EQ(SendMessageW(foreign.window, OtherMessage, 0, 0), 2);
        EXPECT_EQ(SumOf(foreign), 34);
        (olderEndsFirst ? first : second).reset();
        EXPECT_EQ(SendMessageW(foreign.window, OtherMessage, 0, 0), olderEndsFirst ? 2 : 1);
        EXPECT_EQ(SumOf(foreign), 34);
    }
}

WNDPROC procedureBefore = nullptr;

LRESULT CALLBACK PassOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcW(procedureBefore, window, message, wParam, lParam);
}

TEST_F(Resubclassing, behind_a_procedure_that_somebody_else_put_in_comes_to_an_end) {
    const ForeignWindow foreign;
    WindowObject first(nullptr, foreign.window);
    first.Subclass();
    procedureBefore = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(foreign.window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&PassOn)));
    WindowObject second(nullptr, foreign.window);
    second.Subclass();
    second.OnMessage(OtherMessage, &listener_, &Listener::TakeMessage);
    listener_.answer = 9;
    EXPECT_EQ(SumOf(foreign), 34);
    EXPECT_EQ(SendMessageW(foreign.window, OtherMessage, 0, 0), 9);
}

// The handle may come back for another window.
TEST_F(Resubclassing, remembers_no_procedure_of_a_window_that_is_gone) {
    HWND gone = nullptr;
    {
        const ForeignWindow foreign;
        gone = foreign.window;
        WindowObject wrapper(nullptr, gone);
        wrapper.Subclass();
        ASSERT_NE(ReplaceProcedure(gone, &FrameworkWindowProcedure), nullptr);
    }
    EXPECT_EQ(ReplaceProcedure(gone, &FrameworkWindowProcedure), nullptr);
}

// An object that takes one window after another, as a dialog's does.
class ManyWindows : public WindowObject {
  public:
    ManyWindows() : WindowObject(nullptr, nullptr) {}
    using WindowObject::Attach;
};

TEST_F(Resubclassing, by_an_object_that_has_lost_a_window_before_works) {
    ManyWindows object;
    for (int time = 0; time < 2; ++time) {
        const ForeignWindow foreign;
        ASSERT_TRUE(object.Attach(foreign.window));
        object.Subclass();
        EXPECT_EQ(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(foreign.window, GWLP_WNDPROC)),
                  &FrameworkWindowProcedure)
            << time;
        EXPECT_EQ(SumOf(foreign), 34) << time;
    }
    EXPECT_EQ(object.Handle(), nullptr);
}

}  // namespace
