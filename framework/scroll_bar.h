#pragma once

// The scroll bars: a window's own two, and one that is a control.

#include "framework/control.h"
#include "framework/scroll_arithmetic.h"

// One bar of a window: reads and writes it, and owns nothing. The bar is SB_HORZ or SB_VERT of a window, or
// SB_CTL of a scroll-bar control.
class ScrollBar {
  public:
    ScrollBar(HWND windowOfBar, int barOfWindow) : window_(windowOfBar), bar_(barOfWindow) {}

    [[nodiscard]] int Position() const;
    [[nodiscard]] ScrollRange Range() const;
    [[nodiscard]] int Page() const;
    [[nodiscard]] ScrollState State() const;

    // A position outside the range becomes the nearest one within.
    void SetPosition(int position, bool redraw = true) const;
    void SetRange(ScrollRange range, bool redraw = true) const;

  private:
    [[nodiscard]] SCROLLINFO Read(UINT mask) const;
    void Write(SCROLLINFO& info, bool redraw) const;

    HWND window_;
    int bar_;
};

// What the scroll message asks for, and the position of the box that it brings.
[[nodiscard]] ScrollRequest RequestOf(const MessageRecord& record);
[[nodiscard]] int ThumbOf(const MessageRecord& record);

// A scroll bar that is a control. The view that gets its scroll messages hands them back to it; it moves
// itself by steps of its own, and answers how far (the old position less the new).
class ScrollBarControl : public Control {
  public:
    static constexpr const wchar_t* ClassName = L"ScrollBar";
    ScrollBarControl(WindowObject* parent, PropertySet& properties);
    ScrollBarControl(WindowObject* parent, HWND handle);

    void SetSteps(ScrollSteps newSteps) { steps_ = newSteps; }
    [[nodiscard]] ScrollBar Bar() const { return {Handle(), SB_CTL}; }

  private:
    void TakeScrollMessages();
    LRESULT OnScroll(MessageRecord& record);

    ScrollSteps steps_;
};
