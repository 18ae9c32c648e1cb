#pragma once

// What the tests of scrolling share: a small view, and a hand on the box of its bars.

#include <functional>

#include "framework/scrolling_view.h"
#include "tests/framework/framework_test.h"

// A view of 200 x 150 without a frame, with both bars asked for or none.
class ScrolledView : public ScrollingView {
  public:
    explicit ScrolledView(PropertySet properties = PopupProperties())
        : ScrollingView(nullptr, L"Scrolled", properties) {}

    using ScrollingView::LineStep;
    using ScrollingView::SecondStep;

    // How the content was moved, in the order of the moves.
    std::vector<POINT> moves;

  protected:
    void ScrollContent(int x, int y) override {
        moves.push_back({x, y});
        ScrollingView::ScrollContent(x, y);
    }
};

// Makes the bar run from minimum to maximum with this page, and stand at the position.
void SetBar(const ScrollingView& view, int bar, ScrollState state);

// Sends the scroll message of the request, as the system does.
LRESULT SendScroll(HWND window, UINT message, int request, int thumb = 0, HWND control = nullptr);

[[nodiscard]] POINT PlaceInParent(HWND child);

// Drags the box of the window's vertical bar by so many pixels and lets it go; the steps are taken while it
// is still held.
void DragVerticalBox(ScrollingView& view, int pixels, const std::function<void()>& whileHeld);
