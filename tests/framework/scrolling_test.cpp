#include "tests/framework/scrolling_test.h"

namespace {

constexpr UINT HeldMessage = WM_APP + 101;

// Takes its steps when the message comes; it has no window.
class HeldSteps : public WindowObject {
  public:
    explicit HeldSteps(const std::function<void()>& stepsToTake)
        : WindowObject(nullptr, nullptr), steps_(stepsToTake) {}

    LRESULT Take(MessageRecord&) {
        ++taken;
        steps_();
        return 0;
    }

    int taken = 0;

  private:
    const std::function<void()>& steps_;
};

}  // namespace

void SetBar(const ScrollingView& view, int bar, ScrollState state) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    info.nMin = state.range.minimum;
    info.nMax = state.range.maximum;
    info.nPage = static_cast<UINT>(state.page);
    info.nPos = state.position;
    SetScrollInfo(view.Handle(), bar, &info, TRUE);
}

LRESULT SendScroll(HWND window, UINT message, int request, int thumb, HWND control) {
    return SendMessageW(window, message, MAKEWPARAM(request, thumb), reinterpret_cast<LPARAM>(control));
}

POINT PlaceInParent(HWND child) {
    RECT place{};
    GetWindowRect(child, &place);
    POINT corner{place.left, place.top};
    ScreenToClient(GetParent(child), &corner);
    return corner;
}

void DragVerticalBox(ScrollingView& view, int pixels, const std::function<void()>& whileHeld) {
    SCROLLBARINFO info{};
    info.cbSize = sizeof info;
    ASSERT_TRUE(GetScrollBarInfo(view.Handle(), OBJID_VSCROLL, &info));
    ASSERT_GT(info.xyThumbBottom, info.xyThumbTop);
    const POINT pressed{(info.rcScrollBar.left + info.rcScrollBar.right) / 2,
                        info.rcScrollBar.top + (info.xyThumbTop + info.xyThumbBottom) / 2};
    POINT moved{pressed.x, pressed.y + pixels};
    ScreenToClient(view.Handle(), &moved);
    const LPARAM place = MAKELPARAM(moved.x, moved.y);
    HeldSteps held(whileHeld);
    view.OnMessage(HeldMessage, &held, &HeldSteps::Take);
    PostMessageW(view.Handle(), WM_MOUSEMOVE, MK_LBUTTON, place);
    PostMessageW(view.Handle(), HeldMessage, 0, 0);
    PostMessageW(view.Handle(), WM_LBUTTONUP, 0, place);
    // The bar follows the mouse from here on until the button is let go.
    SendMessageW(view.Handle(), WM_NCLBUTTONDOWN, HTVSCROLL, MAKELPARAM(pressed.x, pressed.y));
    EXPECT_EQ(held.taken, 1);
}
